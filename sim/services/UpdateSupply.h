// What the updates of the application come from, and how the framework that fetches them is made.
#pragma once

#include <string>

namespace kestrune::sim {

// Whether the bundle has the framework, and whether that starts.
enum class UpdateFramework { missing, broken, working };

// What a check finds at the address of the feed, if there is one.
enum class UpdateFeed { unreachable, nothingNew, newVersion };

// It may change while the session lasts. The framework is what it was when the application started it.
struct UpdateSupply {
    UpdateFramework framework = UpdateFramework::working;
    UpdateFeed feed = UpdateFeed::nothingNew;
    std::string windowClass = "NSWindow";

    // The windows leave the screen while the application is not active, as panels do.
    bool windowsHide = false;
};

} // namespace kestrune::sim
