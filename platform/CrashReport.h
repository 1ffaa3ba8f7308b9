// What the system's crash report says beside the stack.
//
// Source: crashreporter_annotations_t in the sources of the Swift runtime, which writes its own fatal errors
// there. A report shows the message under "Application Specific Information".
#pragma once

#include <string>

namespace kestrune {

// The report of a crash that follows has this message, and none that was set before. Callable from any
// thread, but not from two at a time.
void setCrashReportMessage(const std::string& message);

} // namespace kestrune
