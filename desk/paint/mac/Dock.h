// The Dock. Places are in global display coordinates, for painting and for the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/mac/SystemPicture.h"

#include <optional>
#include <vector>

namespace kestrune::desk {

struct DockPlace {
    Rect panel;
    double scale = 1;         // less than 1 on a display that is too narrow for it
    std::vector<Rect> icons;  // of others
    std::optional<Rect> icon; // of the application, while it has one
    double separator = 0;     // its middle, before the tiles and the last icon
    std::vector<Rect> tiles;  // of minimised windows
};
DockPlace dockPlace(const Rect& display, const MacPicture& picture);

// All that the Dock and its shadow cover.
Rect dockExtent(const DockPlace& dock);

// With a window in each tile.
void paintDock(const Canvas& canvas, const DockPlace& dock, const MacPicture& picture);

} // namespace kestrune::desk
