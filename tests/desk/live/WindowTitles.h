// What the windows on the desk are called.
#pragma once

#include "desk/live/world/LivePicture.h"

#include <string>
#include <vector>

namespace kestrune::desk {

// The frontmost first.
inline std::vector<std::string> windowTitlesOn(LiveDesk& desk) {
    std::vector<std::string> titles;
    for (const WindowPicture& window : pictureOf(desk).windows) {
        titles.push_back(window.title);
    }
    return titles;
}

} // namespace kestrune::desk
