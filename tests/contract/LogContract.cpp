#include "platform/Log.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Level = LoggedMessage::Level;

LoggedMessage fixed(Level level, const std::string& category, const std::string& text) {
    return {level, "org.kestrune.Contract", category, text, text};
}

TEST(LogContract, KeepsAnErrorWithItsSubsystemAndCategory) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    EXPECT_THAT(world.loggedMessages(), IsEmpty());
    log.error(LogMessage::of<"The tea is cold.">());
    EXPECT_THAT(world.loggedMessages(),
                ElementsAre(LoggedMessage{Level::error, "org.kestrune.Contract", "Suite", "The tea is cold.",
                                          "The tea is cold."}));
}

TEST(LogContract, KeepsTheErrorsOfEveryChannelInOrder) {
    const World world;
    const Log kitchen("org.kestrune.Contract", "Kitchen");
    const Log garden("org.kestrune.Contract", "Garden");
    kitchen.error(LogMessage::of<"first">());
    garden.error(LogMessage::of<"second">());
    kitchen.error(LogMessage::of<"first">());
    EXPECT_THAT(world.loggedMessages(),
                ElementsAre(fixed(Level::error, "Kitchen", "first"), fixed(Level::error, "Garden", "second"),
                            fixed(Level::error, "Kitchen", "first")));
}

TEST(LogContract, ShowsADebugMessageToWhoeverLooksAtThatLevel) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.debug(LogMessage::of<"\xC3\xA4\xC3\xB6\xC3\xBC \xE2\x80\x94">());
    EXPECT_THAT(world.loggedMessages(),
                ElementsAre(fixed(Level::debug, "Suite", "\xC3\xA4\xC3\xB6\xC3\xBC \xE2\x80\x94")));
}

TEST(LogContract, KeepsTheOrderOfMessagesOfDifferentLevels) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.debug(LogMessage::of<"first">());
    log.error(LogMessage::of<"second">());
    log.debug(LogMessage::of<"third">());
    EXPECT_THAT(world.loggedMessages(),
                ElementsAre(fixed(Level::debug, "Suite", "first"), fixed(Level::error, "Suite", "second"),
                            fixed(Level::debug, "Suite", "third")));
}

// By the format a message is found, whatever it was filled with.
TEST(LogContract, FillsATextIntoAFormatAndKeepsThat) {
    const World world;
    const Log log("org.kestrune.Contract", "Suite");
    log.error(LogFormat::of<"LoginItem toggle failed: %{public}s">(), "100 %s sure, \xC3\xA4");
    log.info(LogFormat::of<"Tea \xE2\x80\x94 %{public}s">(), std::string_view("hot, not cold").substr(0, 3));
    EXPECT_THAT(world.loggedMessages(),
                ElementsAre(LoggedMessage{Level::error, "org.kestrune.Contract", "Suite",
                                          "LoginItem toggle failed: 100 %s sure, \xC3\xA4",
                                          "LoginItem toggle failed: %{public}s"},
                            LoggedMessage{Level::info, "org.kestrune.Contract", "Suite",
                                          "Tea \xE2\x80\x94 hot", "Tea \xE2\x80\x94 %{public}s"}));
}

} // namespace
} // namespace kestrune::contract
