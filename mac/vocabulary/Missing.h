// What the platform has not at run time, or has otherwise. The application goes on, as far as it can.
#pragma once

#include "platform/Log.h"

#include <string>

namespace kestrune::mac {

// One error in the log for each text. On the main thread. A format lies in the program once for each file
// that has it.
void logOnce(LogFormat format, const std::string& text);
void logMissingClass(const std::string& name);
void logMissingMethod(const std::string& name);

} // namespace kestrune::mac
