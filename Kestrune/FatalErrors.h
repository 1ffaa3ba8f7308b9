// Where a fatal error is told of, beside standard error, which nobody sees of an application that the Finder
// opened.
#pragma once

namespace kestrune {

// From now on its line is also in the log, as an error, and in the system's crash report.
void reportFatalErrors();

} // namespace kestrune
