#include "sim/Accessibility.h"

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
};

void PrintTo(const State& state, std::ostream* output) { *output << state.name; }

std::string nameOf(const testing::TestParamInfo<State>& state) { return state.param.name; }

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

const State States[] = {
    {"NotListed", Permission::notListed, false, false},
    {"SwitchedOff", Permission::switchedOff, false, false},
    {"Granted", Permission::granted, true, true},
    {"RowDeleted", Permission::rowDeleted, true, false},
    {"Stale", Permission::stale, false, false},
};
INSTANTIATE_TEST_SUITE_P(States, AccessibilityTest, testing::ValuesIn(States), nameOf);

} // namespace
} // namespace kestrune::sim
