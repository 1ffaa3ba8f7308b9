// What VoiceOver is told of views.
#pragma once

#include "tests/mac/Accessibility.h"

namespace kestrune::gnustep {

using native::accessibilityLabel;
using native::isAccessibilityElement;

void installAccessibility();

} // namespace kestrune::gnustep
