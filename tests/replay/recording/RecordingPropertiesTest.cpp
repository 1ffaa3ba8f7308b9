#include "replay/recording/RecordingReader.h"
#include "replay/recording/RecordingWriter.h"
#include "replay/recording/RowReader.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <sstream>

namespace kestrune::replay {
namespace {

const RecordingRow PlainMove{0, 0, "NoButton", RowState::move, {1, 2}};

rc::Gen<double> numberUpTo(std::uint64_t most) {
    return rc::gen::oneOf(
        rc::gen::map(rc::gen::inRange<std::uint64_t>(0, most + 1),
                     [](std::uint64_t whole) { return static_cast<double>(whole); }),
        rc::gen::map(rc::gen::inRange<std::uint64_t>(0, 1ULL << 53U), [most](std::uint64_t fraction) {
            return static_cast<double>(fraction) * 0x1p-53 * static_cast<double>(most);
        }));
}

rc::Gen<RecordingRow> anyRow() {
    const rc::Gen<Point> position = rc::gen::build<Point>(
        rc::gen::set(&Point::x, rc::gen::oneOf(numberUpTo(65535), rc::gen::just(UnknownCoordinate))),
        rc::gen::set(&Point::y, numberUpTo(65535)));
    return rc::gen::build<RecordingRow>(
        rc::gen::set(&RecordingRow::recordTime, numberUpTo(9'000'000'000)),
        rc::gen::set(&RecordingRow::clientTime, numberUpTo(9'000'000'000)),
        rc::gen::set(
            &RecordingRow::button,
            rc::gen::element<std::string>("NoButton", "Left", "Right", "Middle", "Scroll", "X \xC3\xA4\"")),
        rc::gen::set(&RecordingRow::state,
                     rc::gen::element(RowState::move, RowState::drag, RowState::pressed, RowState::released,
                                      RowState::down, RowState::up)),
        rc::gen::set(&RecordingRow::position, position));
}

std::string textOf(const std::vector<RecordingRow>& rows) {
    std::ostringstream output;
    writeRecording(output, rows);
    return output.str();
}

ReadResult recordingOf(const std::string& text) {
    std::istringstream input(text);
    return readRecording(input, "walk.csv");
}

// The rows up to the first error, if there is one.
std::vector<RecordingRow> rowsIn(const std::string& text, std::optional<InputError>* error = nullptr) {
    std::istringstream input(text);
    RowReader reader(input, "walk.csv");
    std::vector<RecordingRow> rows;
    while (auto row = reader.next())
        rows.push_back(*std::move(row));
    if (error != nullptr)
        *error = reader.error();
    return rows;
}

// Whatever the text is: it is refused with one short line, or it means the same after it is written again.
void checkAnyText(const std::string& text) {
    const ReadResult result = recordingOf(text);
    if (const auto* refusal = std::get_if<InputError>(&result)) {
        RC_ASSERT(refusal->message.starts_with("walk.csv:"));
        RC_ASSERT(refusal->message.size() < 250U);
        RC_ASSERT(std::all_of(refusal->message.begin(), refusal->message.end(),
                              [](char character) { return character >= ' ' && character <= '~'; }));
        return;
    }
    RC_ASSERT(!std::get<Recording>(result).motions.empty());
    RC_ASSERT(recordingOf(textOf(rowsIn(text))) == result);
}

RC_GTEST_PROP(RecordingProperties, WritingAndReadingGivesTheSameRows, ()) {
    const auto rows = *rc::gen::container<std::vector<RecordingRow>>(anyRow());

    std::optional<InputError> error;
    const std::vector<RecordingRow> read = rowsIn(textOf(rows), &error);

    RC_ASSERT(!error.has_value());
    RC_ASSERT(read == rows);
}

RC_GTEST_PROP(RecordingProperties, EveryRowIsAMotionOrCountedAsSkipped, ()) {
    auto rows = *rc::gen::container<std::vector<RecordingRow>>(anyRow());
    rows.push_back(PlainMove);

    const ReadResult result = recordingOf(textOf(rows));

    RC_ASSERT(std::holds_alternative<Recording>(result));
    const auto& recording = std::get<Recording>(result);
    const SkippedRows& skipped = recording.skipped;
    RC_ASSERT(recording.motions.size() + skipped.buttons + skipped.scrolling + skipped.unknownPositions ==
              rows.size());
    RC_ASSERT(std::is_sorted(recording.motions.begin(), recording.motions.end(),
                             [](const Motion& one, const Motion& other) { return one.time < other.time; }));
    for (const Motion& motion : recording.motions)
        RC_ASSERT(Rect(0, 0, recording.size.width, recording.size.height).contains(motion.position));
}

RC_GTEST_PROP(RecordingProperties, RandomBytesAreRefusedOrRoundTrip, (const std::string& bytes)) {
    checkAnyText(bytes);
    checkAnyText(std::string(RecordingHeader) + "\n" + bytes);
}

RC_GTEST_PROP(RecordingProperties, DamagedRecordingsAreRefusedOrRoundTrip, ()) {
    auto rows = *rc::gen::container<std::vector<RecordingRow>>(anyRow());
    rows.push_back(PlainMove);
    std::string text = textOf(rows);
    const int damages = *rc::gen::inRange(0, 4);
    for (int count = 0; count < damages; ++count) {
        const auto place = *rc::gen::inRange<std::size_t>(0, text.size() + 1);
        const auto length = std::min(*rc::gen::inRange<std::size_t>(0, 3), text.size() - place);
        const auto inserted =
            *rc::gen::oneOf(rc::gen::element<std::string>("", ",", "\n", "\r\n", "-", ".", "e9", "inf", "nan",
                                                          "7", "\xEF\xBB\xBF"),
                            rc::gen::string<std::string>());
        text.replace(place, length, inserted);
    }
    checkAnyText(text);
}

} // namespace
} // namespace kestrune::replay
