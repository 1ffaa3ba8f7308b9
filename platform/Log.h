// The unified system log.
//
// Source: os/log.h (os_log_create, os_log_debug, os_log_info, os_log_error).
#pragma once

#include <memory>
#include <string_view>

namespace kestrune {

// The format of a message that holds one text: printf's, with "%{public}s" where the text goes. Static
// storage, as the log keeps a reference to it.
class LogFormat {
public:
    consteval explicit LogFormat(const char* format) : format_(format) {}

    constexpr const char* text() const { return format_; }

private:
    const char* format_;
};

// A log channel. Callable from any thread. Debug and info messages are not kept by default; error messages
// are.
class Log {
public:
    // os_log_create: a channel for one category of one subsystem.
    Log(std::string_view subsystem, std::string_view category);

    // Each logs a fixed message as a public string.
    void debug(std::string_view message) const;
    void error(std::string_view message) const;

    // Each logs a message with a public string in it.
    void info(LogFormat format, std::string_view publicString) const;
    void error(LogFormat format, std::string_view publicString) const;

private:
    struct State;
    std::shared_ptr<const State> state_;
};

} // namespace kestrune
