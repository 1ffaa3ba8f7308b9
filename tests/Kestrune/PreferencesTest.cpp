#include "tests/Kestrune/GuardFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAre;

class PreferencesTest : public GuardFixture {};

TEST_F(PreferencesTest, OfAFreshInstallationHaveTheirDefaults) {
    UserDefaults& defaults = preferences->defaults();
    EXPECT_TRUE(preferences->isEnabled());
    EXPECT_FALSE(defaults.boolForKey(Preferences::HasCompletedOnboardingKey));
    EXPECT_EQ(defaults.stringForKey(Preferences::PinnedScreenUUIDKey), std::nullopt);
    EXPECT_EQ(defaults.doubleForKey(Preferences::BlockMarginKey), 0);
    EXPECT_TRUE(session.defaults().entries().empty());
}

TEST_F(PreferencesTest, UseTheKeysThatUsersKnow) {
    EXPECT_EQ(Preferences::IsEnabledKey.name(), "isEnabled");
    EXPECT_EQ(Preferences::PinnedScreenUUIDKey.name(), "pinnedScreenUUID");
    EXPECT_EQ(Preferences::HasCompletedOnboardingKey.name(), "hasCompletedOnboarding");
    EXPECT_EQ(Preferences::BlockMarginKey.name(), "blockMargin");
}

TEST_F(PreferencesTest, LookForAStoredObjectAndThenConvertItInOrder) {
    EXPECT_TRUE(preferences->isEnabled());
    EXPECT_THAT(session.journal().take(), ElementsAre("-[NSUserDefaults objectForKey:] isEnabled"));

    store(entries::IsEnabled, sim::PropertyList{false});
    EXPECT_FALSE(preferences->isEnabled());
    EXPECT_THAT(session.journal().take(), ElementsAre("-[NSUserDefaults objectForKey:] isEnabled",
                                                      "-[NSUserDefaults boolForKey:] isEnabled"));
}

TEST_F(PreferencesTest, ConvertWhateverIsStoredUnderIsEnabled) {
    const std::vector<std::pair<sim::PropertyList, bool>> conversions = {
        {{true}, true},
        {{false}, false},
        {{std::int64_t{0}}, false},
        {{std::int64_t{2}}, true},
        {{0.0}, false},
        {{0.5}, true},
        {{std::string("YES")}, true},
        {{std::string("no")}, false},
        {{std::string("")}, false},
        {{sim::PropertyList::Array()}, false},
        {{sim::PropertyList::Date{"2026-01-01T00:00:00Z"}}, false},
    };
    for (const auto& [value, expected] : conversions) {
        store(entries::IsEnabled, value);
        EXPECT_EQ(preferences->isEnabled(), expected) << value.asString().value_or("no string form");
    }
}

TEST_F(PreferencesTest, SeeEveryChangeAtTheNextRead) {
    store(entries::IsEnabled, sim::PropertyList{false});
    EXPECT_FALSE(preferences->isEnabled());
    store(entries::IsEnabled, std::nullopt);
    EXPECT_TRUE(preferences->isEnabled());
}

} // namespace
} // namespace kestrune
