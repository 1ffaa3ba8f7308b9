// Programming errors stop the process on purpose, with a message that says which assumption was broken.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kestrune {

// Writes "Fatal error: <message>" to standard error, tells the reporter and aborts. Callable from any thread;
// never returns.
[[noreturn]] void fatal(std::string_view message) noexcept;

// The same with the place of the mistake before it: "<sourcePath>: Fatal error: <message>".
[[noreturn]] void fatal(std::string_view message, std::string_view sourcePath) noexcept;

// Is given what is written, without the end of the line, on the thread that is about to abort.
using FatalErrorReporter = std::function<void(const std::string& line)>;

// Who else is told of a fatal error; nobody, until this is called. What is fatal meanwhile is told no more.
// To be called before there is another thread.
void setFatalErrorReporter(FatalErrorReporter reporter);

} // namespace kestrune
