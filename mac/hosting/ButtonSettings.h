// What buttons and switches have in common.
#pragma once

#include "mac/objc/Runtime.h"
#include "ui/Style.h"

#include <cstddef>

namespace kestrune::mac {

// As NSControlSize.
Unsigned platformSize(ui::ControlSize size);

// The button's font goes with it.
void setButtonSize(id button, ui::ControlSize size);

// Which of the scene's actions the control stands for.
void setAction(id control, std::size_t action);
std::size_t actionOf(id control);

} // namespace kestrune::mac
