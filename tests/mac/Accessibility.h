// What VoiceOver is told of views.
#pragma once

#include "mac/vocabulary/Runtime.h"

#include <string>

namespace kestrune::native {

// Empty when nothing was set.
std::string accessibilityLabel(id view);

bool isAccessibilityElement(id view);

} // namespace kestrune::native
