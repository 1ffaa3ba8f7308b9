// Recordings: what is accepted keeps the rules that a player relies on, and its rows read back equal when
// they are written; what is refused is refused at a line of the input.
#include "replay/recording/RecordingReader.h"
#include "replay/recording/RecordingWriter.h"
#include "replay/recording/RowReader.h"
#include "tests/fuzz/Fuzzer.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace kestrune {
namespace {

using namespace replay;

constexpr std::string_view Place = "fuzz.csv:";

std::vector<RecordingRow> rowsOf(const std::string& text) {
    std::istringstream input(text);
    RowReader reader(input, "fuzz.csv");
    std::vector<RecordingRow> rows;
    while (auto row = reader.next()) {
        rows.push_back(*std::move(row));
    }
    require(!reader.error(), "the rows of an accepted recording are accepted");
    return rows;
}

void checkError(const std::string& message, const std::string& text) {
    requireOneLine(message, Place);
    std::size_t line = 0;
    const char* const end = message.data() + message.size();
    const auto result = std::from_chars(message.data() + Place.size(), end, line);
    require(result.ec == std::errc() && std::string_view(result.ptr, end).starts_with(": "),
            "an error names a line");
    // Something that is missing at the end is reported there, behind the last line feed.
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    require(line >= 1 && line <= lines + 1, "the line is one of the input");
}

void checkRecording(const Recording& recording, const std::vector<RecordingRow>& rows) {
    const SkippedRows& skipped = recording.skipped;
    require(recording.motions.size() + skipped.buttons + skipped.scrolling + skipped.unknownPositions ==
                rows.size(),
            "every row is a motion or counted as skipped");
    require(!recording.motions.empty(), "a recording has motions");
    auto latest = recording.motions.front().time;
    for (const Motion& motion : recording.motions) {
        require(motion.position.x >= 0 && motion.position.y >= 0, "positions are on the display");
        require(motion.position.x < recording.size.width && motion.position.y < recording.size.height,
                "positions are within the recording's size");
        require(motion.time >= latest, "time does not run backwards");
        require(motion.time.count() >= 0, "time starts at the recorder's zero");
        latest = motion.time;
    }
    require(recording.size.width <= 65536 && recording.size.height <= 65536, "the size has 16 bits");
}

void check(const std::string& text) {
    std::istringstream input(text);
    const ReadResult result = readRecording(input, "fuzz.csv");
    if (const auto* error = std::get_if<InputError>(&result)) {
        checkError(error->message, text);
        return;
    }
    const std::vector<RecordingRow> rows = rowsOf(text);
    const auto& recording = std::get<Recording>(result);
    checkRecording(recording, rows);

    std::ostringstream output;
    writeRecording(output, rows);
    require(rowsOf(output.str()) == rows, "rows that were written read back equal");
    std::istringstream written(output.str());
    const ReadResult again = readRecording(written, "fuzz.csv");
    require(std::holds_alternative<Recording>(again), "a recording that was written is read again");
    require(std::get<Recording>(again) == recording, "a recording that was written reads back equal");
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kestrune::check(kestrune::asText(data, size));
    return 0;
}
