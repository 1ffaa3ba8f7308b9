#include "sim/services/Journal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace kestrune::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <typename... Parts>
std::string lineOf(const Parts&... parts) {
    Journal journal(true);
    journal.record(parts...);
    return journal.lines().at(0);
}

TEST(Journal, JoinsThePartsOfALine) {
    EXPECT_EQ(lineOf("call(", std::string("text"), ", ", 7, ", ", true, ", ", Point{1, 2.5}, ")"),
              "call(text, 7, true, (1, 2.5))");
}

TEST(Journal, WritesTruthValuesAsWords) {
    EXPECT_EQ(lineOf(true), "true");
    EXPECT_EQ(lineOf(false), "false");
}

TEST(Journal, WritesWholeNumbersInFull) {
    EXPECT_EQ(lineOf(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(lineOf(std::uint32_t{0xFFFFFFFF}), "4294967295");
}

TEST(Journal, WritesNumbersInTheShortestFormThatReadsBackEqual) {
    EXPECT_EQ(lineOf(0.1), "0.1");
    EXPECT_EQ(lineOf(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(lineOf(981.99609375), "981.99609375");
    EXPECT_EQ(lineOf(-0.0), "-0");
    EXPECT_EQ(lineOf(100.0), "100");
}

TEST(Journal, KeepsLinesInOrder) {
    Journal journal(true);
    journal.record("first");
    journal.record("second");
    EXPECT_THAT(journal.lines(), ElementsAre("first", "second"));
}

TEST(Journal, KeepsNothingWhileRecordingIsOff) {
    Journal journal(false);
    EXPECT_FALSE(journal.isRecording());
    journal.record("unheard");
    EXPECT_THAT(journal.lines(), IsEmpty());
    journal.setRecording(true);
    EXPECT_TRUE(journal.isRecording());
    journal.record("heard");
    journal.setRecording(false);
    journal.record("unheard");
    EXPECT_THAT(journal.lines(), ElementsAre("heard"));
}

TEST(Journal, StartsAgainEmptyOnceTaken) {
    Journal journal(true);
    journal.record("first");
    EXPECT_THAT(journal.take(), ElementsAre("first"));
    EXPECT_THAT(journal.lines(), IsEmpty());
    journal.record("second");
    EXPECT_THAT(journal.take(), ElementsAre("second"));
}

} // namespace
} // namespace kestrune::sim
