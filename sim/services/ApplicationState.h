// What the session knows of the application's process.
#pragma once

#include "platform/Application.h"
#include "platform/Menu.h"

#include <memory>
#include <optional>

namespace kestrune::sim {

struct ApplicationState {
    bool exists = false;    // NSApplication.sharedApplication was called
    bool isRunning = false; // from `run` to the end of the process

    // An application from a bundle is regular until it says otherwise, or from the start an accessory when
    // its Info.plist has LSUIElement.
    ActivationPolicy policy = ActivationPolicy::regular;

    // Whether it is the active application, the one whose main menu answers to keys.
    bool isActive = false;

    std::weak_ptr<ApplicationDelegate> delegate;
    std::optional<Menu> mainMenu;
};

} // namespace kestrune::sim
