// Whether the application is in the Dock.
#pragma once

#include "platform/Application.h"

namespace kestrune::gnustep {

void installActivationPolicy();

ActivationPolicy activationPolicy();

// An application is regular unless it or its Info.plist says otherwise.
void resetActivationPolicy();

} // namespace kestrune::gnustep
