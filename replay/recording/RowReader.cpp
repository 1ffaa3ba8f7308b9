#include "replay/recording/RowReader.h"

#include "base/Utf8.h"
#include "replay/recording/RowParser.h"

#include <variant>

namespace kestrune::replay {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string headerExpected() {
    return "expected the header \"" + std::string(RecordingHeader) + "\", found ";
}

} // namespace

std::optional<RecordingRow> RowReader::next() {
    if (isAtEnd_ || error_)
        return std::nullopt;
    if (isAtStart_ && !readHeader())
        return std::nullopt;
    if (!readLine())
        return std::nullopt;
    auto parsed = parseRow(lines_.line(), where());
    if (auto* row = std::get_if<RecordingRow>(&parsed))
        return std::move(*row);
    error_ = std::get<InputError>(std::move(parsed));
    return std::nullopt;
}

// False at the end of the input and on an error.
bool RowReader::readLine() {
    switch (lines_.next()) {
    case LineReader::Outcome::end:
        isAtEnd_ = true;
        return false;
    case LineReader::Outcome::readFailed:
        refuse("expected another line, but reading failed");
        return false;
    case LineReader::Outcome::lineTooLong:
        refuse("expected at most " + std::to_string(LineReader::LongestLine) +
               " bytes in a line, found more: " + inQuotes(lines_.line()));
        return false;
    case LineReader::Outcome::line:
        break;
    }
    if (lines_.line().find('\0') != std::string_view::npos) {
        refuse("expected text, found a NUL byte");
        return false;
    }
    if (const auto invalid = firstInvalidUtf8(lines_.line())) {
        refuse("expected UTF-8 text, found the byte " + inQuotes(lines_.line().substr(*invalid, 1)));
        return false;
    }
    return true;
}

bool RowReader::readHeader() {
    isAtStart_ = false;
    if (!readLine()) {
        if (isAtEnd_)
            refuse(headerExpected() + "an empty file");
        return false;
    }
    std::string_view header = lines_.line();
    if (header.starts_with(ByteOrderMark))
        header.remove_prefix(ByteOrderMark.size());
    if (header != RecordingHeader) {
        refuse(headerExpected() + inQuotes(header));
        return false;
    }
    return true;
}

} // namespace kestrune::replay
