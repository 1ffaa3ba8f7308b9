#include "sim/services/Accessibility.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace kestrune::sim {
namespace {

const StandingFaults NoFaults;

struct State {
    const char* name;
    Permission permission;
    bool readsAsTrusted;
    bool allowsActiveTaps;
    bool isListed;
    bool isSwitchedOn;
    Permission whenListed;
};

void PrintTo(const State& state, std::ostream* output) { *output << state.name; }

std::string nameOfState(const testing::TestParamInfo<State>& state) { return state.param.name; }

class AccessibilityTest : public testing::TestWithParam<State> {};

TEST_P(AccessibilityTest, AnswersForAPermissionThatWasThereFromTheStart) {
    const Accessibility accessibility(GetParam().permission, NoFaults);
    EXPECT_EQ(accessibility.permission(), GetParam().permission);
    EXPECT_EQ(accessibility.readsAsTrusted(), GetParam().readsAsTrusted);
    EXPECT_EQ(accessibility.allowsActiveTaps(), GetParam().allowsActiveTaps);
}

TEST_P(AccessibilityTest, AnswersForAPermissionThatChanged) {
    Accessibility accessibility(Permission::granted, NoFaults);
    accessibility.setPermission(Permission::notListed);
    accessibility.setPermission(GetParam().permission);
    EXPECT_EQ(accessibility.readsAsTrusted(), GetParam().readsAsTrusted);
    EXPECT_EQ(accessibility.allowsActiveTaps(), GetParam().allowsActiveTaps);
}

TEST_P(AccessibilityTest, ShowsARowInThePane) {
    const Accessibility accessibility(GetParam().permission, NoFaults);
    EXPECT_EQ(accessibility.isListed(), GetParam().isListed);
    EXPECT_EQ(accessibility.isSwitchedOn(), GetParam().isSwitchedOn);
}

TEST_P(AccessibilityTest, ListsTheApplicationThatAsks) {
    Accessibility accessibility(GetParam().permission, NoFaults);
    accessibility.listApplication();
    EXPECT_EQ(accessibility.permission(), GetParam().whenListed);
    EXPECT_FALSE(accessibility.isDialogShown());
    EXPECT_FALSE(accessibility.isPaneShown());
}

TEST_P(AccessibilityTest, AsksTheUserInADialog) {
    Accessibility accessibility(GetParam().permission, NoFaults);
    accessibility.askUser();
    EXPECT_EQ(accessibility.permission(), GetParam().whenListed);
    EXPECT_TRUE(accessibility.isDialogShown());
    EXPECT_FALSE(accessibility.isPaneShown());
}

const State States[] = {
    {"NotListed", Permission::notListed, false, false, false, false, Permission::switchedOff},
    {"SwitchedOff", Permission::switchedOff, false, false, true, false, Permission::switchedOff},
    {"Granted", Permission::granted, true, true, true, true, Permission::granted},
    {"RowDeleted", Permission::rowDeleted, true, false, false, false, Permission::rowDeleted},
    {"Stale", Permission::stale, false, false, true, true, Permission::stale},
};
INSTANTIATE_TEST_SUITE_P(States, AccessibilityTest, testing::ValuesIn(States), nameOfState);

TEST(AccessibilityDialog, LeadsToThePaneOrOnlyCloses) {
    Accessibility accessibility(Permission::notListed, NoFaults);
    EXPECT_FALSE(accessibility.isDialogShown());
    accessibility.askUser();
    accessibility.answerDialog(DialogAnswer::deny);
    EXPECT_FALSE(accessibility.isDialogShown());
    EXPECT_FALSE(accessibility.isPaneShown());
    accessibility.askUser();
    accessibility.answerDialog(DialogAnswer::openSettings);
    EXPECT_FALSE(accessibility.isDialogShown());
    EXPECT_TRUE(accessibility.isPaneShown());
    EXPECT_EQ(accessibility.permission(), Permission::switchedOff);
}

TEST(AccessibilityPane, IsShownUntilItIsClosed) {
    Accessibility accessibility(Permission::granted, NoFaults);
    EXPECT_FALSE(accessibility.isPaneShown());
    accessibility.showPane();
    EXPECT_TRUE(accessibility.isPaneShown());
    accessibility.closePane();
    EXPECT_FALSE(accessibility.isPaneShown());
    EXPECT_EQ(accessibility.permission(), Permission::granted);
}

TEST(Accessibility, MayReadAsUntrustedForAWhileAfterAGrant) {
    StandingFaults faults;
    const Accessibility accessibility(Permission::granted, faults);
    faults.delaysTrust = true;
    EXPECT_FALSE(accessibility.readsAsTrusted());
    EXPECT_TRUE(accessibility.allowsActiveTaps());
    faults.delaysTrust = false;
    EXPECT_TRUE(accessibility.readsAsTrusted());
}

} // namespace
} // namespace kestrune::sim
