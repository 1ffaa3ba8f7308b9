#include "tests/gnustep/harness/KnownDifferences.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrune::gnustep {
namespace {

constexpr KnownDifference Differences[] = {
    {"Suite.Always", "", "", "in every release"},
    {"Suite.Between", "", "", "in some", 29, 31},
    {"Suite.Once", "", "", "at first", 0, 29},
    {"Suite.Once", "", "", "later", 32},
    {"Values/Suite.OfEach/", "", "", "for each value", 30},
};

// None is the empty text.
std::string explanationOf(std::string_view test, int release) {
    const KnownDifference* const known = knownDifference(Differences, test, release);
    return known != nullptr ? known->explanation : "";
}

TEST(KnownDifferences, AreOfEveryReleaseUnlessTheyNameSome) {
    for (const int release : {0, 29, 32, 100}) {
        EXPECT_EQ(explanationOf("Suite.Always", release), "in every release") << release;
    }
}

TEST(KnownDifferences, HoldFromTheirFirstReleaseUntilTheirLast) {
    EXPECT_EQ(explanationOf("Suite.Between", 28), "");
    EXPECT_EQ(explanationOf("Suite.Between", 29), "in some");
    EXPECT_EQ(explanationOf("Suite.Between", 31), "in some");
    EXPECT_EQ(explanationOf("Suite.Between", 32), "");
}

TEST(KnownDifferences, OfOneTestMayBeOthersInOtherReleases) {
    EXPECT_EQ(explanationOf("Suite.Once", 29), "at first");
    EXPECT_EQ(explanationOf("Suite.Once", 30), "");
    EXPECT_EQ(explanationOf("Suite.Once", 32), "later");
}

TEST(KnownDifferences, AreOfTheTestsWhoseNameTheyHaveOrBegin) {
    EXPECT_EQ(explanationOf("Values/Suite.OfEach/Zero", 30), "for each value");
    EXPECT_EQ(explanationOf("Values/Suite.OfEach/Zero", 29), "");
    EXPECT_EQ(explanationOf("Values/Suite.OfEach", 30), "");
    EXPECT_EQ(explanationOf("Suite.AlwaysElsewhere", 30), "");
}

} // namespace
} // namespace kestrune::gnustep
