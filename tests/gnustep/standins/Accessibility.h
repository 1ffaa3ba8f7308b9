// What VoiceOver is told of views.
#pragma once

#include "mac/objc/Runtime.h"

#include <string>

namespace kestrune::gnustep {

void installAccessibility();

// Empty when nothing was set.
std::string accessibilityLabel(id view);

// Unless it was said otherwise, controls are and other views are not.
bool isAccessibilityElement(id view);

} // namespace kestrune::gnustep
