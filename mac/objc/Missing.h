// What the platform has not at run time, or has otherwise. The application goes on, as far as it can.
#pragma once

#include "platform/Log.h"

#include <string>

namespace kestrune::mac {

// One error in the log for each text. On the main thread.
void logOnce(LogFormat format, const std::string& text);

} // namespace kestrune::mac
