// Reads the rows of a recording one after the other.
#pragma once

#include "replay/recording/InputError.h"
#include "replay/recording/LineReader.h"
#include "replay/recording/RecordingRow.h"

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <utility>

namespace kestrune::replay {

// The first line must be RecordingHeader; a UTF-8 byte order mark before it is accepted. Lines end with LF or
// CRLF, the last may end with the file. Memory use does not depend on the input.
class RowReader {
public:
    // The stream is borrowed and must be open in binary mode; `name` is what messages call it.
    RowReader(std::istream& input, std::string name) : lines_(input), name_(std::move(name)) {}

    // The next row; absent at the end of the input, and from the first error on.
    std::optional<RecordingRow> next();

    // Why there are no more rows; absent at the end of good input.
    const std::optional<InputError>& error() const { return error_; }

    // The line read last, or the one after the last at the end of the input.
    FileLine where() const { return {name_, lines_.lineNumber()}; }

private:
    bool readLine();
    bool readHeader();
    void refuse(std::string_view what) { error_ = inputError(where(), what); }

    LineReader lines_;
    std::string name_;
    std::optional<InputError> error_;
    bool isAtStart_ = true;
    bool isAtEnd_ = false;
};

} // namespace kestrune::replay
