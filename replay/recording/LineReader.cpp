#include "replay/recording/LineReader.h"

namespace kestrune::replay {

LineReader::Outcome LineReader::next() {
    ++lineNumber_;
    input_.getline(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    auto length = static_cast<std::size_t>(input_.gcount());
    if (input_.bad())
        return Outcome::readFailed;
    if (input_.fail() && length == 0)
        return Outcome::end;

    const bool fits = !input_.fail();
    const bool endsWithLineFeed = fits && !input_.eof();
    if (endsWithLineFeed)
        --length; // The extracted line feed counts but is not stored.
    line_ = std::string_view(buffer_.data(), length);
    if (endsWithLineFeed && line_.ends_with('\r'))
        line_.remove_suffix(1);
    return fits ? Outcome::line : Outcome::lineTooLong;
}

} // namespace kestrune::replay
