// A simulated session with the real guard in it: carries out whatever is asked, and checks after each step
// that session and guard are what the rules make of it.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "sim/session/Session.h"
#include "tests/random/common/StoredValue.h"
#include "tests/random/common/Verdict.h"
#include "tests/random/guard/Oracle.h"
#include "tests/random/guard/TapModel.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrune::simulate {

// What happened in a session, so that a run shows that it did not test emptiness.
struct Counts {
    std::uint64_t events = 0;
    std::uint64_t handled = 0;   // by the guard's tap
    std::uint64_t moved = 0;     // by the guard
    std::uint64_t pushedOff = 0; // from the last point of a display, where the Dock would have been pulled
    std::uint64_t refreshes = 0;
    std::uint64_t writeBacks = 0;
    std::uint64_t starts = 0;
    std::uint64_t refusedStarts = 0;
    std::uint64_t switchedOff = 0; // taps by the system
    std::uint64_t dockMoves = 0;   // all of them allowed

    Counts& operator+=(const Counts& other);
};

struct StoredEntries {
    StoredMargin margin = absentMargin();
    StoredSwitch isEnabled = absentSwitch();
    StoredChoice choice = absentChoice();
};

class GuardedSession : public Verdict {
public:
    GuardedSession(std::vector<sim::Display> displays, const StoredEntries& entries, sim::Duration dockDwell,
                   bool cursorFollowsEvents);

    // What a person, a program or the system does.
    void move(double deltaX, double deltaY, EventType type);
    void post(EventType type, Point location);
    void changeDisplays(std::vector<sim::Display> displays);
    void scriptReads(std::deque<std::vector<sim::Display>> reads);
    void setMain(std::optional<std::size_t> index);
    void setUUIDStringsFail(bool fail);
    void store(const StoredMargin& margin);
    void store(const StoredSwitch& isEnabled);
    void store(const StoredChoice& choice);
    void setPermission(sim::Permission permission);
    void refuseTapCreation(bool refuse);
    void disableTaps(EventType reason);
    void stallMainThread(sim::Duration duration);
    void advance(sim::Duration duration);

    // What the application does. They run on the main thread, so time passes until it is free. `start` keeps
    // the callers' rule: switched on, not running, trusted; then a refresh before the start.
    void refreshScreens();
    void start();
    void stop();

    // Stops the guard and lets it go; nothing may be left behind.
    void finish();

    const Counts& counts() const { return counts_; }
    const std::vector<sim::Display>& displays() { return session_.displays().connected(); }
    Point pointer() const { return session_.pointer(); }
    const GuardModel& expected() const { return expected_; }

    // Whether each delivery is kept as text.
    void traceDeliveries(bool trace) { tracing_ = trace; }
    std::vector<std::string> takeTrace() { return std::exchange(trace_, {}); }

private:
    struct BeforeEvent;

    static sim::SessionOptions options(std::vector<sim::Display> displays, const StoredEntries& entries,
                                       sim::Duration dockDwell, bool cursorFollowsEvents);
    BeforeEvent beforeEvent();
    void afterEvent(const BeforeEvent& before, const sim::Delivery& delivery);
    void checkDock(const BeforeEvent& before, bool handled);
    void countEvent(const sim::Delivery& delivery, bool handled);
    void waitForMainThread();
    void startOrBeRefused();
    void checkRefresh(const Resolution& resolution, std::uint64_t writes);
    void checkState();
    void checkScreens();
    void checkLog();
    void checkEntries();
    void storeFromOutside(std::string_view key, const std::optional<sim::PropertyList>& value);

    sim::Session session_;
    std::unique_ptr<DockGuardController> guard_;
    StoredEntries entries_;
    GuardModel expected_;
    TapModel tap_;
    std::uint64_t refusals_ = 0;
    std::uint64_t writes_ = 0; // of defaults entries, by anybody
    Counts counts_;
    bool tracing_ = false;
    std::vector<std::string> trace_;
};

} // namespace kestrune::simulate
