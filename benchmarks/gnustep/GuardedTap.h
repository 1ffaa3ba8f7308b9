// Two displays of which the left one is pinned, and the guard of the application that is linked here.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "Kestrune/Preferences.h"
#include "tests/gnustep/standins/system/EventTaps.h"

#include <memory>

namespace kestrune::benchmarks {

inline constexpr double DisplayWidth = 1920; // points
inline constexpr double DisplayHeight = 1080;

struct Situation {
    const char* name;
    Point location;
    bool isEnabledStored;
};

inline constexpr Situation Situations[] = {
    {"pinned", {700, 500}, true},
    {"unpinned", {2500, 500}, true},
    {"blocked", {2500, 1078}, true},
    {"pinned, isEnabled absent", {700, 500}, false},
    {"unpinned, isEnabled absent", {2500, 500}, false},
    {"blocked, isEnabled absent", {2500, 1078}, false},
};

// The tap that sees events first. The process ends when there is none.
gnustep::TapListener firstTap();

// Connects the displays and grants the permission.
void makeSession();

class GuardedTap {
public:
    GuardedTap();
    ~GuardedTap() { guard_.stop(); }

    GuardedTap(const GuardedTap&) = delete;
    GuardedTap& operator=(const GuardedTap&) = delete;

    void storeIsEnabled(bool isStored);

private:
    std::shared_ptr<Preferences> preferences_;
    DockGuardController guard_;
};

} // namespace kestrune::benchmarks
