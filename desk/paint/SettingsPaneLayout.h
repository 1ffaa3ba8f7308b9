// Where a pane of System Settings and its parts stand, in window coordinates, for painting and for the
// pointer.
//
// Like menus, windows keep the size in which they can be read, whatever the displays' scale.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/DeskLayout.h"
#include "desk/paint/DeskPicture.h"

#include <optional>
#include <vector>

namespace kestrune::desk {

struct PaneRowPlace {
    Rect area;
    Rect icon;
    Rect toggle; // the switch

    friend bool operator==(const PaneRowPlace&, const PaneRowPlace&) = default;
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

    friend bool operator==(const SettingsPaneLayout&, const SettingsPaneLayout&) = default;
};

// Absent without a pane.
std::optional<SettingsPaneLayout> settingsPaneLayout(const DeskLayout& layout, const DeskPicture& picture,
                                                     Size window);

// Whether the − button can be pressed: it needs a selected row.
bool canRemove(const SettingsPanePicture& pane);

} // namespace kestrune::desk
