#include "Kestrune/WelcomeViewModel.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace kestrune {
namespace {

using Step = WelcomeViewModel::Step;

TEST(WelcomeViewModel, StartsWithWhatItIsGiven) {
    const WelcomeViewModel trusted(Step::intro, true);
    EXPECT_EQ(trusted.currentStep, Step::intro);
    EXPECT_TRUE(trusted.isAccessibilityTrusted);
    EXPECT_FALSE(trusted.hasRequestedPermission);
    const WelcomeViewModel waiting(Step::accessibility, false);
    EXPECT_EQ(waiting.currentStep, Step::accessibility);
    EXPECT_FALSE(waiting.isAccessibilityTrusted);
    EXPECT_FALSE(waiting.hasRequestedPermission);
}

TEST(WelcomeViewModel, HasItsStepsInTheOrderOfTheUser) {
    EXPECT_LT(Step::intro, Step::accessibility);
    EXPECT_EQ(std::unordered_set<Step>({Step::intro, Step::accessibility, Step::intro}).size(), 2U);
}

TEST(WelcomeViewModel, DoesNothingUntilItsActionsAreReplaced) {
    WelcomeViewModel model(Step::intro, false);
    int changes = 0;
    const auto observation = model.observe([&] { ++changes; });
    model.advanceFromIntro();
    model.requestPermissions();
    model.openAccessibilitySettings();
    model.finish();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(model.currentStep, Step::intro);
}

TEST(WelcomeViewModel, TellsBeforeEachChange) {
    WelcomeViewModel model(Step::intro, false);
    int changes = 0;
    Step stepThen = Step::accessibility;
    const auto observation = model.observe([&] {
        ++changes;
        stepThen = model.currentStep;
    });
    model.currentStep = Step::accessibility;
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(stepThen, Step::intro);
    model.isAccessibilityTrusted = true;
    model.hasRequestedPermission = true;
    EXPECT_EQ(changes, 3);
    model.isAccessibilityTrusted = true; // an equal value is published all the same
    EXPECT_EQ(changes, 4);
}

} // namespace
} // namespace kestrune
