// What the platform has not at run time. The application goes on without it, as far as it can.
#pragma once

#include "platform/Log.h"

#include <string>

namespace kestrune::mac {

// One error in the log for each name. On the main thread.
void logMissing(LogFormat format, const std::string& name);

} // namespace kestrune::mac
