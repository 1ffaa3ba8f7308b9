// What the user is told about input that cannot be used: one line that names the place and what was expected
// there.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrune::replay {

struct InputError {
    // One line without a line end, for example: walk.csv:17: expected a number for x, found "abc"
    std::string message;

    friend bool operator==(const InputError&, const InputError&) = default;
};

// A line of a file, counted from 1. The name is borrowed.
struct FileLine {
    std::string_view file;
    std::size_t line;
};

// `what` follows "file:line: ".
InputError inputError(FileLine where, std::string_view what);

// `what` follows "file: ", for errors that concern the whole file.
InputError inputError(std::string_view file, std::string_view what);

// The text with its letters in any language; only what would break the line is escaped, as \xNN.
std::string onOneLine(std::string_view text);

// The text in double quotes, at most 40 characters of it; three dots follow the closing quote when it was
// longer. Everything but printable ASCII appears as \xNN, so that no input can break the line or drive a
// terminal.
std::string inQuotes(std::string_view text);

} // namespace kestrune::replay
