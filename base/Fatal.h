// Programming errors stop the process on purpose, with a message that says which assumption was broken.
#pragma once

#include <string_view>

namespace kestrune {

// Writes "Fatal error: <message>" to standard error and aborts. Callable from any thread; never returns.
[[noreturn]] void fatal(std::string_view message) noexcept;

// The same with the place of the mistake before it: "<sourcePath>: Fatal error: <message>".
[[noreturn]] void fatal(std::string_view message, std::string_view sourcePath) noexcept;

} // namespace kestrune
