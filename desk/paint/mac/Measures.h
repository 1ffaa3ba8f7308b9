// How large things are on the imitated Mac, in points: macOS 14 on displays with two pixels for each point.
//
// Its menu bar is 24 points high on an external display. One beside a camera would be 37, and the desk's
// displays have no camera.
#pragma once

#include "sim/services/Windows.h"

namespace kestrune::desk {

inline constexpr double SystemTextSize = 13; // of menu bars, menus, titles and controls

inline constexpr double MenuBarHeight = sim::Windows::MenuBarHeight;
inline constexpr double MenuBarMarkRadius = 5;

inline constexpr double MenuRowHeight = 22;
inline constexpr double MenuSeparatorHeight = 11;
inline constexpr double MenuCornerRadius = 6;

inline constexpr double WindowCornerRadius = 10;
inline constexpr double WindowButtonSide = 12;
inline constexpr double WindowButtonDistance = 20; // from centre to centre
inline constexpr double WindowButtonInset = 8;     // of the first one
inline constexpr double ToolbarButtonInset = 20;   // of the first one in a bar of this height
inline constexpr double ToolbarHeight = 52;

inline constexpr double DockIconSide = 52;
inline constexpr double DockIconGap = 8;
inline constexpr double DockPadding = 8; // between panel and icons
inline constexpr double DockCornerRadius = 16;
inline constexpr double DockBottomMargin = 5;

} // namespace kestrune::desk
