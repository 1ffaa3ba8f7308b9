// What differs when the tests for a Mac are tried out elsewhere.
#pragma once

#include <functional>
#include <string>

namespace kestrune::native {

// Done before the first world of a process; nothing on a Mac.
std::function<void()>& preparation();

// The property list in which the system tells its version.
std::string& systemVersionFile();

} // namespace kestrune::native
