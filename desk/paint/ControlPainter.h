// The controls in the system's windows.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/Canvas.h"

#include <string_view>

namespace kestrune::desk {

inline constexpr double PushButtonHeight = 24;
inline constexpr double ButtonPadding = 15; // on either side of the label

// The label's; the colour is left to the painter.
TextStyle pushButtonStyle();

struct PushButtonState {
    bool isDefault = false;
    bool isPressed = false;
};
void paintPushButton(const Canvas& canvas, const Rect& area, std::string_view label, PushButtonState state);

inline constexpr Size SwitchSize{28, 16};

void paintSwitch(const Canvas& canvas, const Rect& area, bool isOn, bool isPressed);

// Close, minimise and zoom at the leading end of a title bar; only closing is enabled. `close` is the area of
// the first.
inline constexpr double WindowButtonSide = 12;
void paintWindowButtons(const Canvas& canvas, const Rect& close, bool isPressed);

// The signs of buttons that add to a list and remove from it.
enum class ListButton { add, remove };
void paintListButton(const Canvas& canvas, const Rect& area, ListButton button, bool isEnabled,
                     bool isPressed);

} // namespace kestrune::desk
