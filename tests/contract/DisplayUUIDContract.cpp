#include "platform/DisplayUUID.h"
#include "platform/Screen.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

const std::string UUID = "37D8832A-2D66-02CA-B9F7-8F30A301B230";

class DisplayUUIDContract : public testing::Test {
protected:
    DisplayUUIDContract() {
        ConnectedDisplay known = connectedDisplay(7, {0, 0, 1512, 982});
        known.uuid = UUID;
        world_.connect({known, connectedDisplay(8, {1512, 0, 1920, 1080})});
    }

    World world_;
};

TEST_F(DisplayUUIDContract, IsMadeForADisplayThatTheSystemKnowsOneFor) {
    const auto uuid = DisplayUUID::createFromDisplayID(7);
    ASSERT_TRUE(uuid);
    EXPECT_EQ(uuid->createString(), UUID);
}

TEST_F(DisplayUUIDContract, IsAbsentForADisplayWithoutOne) {
    EXPECT_FALSE(DisplayUUID::createFromDisplayID(8));
}

TEST_F(DisplayUUIDContract, IsAbsentForANumberThatIsNoDisplay) {
    EXPECT_FALSE(DisplayUUID::createFromDisplayID(4711));
}

TEST_F(DisplayUUIDContract, IsTheSameEachTime) {
    const auto one = DisplayUUID::createFromDisplayID(7);
    const auto other = DisplayUUID::createFromDisplayID(7);
    ASSERT_TRUE(one && other);
    EXPECT_EQ(one->createString(), other->createString());
}

TEST_F(DisplayUUIDContract, HasNoStringWhenThePlatformMakesNone) {
    const auto uuid = DisplayUUID::createFromDisplayID(7);
    ASSERT_TRUE(uuid);
    world_.failUUIDStrings();
    EXPECT_EQ(uuid->createString(), std::nullopt);
}

TEST_F(DisplayUUIDContract, OutlivesTheConnectionOfItsDisplay) {
    const auto uuid = DisplayUUID::createFromDisplayID(7);
    ASSERT_TRUE(uuid);
    world_.connect({connectedDisplay(8, {0, 0, 1920, 1080})});
    EXPECT_EQ(uuid->createString(), UUID);
}

TEST_F(DisplayUUIDContract, IsSharedByItsCopies) {
    auto original = DisplayUUID::createFromDisplayID(7);
    ASSERT_TRUE(original);
    const DisplayUUID copy = *original;
    original.reset();
    EXPECT_EQ(copy.createString(), UUID);
}

std::optional<std::string> uuidOfThePrimaryDisplay() {
    const auto number = Screen::screens().at(0).deviceDescription("NSScreenNumber").value();
    const auto uuid =
        DisplayUUID::createFromDisplayID(static_cast<DisplayID>(std::get<std::int64_t>(number)));
    return uuid ? uuid->createString() : std::nullopt;
}

// Whichever display that is, and whether it has one.
TEST(PrimaryDisplayUUIDContract, IsTheSameEachTimeAndLooksLikeOne) {
    const World world;
    const std::optional<std::string> uuid = uuidOfThePrimaryDisplay();
    if (uuid) {
        EXPECT_THAT(*uuid, testing::MatchesRegex("[0-9A-F-]{36}"));
    }
    EXPECT_EQ(uuid, uuidOfThePrimaryDisplay());
}

} // namespace
} // namespace kestrune::contract
