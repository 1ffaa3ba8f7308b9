// Draws what happens next in a session and lets it happen.
//
// No two draws are arguments of one call: compilers differ in which they evaluate first, and a seed must give
// the same session with each of them.
#pragma once

#include "tests/random/common/Random.h"
#include "tests/random/common/RandomArrangement.h"
#include "tests/random/guard/GuardedSession.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace kestrune::simulate {

class RandomUser {
public:
    explicit RandomUser(std::uint64_t seed);

    GuardedSession& session() { return *session_; }

    // Whether each step of an action is kept as text, beside the action's own.
    void trace(bool trace) { session_->traceDeliveries(trace); }
    std::vector<std::string> takeTrace() { return session_->takeTrace(); }

    // One action; returns what it was, readable.
    std::string act();

private:
    struct Choice {
        double weight;
        std::string (RandomUser::*action)();
    };

    static const std::vector<Choice>& choices();

    std::string stroke();
    std::string pushAtBottomEdge();
    std::string creepIntoBottomEdge();
    std::string postEvents();
    std::string plug();
    std::string unplug();
    std::string unplugAll();
    std::string renumber();
    std::string rearrange();
    std::string readInPassing();
    std::string changeMain();
    std::string failUUIDStrings();
    std::string refreshScreens();
    std::string start();
    std::string stop();
    std::string storeMargin();
    std::string storeSwitch();
    std::string storeChoice();
    std::string pickDisplay();
    std::string changePermission();
    std::string refuseTaps();
    std::string disableTaps();
    std::string stall();
    std::string wait();

    StoredEntries initialEntries(const std::vector<sim::Display>& displays);
    StoredMargin margin();
    StoredSwitch enabled();
    StoredChoice choice(const std::vector<sim::Display>& displays);
    EventType eventType();
    Point remarkablePoint();
    double remarkableX(const Rect& bounds);
    double remarkableY(const Rect& bounds);
    double remarkableCoordinate();
    void postEvent();
    void moveInSteps(Point difference, int steps, EventType type);
    void pushDown(int pushes, double least, double most, sim::Duration longestPause);
    const sim::Display* anyDisplay();
    std::string changeDisplays(std::string what, std::vector<sim::Display> displays);

    Random random_;
    bool tame_;
    RandomArrangement arrangement_;
    std::unique_ptr<GuardedSession> session_;
};

} // namespace kestrune::simulate
