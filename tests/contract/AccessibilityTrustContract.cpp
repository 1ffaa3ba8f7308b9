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

} // namespace
} // namespace kestrune::contract
