#include "replay/recording/MotionGenerator.h"

#include "replay/recording/RecordingWriter.h"
#include "tests/replay/recording/MadeUpRecording.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace kestrune::replay {
namespace {

constexpr std::size_t ManyRows = 20'000;

std::string writtenText(const MotionGeneratorOptions& options) {
    std::ostringstream output;
    writeRecording(output, generateRows(options));
    return output.str();
}

// FNV-1a, to compare a long text with one number.
std::uint64_t fingerprint(const std::string& text) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char character : text)
        hash = (hash ^ static_cast<unsigned char>(character)) * 1099511628211U;
    return hash;
}

std::size_t countOf(RowState state, const std::vector<RecordingRow>& rows) {
    std::size_t count = 0;
    for (const RecordingRow& row : rows)
        count += row.state == state ? 1 : 0;
    return count;
}

std::size_t countOf(EventType type, const Recording& recording) {
    std::size_t count = 0;
    for (const Motion& motion : recording.motions)
        count += motion.type == type ? 1 : 0;
    return count;
}

TEST(MotionGenerator, GivesTheSameRowsOnEveryPlatform) {
    EXPECT_EQ(fingerprint(writtenText({1, 1512, 982, 5000})), 8712129390689920668U);
}

TEST(MotionGenerator, GivesOtherRowsForAnotherSeed) {
    EXPECT_NE(writtenText({1, 1512, 982, 100}), writtenText({2, 1512, 982, 100}));
}

TEST(MotionGenerator, GivesAsManyRowsAsAskedFor) {
    for (const std::size_t count : {1U, 2U, 17U, 1000U})
        EXPECT_EQ(generateRows({3, 1512, 982, count}).size(), count);
}

TEST(MotionGenerator, StartsTheSameWhateverTheLength) {
    const std::vector<RecordingRow> longer = generateRows({5, 1512, 982, 500});
    const std::vector<RecordingRow> shorter = generateRows({5, 1512, 982, 100});

    EXPECT_TRUE(std::equal(shorter.begin(), shorter.end(), longer.begin()));
}

TEST(MotionGenerator, LetsTheReaderFindTheSizeOfTheDisplay) {
    EXPECT_EQ(madeUpRecording({6, 1280, 800, 1}).size, (Size{1280, 800}));
    EXPECT_EQ(madeUpRecording({6, 1, 1, 500}).size, (Size{1, 1}));
    EXPECT_EQ(madeUpRecording({6, 65535, 65535, 500}).size, (Size{65535, 65535}));
}

TEST(MotionGenerator, ShowsEveryKindOfRow) {
    const MotionGeneratorOptions options{7, 1512, 982, ManyRows};
    const std::vector<RecordingRow> rows = generateRows(options);
    for (const RowState state : {RowState::pressed, RowState::released, RowState::down, RowState::up})
        EXPECT_GE(countOf(state, rows), 20U) << stateName(state);

    const Recording recording = madeUpRecording(options);
    for (const EventType type : {EventType::mouseMoved, EventType::leftMouseDragged,
                                 EventType::rightMouseDragged, EventType::otherMouseDragged})
        EXPECT_GE(countOf(type, recording), 50U) << static_cast<std::uint32_t>(type);
}

TEST(MotionGenerator, DragsOnlyWhileAButtonIsDown) {
    bool isDown = false;
    for (const RecordingRow& row : generateRows({8, 1512, 982, ManyRows})) {
        if (row.state == RowState::pressed || row.state == RowState::released) {
            EXPECT_NE(isDown, row.state == RowState::pressed);
            isDown = row.state == RowState::pressed;
        } else {
            EXPECT_EQ(isDown, row.state == RowState::drag);
        }
    }
}

// Number of times that the pointer stays for 150 ms or longer where `isThere` says.
template <class Predicate>
int stays(const std::vector<RecordingRow>& rows, Predicate isThere) {
    int count = 0;
    const RecordingRow* arrival = nullptr;
    for (const RecordingRow& row : rows) {
        const bool isInside = row.state == RowState::move && isThere(row.position);
        if (!isInside && arrival != nullptr && row.clientTime - arrival->clientTime >= 0.15)
            ++count;
        if (!isInside)
            arrival = nullptr;
        else if (arrival == nullptr)
            arrival = &row;
    }
    return count;
}

TEST(MotionGenerator, PushesAgainstEveryEdgeAndMostOftenTheBottomOne) {
    const std::vector<RecordingRow> rows = generateRows({9, 1512, 982, ManyRows});

    const int bottom = stays(rows, [](Point point) { return point.y == 981; });
    const int top = stays(rows, [](Point point) { return point.y == 0; });
    const int left = stays(rows, [](Point point) { return point.x == 0; });
    const int right = stays(rows, [](Point point) { return point.x == 1511; });

    EXPECT_GE(top, 2);
    EXPECT_GE(left, 2);
    EXPECT_GE(right, 2);
    EXPECT_GT(bottom, top + left + right);
}

TEST(MotionGenerator, NoticesOptionsOutOfRange) {
    const std::string size = "Fatal error: A generated recording needs a display of 1 to 65535 pixels";
    EXPECT_DEATH(generateRows({1, 0, 10, 1}), size);
    EXPECT_DEATH(generateRows({1, 10, 65536, 1}), size);
    const std::string rows = "Fatal error: A generated recording needs at least one row";
    EXPECT_DEATH(generateRows({1, 10, 10, 0}), rows);
}

} // namespace
} // namespace kestrune::replay
