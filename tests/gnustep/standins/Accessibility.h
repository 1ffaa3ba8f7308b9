// What VoiceOver is told of views.
#pragma once

#include "tests/mac/Accessibility.h"

namespace kestrune::gnustep {

using namespace native;

void installAccessibility();

} // namespace kestrune::gnustep
