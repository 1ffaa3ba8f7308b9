// The unified system log.
//
// Source: os/log.h (os_log_create, os_log_debug, os_log_info, os_log_error).
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace kestrune {

// A text among the program's own, of a length that the compiler knows.
template <std::size_t Size>
struct LogText {
    char characters[Size]{};

    // NOLINTNEXTLINE(google-explicit-constructor): literals are meant
    consteval LogText(const char (&text)[Size]) { std::copy_n(text, Size, characters); }

    // Wherever there is a percent sign, the log looks for an argument.
    constexpr std::ptrdiff_t percentSigns() const { return std::count(characters, characters + Size, '%'); }

    constexpr bool contains(std::string_view text) const {
        return std::string_view(characters, Size).find(text) != std::string_view::npos;
    }
};

// Where the log looks for formats, of which it keeps no more than their place in the program's image. The
// name is the Mac's; elsewhere it means nothing.
template <LogText Text>
struct StoredLogText {
    [[gnu::section("__TEXT,__oslogstring"), clang::internal_linkage]] static constexpr LogText Value = Text;
};

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
