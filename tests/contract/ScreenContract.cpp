#include "platform/Screen.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> names(const std::vector<Screen>& screens) {
    std::vector<std::string> result;
    for (const Screen& screen : screens) {
        result.push_back(screen.localizedName());
    }
    return result;
}

std::vector<Rect> frames(const std::vector<Screen>& screens) {
    std::vector<Rect> result;
    for (const Screen& screen : screens) {
        result.push_back(screen.frame());
    }
    return result;
}

// Whichever display that is.
TEST(ScreenContract, StartsWithADisplayAtTheOriginThatHasASizeANameAndANumber) {
    const World world;
    const std::vector<Screen> screens = Screen::screens();
    ASSERT_FALSE(screens.empty());
    const Screen& primary = screens.front();
    EXPECT_EQ(primary.frame().origin, Point());
    EXPECT_GT(primary.frame().width(), 0);
    EXPECT_GT(primary.frame().height(), 0);
    EXPECT_NE(primary.localizedName(), "");
    const auto number = primary.deviceDescription("NSScreenNumber");
    ASSERT_TRUE(number);
    EXPECT_TRUE(std::holds_alternative<std::int64_t>(*number));
    EXPECT_FALSE(primary.deviceDescription("NoSuchKey"));
}

TEST(ScreenContract, ListsTheDisplaysThePrimaryFirst) {
    World world;
    world.connect({connectedDisplay(3, {0, 0, 1512, 982}), connectedDisplay(1, {-1920, 0, 1920, 1080}),
                   connectedDisplay(2, {1512, 0, 1920, 1080})});
    EXPECT_THAT(names(Screen::screens()), ElementsAre("Display 3", "Display 1", "Display 2"));
}

TEST(ScreenContract, ListsNothingWithoutDisplays) {
    World world;
    world.connect({});
    EXPECT_THAT(names(Screen::screens()), IsEmpty());
    EXPECT_FALSE(Screen::mainScreen());
}

TEST(ScreenContract, ListsTheDisplaysAfreshEachTime) {
    World world;
    world.connect({connectedDisplay(1, {0, 0, 1512, 982})});
    EXPECT_EQ(Screen::screens().size(), 1U);
    world.connect({connectedDisplay(1, {0, 0, 1512, 982}), connectedDisplay(2, {1512, 0, 1920, 1080})});
    EXPECT_EQ(Screen::screens().size(), 2U);
}

TEST(ScreenContract, HasAFrameThatCountsUpwardsFromThePrimarysBottomLeftCorner) {
    World world;
    world.connect({
        connectedDisplay(1, {0, 0, 1512, 982}),
        connectedDisplay(2, {-1920, 0, 1920, 1080}),         // Same top edge, 98 points taller.
        connectedDisplay(3, {1512, -458.5, 2560, 1440.5}),   // Same bottom edge.
        connectedDisplay(4, {0, 982, 1280, 720}),            // Below.
        connectedDisplay(5, {100.25, -1500.5, 1000, 500.5}), // Above, with a gap.
    });
    EXPECT_THAT(frames(Screen::screens()),
                ElementsAre(Rect(0, 0, 1512, 982), Rect(-1920, -98, 1920, 1080), Rect(1512, 0, 2560, 1440.5),
                            Rect(0, -720, 1280, 720), Rect(100.25, 1982, 1000, 500.5)));
}

TEST(ScreenContract, KeepsDescribingADisplayThatWasDisconnected) {
    World world;
    world.connect({connectedDisplay(1, {0, 0, 1512, 982}), connectedDisplay(2, {1512, 0, 1920, 1080})});
    const std::vector<Screen> before = Screen::screens();
    world.connect({connectedDisplay(1, {0, 0, 1512, 982})});
    ASSERT_EQ(before.size(), 2U);
    EXPECT_EQ(before[1].localizedName(), "Display 2");
    EXPECT_EQ(before[1].frame(), Rect(1512, -98, 1920, 1080));
}

TEST(ScreenContract, HasItsDisplaysNumberInTheDeviceDescription) {
    World world;
    world.connect({connectedDisplay(69734662, {0, 0, 1512, 982})});
    EXPECT_EQ(Screen::screens().at(0).deviceDescription("NSScreenNumber"),
              DeviceDescriptionValue(std::int64_t{69734662}));
}

TEST(ScreenContract, HasTheLargestDisplayNumberAsAPositiveOne) {
    World world;
    world.connect({connectedDisplay(0xFFFFFFFF, {0, 0, 1512, 982})});
    EXPECT_EQ(Screen::screens().at(0).deviceDescription("NSScreenNumber"),
              DeviceDescriptionValue(std::int64_t{0xFFFFFFFF}));
}

TEST(ScreenContract, HasTheDeviceDescriptionsEntryAsItsKindStands) {
    World world;
    ConnectedDisplay fraction = connectedDisplay(1, {0, 0, 1512, 982});
    fraction.screenNumber = 1.5;
    ConnectedDisplay text = connectedDisplay(2, {1512, 0, 1920, 1080});
    text.screenNumber = std::string("two");
    world.connect({fraction, text});
    const std::vector<Screen> screens = Screen::screens();
    EXPECT_EQ(screens.at(0).deviceDescription("NSScreenNumber"), DeviceDescriptionValue(1.5));
    EXPECT_EQ(screens.at(1).deviceDescription("NSScreenNumber"), DeviceDescriptionValue(std::string("two")));
}

TEST(ScreenContract, HasNoEntryForAKeyThatTheDeviceDescriptionLacks) {
    World world;
    ConnectedDisplay nameless = connectedDisplay(1, {0, 0, 1512, 982});
    nameless.screenNumber.reset();
    world.connect({nameless});
    EXPECT_FALSE(Screen::screens().at(0).deviceDescription("NSScreenNumber"));
    EXPECT_FALSE(Screen::screens().at(0).deviceDescription("NoSuchKey"));
}

TEST(ScreenContract, HasTheDisplaysNameInUTF8) {
    World world;
    ConnectedDisplay display = connectedDisplay(1, {0, 0, 1512, 982});
    display.localizedName = "B\xC3\xBCro \xE2\x80\x94 \xE5\xB7\xA6";
    world.connect({display});
    EXPECT_EQ(Screen::screens().at(0).localizedName(), "B\xC3\xBCro \xE2\x80\x94 \xE5\xB7\xA6");
}

TEST(ScreenContract, IsMainWhereTheKeyWindowIs) {
    World world;
    world.connect({connectedDisplay(1, {0, 0, 1512, 982}), connectedDisplay(2, {1512, 0, 1920, 1080})});
    ASSERT_TRUE(Screen::mainScreen());
    EXPECT_EQ(Screen::mainScreen()->localizedName(), "Display 1");
    world.setMainDisplay(1);
    ASSERT_TRUE(Screen::mainScreen());
    EXPECT_EQ(Screen::mainScreen()->localizedName(), "Display 2");
    EXPECT_EQ(Screen::mainScreen()->frame(), Rect(1512, -98, 1920, 1080));
    world.setMainDisplay(std::nullopt);
    EXPECT_FALSE(Screen::mainScreen());
}

TEST(ScreenContract, IsSharedByItsCopies) {
    World world;
    world.connect({connectedDisplay(1, {0, 0, 1512, 982})});
    std::vector<Screen> screens = Screen::screens();
    const Screen copy = screens.at(0);
    screens.clear();
    EXPECT_EQ(copy.localizedName(), "Display 1");
}

} // namespace
} // namespace kestrune::contract
