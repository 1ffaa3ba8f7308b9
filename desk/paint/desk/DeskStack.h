// What stands on the displays, and what of it is in front of what: the one order for painting and the
// pointer.
#pragma once

#include "desk/paint/desk/DeskPicture.h"

#include <cstddef>
#include <vector>

namespace kestrune::desk {

enum class PartKind { menu, toolTip, menuBar, dock, window };

struct StackedPart {
    PartKind kind = PartKind::window;
    // The only display that shows it. A window is on every display that it reaches.
    std::size_t display = 0;
    // A window's index among those of the picture.
    std::size_t window = 0;
};

// From front to back. What of a part is to be seen is left to its layout.
std::vector<StackedPart> stackOf(const DeskPicture& picture);

} // namespace kestrune::desk
