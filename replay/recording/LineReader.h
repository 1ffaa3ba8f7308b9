// Reads text line by line with bounded memory, whatever the input is.
#pragma once

#include <array>
#include <cstddef>
#include <istream>
#include <string_view>

namespace kestrune::replay {

class LineReader {
public:
    // In bytes, without the line feed. Rows of real recordings have about 60.
    static constexpr std::size_t LongestLine = 1024;

    enum class Outcome { line, lineTooLong, end, readFailed };

    // The stream is borrowed and must be open in binary mode.
    explicit LineReader(std::istream& input) : input_(input) {}

    // Reads the next line. After any outcome but `line`, reading is over.
    Outcome next();

    // The line without its line end, LF or CRLF, borrowed until the next call of `next`; of a line that is
    // too long, its beginning.
    std::string_view line() const { return line_; }

    // Counts from 1: the line that `next` read last, or the one after the last at the end of the input.
    std::size_t lineNumber() const { return lineNumber_; }

private:
    std::istream& input_;
    std::array<char, LongestLine + 1> buffer_{};
    std::string_view line_;
    std::size_t lineNumber_ = 0;
};

} // namespace kestrune::replay
