// Which version of the application this is.
#pragma once

#include <string>

namespace kestrune {

// Version and build from the Info.plist, as in "2.1 (57)"; "?" for what is not there as a text. Main thread.
std::string appVersionString();

} // namespace kestrune
