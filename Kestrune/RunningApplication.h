// The shared application, for code that runs inside it.
#pragma once

#include "platform/Application.h"

namespace kestrune {

// NSApp; stops the process when nobody has made the shared application. Main thread.
Application runningApplication();

} // namespace kestrune
