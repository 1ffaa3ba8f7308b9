#include "platform/Bundle.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

TEST(BundleContract, TellsItsIdentifier) {
    const World world;
    EXPECT_EQ(Bundle::mainBundleIdentifier(), std::string(World::BundleIdentifier));
}

TEST(BundleContract, HasNoIdentifierWhenTheInfoFileHasNone) {
    const World world{World::WithoutBundleIdentifier()};
    EXPECT_EQ(Bundle::mainBundleIdentifier(), std::nullopt);
}

} // namespace
} // namespace kestrune::contract
