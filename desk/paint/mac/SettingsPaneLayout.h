// Where a pane of System Settings and its parts stand, in global display coordinates, for painting and for
// the pointer.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPicture.h"

#include <optional>
#include <vector>

namespace kestrune::desk {

struct PaneRowPlace {
    Rect area;
    Rect icon;
    Rect toggle; // the switch
};

struct SettingsPaneLayout {
    Rect frame;
    Rect titleBar;
    Rect closeButton;
    Rect box; // around sentence, list and buttons
    Rect sentence;
    Rect list;
    std::vector<PaneRowPlace> rows; // those that the window has room for, from the first
    Rect addButton;
    Rect removeButton;
};

// Absent without a pane.
std::optional<SettingsPaneLayout> settingsPaneLayout(const DeskPicture& picture);

// Whether the − button can be pressed: it needs a selected row.
bool canRemove(const SettingsPanePicture& pane);

} // namespace kestrune::desk
