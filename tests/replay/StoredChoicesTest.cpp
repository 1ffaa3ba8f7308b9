#include "replay/StoredChoices.h"

#include <gtest/gtest.h>

namespace kestrune::replay {
namespace {

// The entries are spelled out, as the names are what is to be proved.
TEST(StoredChoices, ReadWhatTheApplicationStores) {
    sim::DefaultsDomain defaults(
        {{"isEnabled", {false}}, {"pinnedScreenUUID", {std::string("ABC")}}, {"blockMargin", {7.5}}});
    const StoredChoices choices(defaults);
    EXPECT_FALSE(choices.isEnabled());
    EXPECT_EQ(choices.pinnedScreenUUID(), "ABC");
    EXPECT_EQ(choices.blockMargin(), 7.5);
}

TEST(StoredChoices, ReadAnEmptyDomainAsTheApplicationDoes) {
    sim::DefaultsDomain defaults({});
    const StoredChoices choices(defaults);
    EXPECT_TRUE(choices.isEnabled());
    EXPECT_EQ(choices.pinnedScreenUUID(), std::nullopt);
    EXPECT_EQ(choices.blockMargin(), 4);
}

TEST(StoredChoices, TakeAMarginThatIsNotGreaterThanZeroForTheUsualOne) {
    sim::DefaultsDomain defaults({{"blockMargin", {-3.0}}});
    StoredChoices choices(defaults);
    EXPECT_EQ(choices.blockMargin(), 4);
    choices.setBlockMargin(0);
    EXPECT_EQ(choices.blockMargin(), 4);
    choices.setBlockMargin(0.5);
    EXPECT_EQ(choices.blockMargin(), 0.5);
    EXPECT_EQ(defaults.find("blockMargin")->asDouble(), 0.5);
}

TEST(StoredChoices, AreStoredForASessionToStartWith) {
    sim::PropertyListDictionary defaults = {{"isEnabled", {true}}, {"hasCompletedOnboarding", {true}}};
    store({.isEnabled = false, .pinnedScreenUUID = "ABC", .blockMargin = 12}, defaults);
    const sim::PropertyListDictionary expected = {{"isEnabled", {false}},
                                                  {"pinnedScreenUUID", {std::string("ABC")}},
                                                  {"blockMargin", {12.0}},
                                                  {"hasCompletedOnboarding", {true}}};
    EXPECT_EQ(defaults, expected);
}

TEST(StoredChoices, LeaveWhatNobodyChooses) {
    sim::PropertyListDictionary defaults = {{"isEnabled", {true}}};
    store({}, defaults);
    EXPECT_EQ(defaults, (sim::PropertyListDictionary{{"isEnabled", {true}}}));
}

} // namespace
} // namespace kestrune::replay
