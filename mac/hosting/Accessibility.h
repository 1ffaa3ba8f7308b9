// What VoiceOver is told of the views.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <string_view>

namespace kestrune::mac {

// A control with a cell shows that in its own place, so each of these tells the view and its cell, if it has
// one.
void setAccessibilityElement(id view, bool isElement);
void setAccessibilityLabel(id view, std::string_view label);

} // namespace kestrune::mac
