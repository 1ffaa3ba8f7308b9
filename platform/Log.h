// The unified system log.
//
// Source: os/log.h (os_log_create, os_log_debug, os_log_info, os_log_error).
#pragma once

#include "base/LogText.h"

#include <memory>
#include <string_view>

namespace kestrune {

// A message without arguments: a format that is the message itself, by which it is found in the log.
class LogMessage {
public:
    template <LogText Text>
    static consteval LogMessage of() {
        static_assert(Text.percentSigns() == 0, "it has no argument");
        return LogMessage(StoredLogText<Text>::Value.characters);
    }

    constexpr const char* text() const { return text_; }

private:
    consteval explicit LogMessage(const char* text) : text_(text) {}

    const char* text_;
};

// The format of a message that holds one text: printf's, with "%{public}s" where the text goes.
class LogFormat {
public:
    static constexpr std::string_view Placeholder = "%{public}s";

    template <LogText Text>
    static consteval LogFormat of() {
        static_assert(Text.percentSigns() == 1 && Text.contains(Placeholder), "it has one public string");
        return LogFormat(StoredLogText<Text>::Value.characters);
    }

    constexpr const char* text() const { return text_; }

private:
    consteval explicit LogFormat(const char* text) : text_(text) {}

    const char* text_;
};

// A log channel. Callable from any thread. Debug and info messages are not kept by default; error messages
// are.
class Log {
public:
    // os_log_create: a channel for one category of one subsystem.
    Log(std::string_view subsystem, std::string_view category);

    void debug(LogMessage message) const;
    void error(LogMessage message) const;

    // Each logs a message with a public string in it.
    void info(LogFormat format, std::string_view publicString) const;
    void error(LogFormat format, std::string_view publicString) const;

private:
    struct State;
    std::shared_ptr<const State> state_;
};

} // namespace kestrune
