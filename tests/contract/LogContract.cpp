#include "platform/Log.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Level = LoggedMessage::Level;

TEST(LogContract, KeepsAnErrorWithItsSubsystemAndCategory) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    EXPECT_THAT(world.loggedMessages(), IsEmpty());
    log.error("The tea is cold.");
    EXPECT_THAT(world.loggedMessages(), ElementsAre(LoggedMessage{Level::error, "org.kestrune.Contract",
                                                                  "Suite", "The tea is cold."}));
}

TEST(LogContract, KeepsTheErrorsOfEveryChannelInOrder) {
    const World world;
    const Log kitchen("org.kestrune.Contract", "Kitchen");
    const Log garden("org.kestrune.Contract", "Garden");
    kitchen.error("first");
    garden.error("second");
    kitchen.error("first");
    EXPECT_THAT(world.loggedMessages(),
                ElementsAre(LoggedMessage{Level::error, "org.kestrune.Contract", "Kitchen", "first"},
                            LoggedMessage{Level::error, "org.kestrune.Contract", "Garden", "second"},
                            LoggedMessage{Level::error, "org.kestrune.Contract", "Kitchen", "first"}));
}

TEST(LogContract, KeepsAMessageAsItStands) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.error("100 %s sure, \xC3\xA4\xC3\xB6\xC3\xBC");
    ASSERT_EQ(world.loggedMessages().size(), 1U);
    EXPECT_EQ(world.loggedMessages().front().message, "100 %s sure, \xC3\xA4\xC3\xB6\xC3\xBC");
}

TEST(LogContract, KeepsOnlyThePartThatAMessageSpans) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.error(std::string_view("shown, not shown").substr(0, 5));
    ASSERT_EQ(world.loggedMessages().size(), 1U);
    EXPECT_EQ(world.loggedMessages().front().message, "shown");
}

TEST(LogContract, ShowsADebugMessageToWhoeverLooksAtThatLevel) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.debug("100 %d, \xE2\x80\x94");
    EXPECT_THAT(world.loggedMessages(), ElementsAre(LoggedMessage{Level::debug, "org.kestrune.Contract",
                                                                  "Suite", "100 %d, \xE2\x80\x94"}));
}

TEST(LogContract, KeepsTheOrderOfMessagesOfDifferentLevels) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.debug("first");
    log.error("second");
    log.debug("third");
    EXPECT_THAT(world.loggedMessages(),
                ElementsAre(LoggedMessage{Level::debug, "org.kestrune.Contract", "Suite", "first"},
                            LoggedMessage{Level::error, "org.kestrune.Contract", "Suite", "second"},
                            LoggedMessage{Level::debug, "org.kestrune.Contract", "Suite", "third"}));
}

TEST(LogContract, FillsATextIntoAFormat) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.error(LogFormat("LoginItem toggle failed: %{public}s"), "100 %s sure, \xC3\xA4");
    log.info(LogFormat("Tea \xE2\x80\x94 %{public}s"), std::string_view("hot, not cold").substr(0, 3));
    EXPECT_THAT(
        world.loggedMessages(),
        ElementsAre(LoggedMessage{Level::error, "org.kestrune.Contract", "Suite",
                                  "LoginItem toggle failed: 100 %s sure, \xC3\xA4"},
                    LoggedMessage{Level::info, "org.kestrune.Contract", "Suite", "Tea \xE2\x80\x94 hot"}));
}

} // namespace
} // namespace kestrune::contract
