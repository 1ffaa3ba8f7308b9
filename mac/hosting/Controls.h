// The platform's push button and switch, as they are made, measured and told apart.
#pragma once

#include "mac/objc/Retained.h"
#include "mac/vocabulary/Runtime.h"
#include "ui/Style.h"

#include <cstddef>

namespace kestrune::mac {

// A button that goes back when it is let go.
inline constexpr Unsigned MomentaryPushIn = 7; // NSButtonTypeMomentaryPushIn

// Without a title.
Retained newPushButton();

Retained newSwitch();

// As NSControlSize.
Unsigned platformSize(ui::ControlSize size);

// The button's font goes with it.
void setButtonSize(id button, ui::ControlSize size);

// Which of the scene's actions the control stands for.
void setAction(id control, std::size_t action);
std::size_t actionOf(id control);

} // namespace kestrune::mac
