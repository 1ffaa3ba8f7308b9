#include "sim/services/Accessibility.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace kestrune::sim {
namespace {

struct State {
    const char* name;
    Permission permission;
    bool readsAsTrusted;
    bool allowsActiveTaps;
    bool isListed;
    bool isSwitchedOn;
    // What becomes of it.
    Permission whenListed;
    Permission whenFlipped;
    Permission whenRemoved;
};

void PrintTo(const State& state, std::ostream* output) { *output << state.name; }

std::string nameOfState(const testing::TestParamInfo<State>& state) { return state.param.name; }

class AccessibilityTest : public testing::TestWithParam<State> {};

TEST_P(AccessibilityTest, AnswersForAPermissionThatWasThereFromTheStart) {
    const Accessibility accessibility(GetParam().permission);
    EXPECT_EQ(accessibility.permission(), GetParam().permission);
    EXPECT_EQ(accessibility.readsAsTrusted(), GetParam().readsAsTrusted);
    EXPECT_EQ(accessibility.allowsActiveTaps(), GetParam().allowsActiveTaps);
}

TEST_P(AccessibilityTest, AnswersForAPermissionThatChanged) {
    Accessibility accessibility(Permission::granted);
    accessibility.setPermission(Permission::notListed);
    accessibility.setPermission(GetParam().permission);
    EXPECT_EQ(accessibility.readsAsTrusted(), GetParam().readsAsTrusted);
    EXPECT_EQ(accessibility.allowsActiveTaps(), GetParam().allowsActiveTaps);
}

TEST_P(AccessibilityTest, ShowsARowInThePane) {
    const Accessibility accessibility(GetParam().permission);
    EXPECT_EQ(accessibility.isListed(), GetParam().isListed);
    EXPECT_EQ(accessibility.isSwitchedOn(), GetParam().isSwitchedOn);
}

TEST_P(AccessibilityTest, ListsTheApplicationThatAsks) {
    Accessibility accessibility(GetParam().permission);
    accessibility.listApplication();
    EXPECT_EQ(accessibility.permission(), GetParam().whenListed);
    EXPECT_FALSE(accessibility.isDialogShown());
    EXPECT_FALSE(accessibility.isPaneShown());
}

TEST_P(AccessibilityTest, AsksTheUserInADialog) {
    Accessibility accessibility(GetParam().permission);
    accessibility.askUser();
    EXPECT_EQ(accessibility.permission(), GetParam().whenListed);
    EXPECT_TRUE(accessibility.isDialogShown());
    EXPECT_FALSE(accessibility.isPaneShown());
}

TEST_P(AccessibilityTest, FollowsTheSwitchOfTheRow) {
    Accessibility accessibility(GetParam().permission);
    accessibility.flipSwitch();
    EXPECT_EQ(accessibility.permission(), GetParam().whenFlipped);
}

TEST_P(AccessibilityTest, FollowsTheRemovalOfTheRow) {
    Accessibility accessibility(GetParam().permission);
    accessibility.removeRow();
    EXPECT_EQ(accessibility.permission(), GetParam().whenRemoved);
    EXPECT_FALSE(accessibility.isListed());
}

const State States[] = {
    {"NotListed", Permission::notListed, false, false, false, false, Permission::switchedOff,
     Permission::notListed, Permission::notListed},
    {"SwitchedOff", Permission::switchedOff, false, false, true, false, Permission::switchedOff,
     Permission::granted, Permission::notListed},
    {"Granted", Permission::granted, true, true, true, true, Permission::granted, Permission::switchedOff,
     Permission::rowDeleted},
    {"RowDeleted", Permission::rowDeleted, true, false, false, false, Permission::rowDeleted,
     Permission::rowDeleted, Permission::rowDeleted},
    {"Stale", Permission::stale, false, false, true, true, Permission::stale, Permission::stale,
     Permission::notListed},
};
INSTANTIATE_TEST_SUITE_P(States, AccessibilityTest, testing::ValuesIn(States), nameOfState);

TEST(AccessibilityDialog, LeadsToThePaneOrOnlyCloses) {
    Accessibility accessibility(Permission::notListed);
    EXPECT_FALSE(accessibility.isDialogShown());
    accessibility.askUser();
    accessibility.denyInDialog();
    EXPECT_FALSE(accessibility.isDialogShown());
    EXPECT_FALSE(accessibility.isPaneShown());
    accessibility.askUser();
    accessibility.openSettingsFromDialog();
    EXPECT_FALSE(accessibility.isDialogShown());
    EXPECT_TRUE(accessibility.isPaneShown());
    EXPECT_EQ(accessibility.permission(), Permission::switchedOff);
}

TEST(AccessibilityPane, IsShownUntilItIsClosed) {
    Accessibility accessibility(Permission::granted);
    EXPECT_FALSE(accessibility.isPaneShown());
    accessibility.showPane();
    EXPECT_TRUE(accessibility.isPaneShown());
    accessibility.closePane();
    EXPECT_FALSE(accessibility.isPaneShown());
    EXPECT_EQ(accessibility.permission(), Permission::granted);
}

TEST(AccessibilityPane, HelpsARowOfAnOlderBuildByItsRemovalAlone) {
    Accessibility accessibility(Permission::stale);
    accessibility.flipSwitch();
    EXPECT_FALSE(accessibility.readsAsTrusted());
    accessibility.removeRow();
    accessibility.listApplication();
    accessibility.flipSwitch();
    EXPECT_EQ(accessibility.permission(), Permission::granted);
}

TEST(Accessibility, MayReadAsUntrustedForAWhileAfterAGrant) {
    Accessibility accessibility(Permission::granted);
    accessibility.delayTrust(true);
    EXPECT_FALSE(accessibility.readsAsTrusted());
    EXPECT_TRUE(accessibility.allowsActiveTaps());
    accessibility.delayTrust(false);
    EXPECT_TRUE(accessibility.readsAsTrusted());
}

} // namespace
} // namespace kestrune::sim
