// kestrune-callback-cost [--quick]: what the tap's callback costs through the real binding and GNUstep's own
// NSUserDefaults, against the same messages sent by hand, in one run. Exit status 1 when the callback costs
// too much, allocates or decides otherwise.
#include "Kestrune/DockGuardController.h"
#include "Kestrune/Preferences.h"
#include "base/Fatal.h"
#include "benchmarks/AllocationCounter.h"
#include "benchmarks/gnustep/CallbackFloor.h"
#include "mac/Vocabulary.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "tests/gnustep/PrivateHome.h"
#include "tests/gnustep/standins/AccessibilityTrust.h"
#include "tests/gnustep/standins/EventTaps.h"
#include "tests/gnustep/standins/Screens.h"
#include "tests/gnustep/standins/StandIns.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <memory>
#include <string_view>

namespace kestrune::benchmarks {
namespace {

using gnustep::PostedEvent;
using gnustep::TapListener;

constexpr double LargestRatio = 1.05;
constexpr double Width = 1920;
constexpr double Height = 1080;
constexpr const char* LeftUUID = "37D8832A-2D66-02CA-B9F7-8F3000000001";
constexpr const char* RightUUID = "37D8832A-2D66-02CA-B9F7-8F3000000002";

struct Situation {
    const char* name;
    Point location;
    bool isEnabledStored;
};

constexpr Situation Situations[] = {
    {"pinned", {700, 500}, true},
    {"unpinned", {2500, 500}, true},
    {"blocked", {2500, 1078}, true},
    {"pinned, isEnabled absent", {700, 500}, false},
    {"unpinned, isEnabled absent", {2500, 500}, false},
    {"blocked, isEnabled absent", {2500, 1078}, false},
};

// Interleaved in short batches, of which the quickest counts, so that both meet the same machine.
struct Effort {
    int batches;
    int events; // in a batch
};
constexpr Effort Full{400, 500};
constexpr Effort Quick{3, 20};

[[gnu::noinline]] void feed(const TapListener& listener, Point location, int events) {
    for (int index = 0; index < events; ++index) {
        PostedEvent event(location);
        listener.callback(nullptr, EventType::mouseMoved, &event, listener.userInfo);
    }
}

double nanosecondsFor(const TapListener& listener, Point location, int events) {
    const auto start = std::chrono::steady_clock::now();
    feed(listener, location, events);
    const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
    return spent.count() / events;
}

Point handled(const TapListener& listener, Point location) {
    PostedEvent event(location);
    listener.callback(nullptr, EventType::mouseMoved, &event, listener.userInfo);
    return event.location;
}

bool allocates(const TapListener& listener, Point location) {
    feed(listener, location, 2);
    const std::size_t before = allocationCount();
    feed(listener, location, 1000);
    return allocationCount() != before;
}

class GuardedSession {
public:
    GuardedSession() : preferences_(std::make_shared<Preferences>(UserDefaults::standardUserDefaults())) {
        gnustep::connectDisplays({{1, "Left", {0, 0, Width, Height}, LeftUUID, std::int64_t{1}},
                                  {2, "Right", {Width, 0, Width, Height}, RightUUID, std::int64_t{2}}});
        gnustep::accessibilityRow().trust = contract::Trust::granted;
        guard_.setPreferences(preferences_);
        guard_.refreshScreens();
        guard_.start();
        floor_.defaults = mac::Retained::retaining(mac::foundation.userDefaults.standardUserDefaults());
        floor_.isEnabledKey = mac::nsString(Preferences::IsEnabledKey.name());
        floor_.blockMarginKey = mac::nsString(Preferences::BlockMarginKey.name());
        floor_.width = Width;
        floor_.height = Height;
        floorWithoutPool_ = floor_;
        floorWithoutPool_.hasPool = false;
    }

    ~GuardedSession() { guard_.stop(); }

    GuardedSession(const GuardedSession&) = delete;
    GuardedSession& operator=(const GuardedSession&) = delete;

    void storeIsEnabled(bool isStored) {
        if (isStored) {
            preferences_->defaults().setBool(true, Preferences::IsEnabledKey);
        } else {
            preferences_->defaults().setObject(std::nullopt, Preferences::IsEnabledKey);
        }
    }

    TapListener callback() const {
        const auto listener = gnustep::firstTapListener();
        if (!listener) {
            fatal("The guard has no tap.");
        }
        return *listener;
    }

    TapListener floor() { return {floorCallback, &floor_}; }
    TapListener floorWithoutPool() { return {floorCallback, &floorWithoutPool_}; }

private:
    std::shared_ptr<Preferences> preferences_;
    DockGuardController guard_;
    CallbackFloor floor_;
    CallbackFloor floorWithoutPool_;
};

// Whether the callback is as it should be in this situation; prints its figures.
bool measure(GuardedSession& session, const Situation& situation, const Effort& effort, bool hasLimit) {
    session.storeIsEnabled(situation.isEnabledStored);
    const TapListener callback = session.callback();
    const TapListener floor = session.floor();
    const bool agrees = handled(callback, situation.location) == handled(floor, situation.location);
    const bool isAllocating = allocates(callback, situation.location);
    double callbackTime = std::numeric_limits<double>::infinity();
    double floorTime = callbackTime;
    double timeWithoutPool = callbackTime;
    for (int batch = 0; batch < effort.batches; ++batch) {
        timeWithoutPool = std::min(
            timeWithoutPool, nanosecondsFor(session.floorWithoutPool(), situation.location, effort.events));
        floorTime = std::min(floorTime, nanosecondsFor(floor, situation.location, effort.events));
        callbackTime = std::min(callbackTime, nanosecondsFor(callback, situation.location, effort.events));
    }
    const double ratio = callbackTime / floorTime;
    std::printf("%-28s floor %7.1f ns (%7.1f ns without a pool), callback %7.1f ns, ratio %.3f%s%s\n",
                situation.name, floorTime, timeWithoutPool, callbackTime, ratio,
                isAllocating ? ", ALLOCATES" : ", 0 allocations", agrees ? "" : ", DECIDES OTHERWISE");
    return agrees && !isAllocating && (!hasLimit || ratio <= LargestRatio);
}

bool measureAll(bool isQuick) {
    const mac::Pool pool;
    gnustep::installStandIns();
    GuardedSession session;
    bool isGood = true;
    for (const Situation& situation : Situations) {
        isGood = measure(session, situation, isQuick ? Quick : Full, !isQuick) && isGood;
    }
    return isGood;
}

} // namespace
} // namespace kestrune::benchmarks

int main(int count, char** arguments) {
    const bool isQuick = count == 2 && std::string_view(arguments[1]) == "--quick";
    if (count > 1 && !isQuick) {
        std::fputs("usage: kestrune-callback-cost [--quick]\n", stderr);
        return 2;
    }
    kestrune::gnustep::enterPrivateHome();
    return kestrune::benchmarks::measureAll(isQuick) ? 0 : 1;
}
