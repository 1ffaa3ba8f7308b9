// The platform's push button and switch, as they are made and measured.
#pragma once

#include "mac/objc/Retained.h"

namespace kestrune::mac {

// Without a title.
Retained newPushButton();

Retained newSwitch();

} // namespace kestrune::mac
