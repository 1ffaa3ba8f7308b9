#include "platform/Locale.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

TEST(LocaleContract, HasTheIdentifierOfTheUsersLanguageAndRegion) {
    const World world;
    EXPECT_NE(world.localeIdentifier(), "");
    EXPECT_EQ(Locale::currentLocale().localeIdentifier(), world.localeIdentifier());
}

} // namespace
} // namespace kestrune::contract
