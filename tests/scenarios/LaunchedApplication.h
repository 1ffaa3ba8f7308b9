// The application that the stories are about: the one that is linked with them, or a program that was built
// for a Mac.
#pragma once

#include "tests/contract/World.h"

#include <memory>

namespace kestrune::scenarios {

// The wizard looks once a second; the rest is for a busy machine.
inline constexpr double SecondsForATick = 1.5;

// Runs from here on. A process has one at a time.
class LaunchedApplication {
public:
    // The displays, the permission and the defaults of the world are what it finds.
    explicit LaunchedApplication(contract::World& world);

    // Nothing of it is called any more.
    ~LaunchedApplication();

    LaunchedApplication(const LaunchedApplication&) = delete;
    LaunchedApplication& operator=(const LaunchedApplication&) = delete;

private:
    struct State;

    std::unique_ptr<State> state_;
};

} // namespace kestrune::scenarios
