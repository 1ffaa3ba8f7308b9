// The controls in windows.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/mac/SystemPicture.h"
#include "ui/Style.h"

#include <optional>
#include <string_view>

namespace kestrune::desk {

struct PushButtonLook {
    double height;
    double padding; // on either side of the label
    double cornerRadius;
    TextStyle label; // the colour is left to the painter
};
PushButtonLook pushButtonLook(ui::ControlSize size);

struct PushButtonState {
    bool isDefault = false;
    bool isPressed = false;
};
void paintPushButton(const Canvas& canvas, const Rect& area, std::string_view label, PushButtonState state,
                     const PushButtonLook& look);

struct SwitchState {
    bool isOn = false;
    // Where the knob is while it moves, from 0, off, to 1, on.
    std::optional<double> position = std::nullopt;
    bool isPressed = false;
    bool isInKeyWindow = true; // only there the accent colour shows
};
void paintSwitch(const Canvas& canvas, const Rect& area, SwitchState state);

// How far the knob goes from off to on.
double switchTravel(const Rect& area);

// Close, minimise and zoom at the leading end of a title bar; `close` is the area of the first. They are grey
// while the window is not the key window and the pointer elsewhere.
void paintWindowButtons(const Canvas& canvas, const Rect& close, const WindowPicture& shown);

// Around a control that the keyboard works on.
void paintFocusRing(const Canvas& canvas, const Rect& control, double cornerRadius);

} // namespace kestrune::desk
