// What is in the file of the application's defaults, as GNUstep's own tool reads it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::gnustep {

// The entry as `defaults read` prints it; absent when there is none. Has the application's defaults written
// first.
std::optional<std::string> savedDefault(std::string_view key);

} // namespace kestrune::gnustep
