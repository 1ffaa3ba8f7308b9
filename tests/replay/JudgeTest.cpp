#include "replay/Judge.h"

#include "tests/replay/TwoDisplays.h"

#include <gtest/gtest.h>

namespace kestrune::replay {
namespace {

bool violates(const JudgedDesk& desk, Point sent, Point delivered) {
    return violatesTheRule(desk, {EventType::mouseMoved, sent, delivered});
}

TEST(Judge, AcceptsAHeldPointer) {
    EXPECT_FALSE(violates(Desk, {2000, 1078}, {2000, 1075}));
    EXPECT_FALSE(violates(Desk, {2000, 1075}, {2000, 1075}));
    EXPECT_FALSE(violates(Desk, {2000, 500}, {2000, 500}));
}

TEST(Judge, RefusesAPointerInTheBand) {
    EXPECT_TRUE(violates(Desk, {2000, 1078}, {2000, 1078}));
    EXPECT_TRUE(violates(Desk, {2000, 1078}, {2000, 1075.5}));
    EXPECT_TRUE(violates(Desk, {2000, 1075.00390625}, {2000, 1075.00390625}));
}

TEST(Judge, RefusesAPointerThatWasMovedTooFarOrSideways) {
    EXPECT_TRUE(violates(Desk, {2000, 1078}, {2000, 1074}));
    EXPECT_TRUE(violates(Desk, {2000, 1078}, {2001, 1075}));
    EXPECT_TRUE(violates(Desk, {2000, 1078}, {2000, 281}));
}

TEST(Judge, RefusesAnyChangeWhereNothingMayChange) {
    EXPECT_TRUE(violates(Desk, {100, 1079}, {100, 1075}));
    EXPECT_TRUE(violates(Desk, {2000, 1074}, {2000, 1073}));
    EXPECT_TRUE(violates(Desk, {2000, 100}, {2000, 99}));
    EXPECT_FALSE(violates(Desk, {100, 1079}, {100, 1079}));
}

TEST(Judge, RefusesAnyChangeWithoutAGuardOrASecondDisplay) {
    JudgedDesk off = Desk;
    off.guardOn = false;
    EXPECT_TRUE(violates(off, {2000, 1078}, {2000, 1075}));
    EXPECT_FALSE(violates(off, {2000, 1078}, {2000, 1078}));
    const JudgedDesk alone{{{{0, 0, 1920, 1080}}}};
    EXPECT_TRUE(violates(alone, {100, 1078}, {100, 1075}));
}

TEST(Judge, KnowsTheDisplayThatIsTooShort) {
    const JudgedDesk sliver{{{{0, 0, 1920, 1080}, true}, {{1920, 100, 1000, 4}}}};
    EXPECT_FALSE(violates(sliver, {2000, 102}, {2000, 101}));
    EXPECT_TRUE(violates(sliver, {2000, 102}, {2000, 102}));
    EXPECT_TRUE(violates(sliver, {2000, 102}, {2000, 99}));
}

TEST(Judge, ForgivesTheLastDigits) { EXPECT_FALSE(violates(Desk, {2000, 1078}, {2000, 1075.0000000001})); }

} // namespace
} // namespace kestrune::replay
