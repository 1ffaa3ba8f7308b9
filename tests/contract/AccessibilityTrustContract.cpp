#include "platform/AccessibilityTrust.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

bool isTrustedWith(Trust trust) {
    World world;
    world.setTrust(trust);
    return isProcessTrusted();
}

TEST(AccessibilityTrustContract, IsThereOnceGranted) { EXPECT_TRUE(isTrustedWith(Trust::granted)); }

TEST(AccessibilityTrustContract, IsNotThereWithoutARow) { EXPECT_FALSE(isTrustedWith(Trust::notListed)); }

TEST(AccessibilityTrustContract, IsNotThereWhenSwitchedOff) {
    EXPECT_FALSE(isTrustedWith(Trust::switchedOff));
}

TEST(AccessibilityTrustContract, IsNotThereForARowOfAnOlderBuild) {
    EXPECT_FALSE(isTrustedWith(Trust::outdated));
}

TEST(AccessibilityTrustContract, StillReadsAsThereAfterTheRowWasDeleted) {
    EXPECT_TRUE(isTrustedWith(Trust::rowDeleted));
}

TEST(AccessibilityTrustContract, IsReadAfreshEachTime) {
    World world;
    world.setTrust(Trust::switchedOff);
    EXPECT_FALSE(isProcessTrusted());
    world.setTrust(Trust::granted);
    EXPECT_TRUE(isProcessTrusted());
    world.setTrust(Trust::switchedOff);
    EXPECT_FALSE(isProcessTrusted());
}

// What the row and the dialog are after a call with or without prompt.
struct AfterCall {
    bool answer = false;
    Trust trust = Trust::notListed;
    bool isDialogShown = false;

    friend bool operator==(const AfterCall&, const AfterCall&) = default;
};

AfterCall callWithOptions(Trust trust, bool prompt) {
    World world;
    world.setTrust(trust);
    const bool answer = isProcessTrustedWithOptions({prompt});
    return {answer, world.trust(), world.isTrustDialogShown()};
}

TEST(AccessibilityTrustContract, ListsTheApplicationAndAsksTheUserWhenPrompting) {
    EXPECT_EQ(callWithOptions(Trust::notListed, true), (AfterCall{false, Trust::switchedOff, true}));
}

TEST(AccessibilityTrustContract, AsksTheUserAboutASwitchedOffRowWhenPrompting) {
    EXPECT_EQ(callWithOptions(Trust::switchedOff, true), (AfterCall{false, Trust::switchedOff, true}));
}

TEST(AccessibilityTrustContract, AsksTheUserAboutARowOfAnOlderBuildWhenPrompting) {
    EXPECT_EQ(callWithOptions(Trust::outdated, true), (AfterCall{false, Trust::outdated, true}));
}

TEST(AccessibilityTrustContract, AsksNobodyWhenItIsThere) {
    EXPECT_EQ(callWithOptions(Trust::granted, true), (AfterCall{true, Trust::granted, false}));
}

TEST(AccessibilityTrustContract, AsksNobodyAndListsNothingWithoutPrompt) {
    EXPECT_EQ(callWithOptions(Trust::notListed, false), (AfterCall{false, Trust::notListed, false}));
    EXPECT_EQ(callWithOptions(Trust::switchedOff, false), (AfterCall{false, Trust::switchedOff, false}));
    EXPECT_EQ(callWithOptions(Trust::granted, false), (AfterCall{true, Trust::granted, false}));
}

TEST(AccessibilityTrustContract, ListsNothingWhenItIsOnlyRead) {
    World world;
    world.setTrust(Trust::notListed);
    EXPECT_FALSE(isProcessTrusted());
    EXPECT_EQ(world.trust(), Trust::notListed);
    EXPECT_FALSE(world.isTrustDialogShown());
}

} // namespace
} // namespace kestrune::contract
