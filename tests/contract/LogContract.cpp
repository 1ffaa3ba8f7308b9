#include "platform/Log.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LogContract, KeepsAnErrorWithItsSubsystemAndCategory) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    EXPECT_THAT(world.loggedErrors(), IsEmpty());
    log.error("The tea is cold.");
    EXPECT_THAT(world.loggedErrors(),
                ElementsAre(LoggedError{"org.kestrune.Contract", "Suite", "The tea is cold."}));
}

TEST(LogContract, KeepsTheErrorsOfEveryChannelInOrder) {
    const World world;
    const Log kitchen("org.kestrune.Contract", "Kitchen");
    const Log garden("org.kestrune.Contract", "Garden");
    kitchen.error("first");
    garden.error("second");
    kitchen.error("first");
    EXPECT_THAT(world.loggedErrors(), ElementsAre(LoggedError{"org.kestrune.Contract", "Kitchen", "first"},
                                                  LoggedError{"org.kestrune.Contract", "Garden", "second"},
                                                  LoggedError{"org.kestrune.Contract", "Kitchen", "first"}));
}

TEST(LogContract, KeepsAMessageAsItStands) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.error("100 %s sure, \xC3\xA4\xC3\xB6\xC3\xBC");
    ASSERT_EQ(world.loggedErrors().size(), 1U);
    EXPECT_EQ(world.loggedErrors().front().message, "100 %s sure, \xC3\xA4\xC3\xB6\xC3\xBC");
}

TEST(LogContract, KeepsOnlyThePartThatAMessageSpans) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.error(std::string_view("shown, not shown").substr(0, 5));
    ASSERT_EQ(world.loggedErrors().size(), 1U);
    EXPECT_EQ(world.loggedErrors().front().message, "shown");
}

} // namespace
} // namespace kestrune::contract
