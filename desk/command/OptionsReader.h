// Reads the command line.
#pragma once

#include "desk/command/Options.h"
#include "desk/recording/InputError.h"

#include <span>
#include <string_view>
#include <variant>

namespace kestrune::desk {

// `arguments` are those after the program's name. Each option takes its value from the next argument; an
// option that stands twice is refused. The error names the option and what was expected.
std::variant<Options, InputError> readOptions(std::span<const std::string_view> arguments);

} // namespace kestrune::desk
