#include "sim/hardware/Displays.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Display Left = makeDisplay(1, "Left", {0, 0, 1512, 982});
const Display Right = makeDisplay(2, "Right", {1512, 0, 1920, 1080});
const Display Third = makeDisplay(3, "Third", {3432, 0, 1280, 720});

TEST(Display, HasANumberAndAUUIDOfItsOwn) {
    EXPECT_EQ(Left.screenNumber, DeviceDescriptionValue(std::int64_t{1}));
    EXPECT_EQ(Left.uuid, uuidOfDisplay(1));
    EXPECT_NE(uuidOfDisplay(1), uuidOfDisplay(2));
    EXPECT_THAT(uuidOfDisplay(0xFFFFFFFF),
                testing::MatchesRegex("[0-9A-F]+-[0-9A-F]+-[0-9A-F]+-[0-9A-F]+-[0-9A-F]+"));
    EXPECT_EQ(uuidOfDisplay(0xFFFFFFFF).size(), 36U);
}

TEST(Displays, AreReadAsTheyAreConnected) {
    Displays displays({Left, Right});
    EXPECT_THAT(displays.read(), ElementsAre(Left, Right));
    displays.set({Right});
    EXPECT_THAT(displays.read(), ElementsAre(Right));
    EXPECT_THAT(displays.connected(), ElementsAre(Right));
}

TEST(Displays, AreReadAsScriptedBeforeTheTrueListShowsAgain) {
    Displays displays({Left, Right});
    displays.scriptReads({{}, {Right}});
    EXPECT_THAT(displays.read(), IsEmpty());
    EXPECT_THAT(displays.read(), ElementsAre(Right));
    EXPECT_THAT(displays.read(), ElementsAre(Left, Right));
    EXPECT_THAT(displays.read(), ElementsAre(Left, Right));
}

TEST(Displays, StayConnectedWhateverIsScripted) {
    Displays displays({Left, Right});
    displays.scriptReads({{}});
    displays.read();
    EXPECT_THAT(displays.connected(), ElementsAre(Left, Right));
    ASSERT_NE(displays.containing({0, 0}), nullptr);
}

TEST(Displays, HaveAMainOneByItsPlaceInTheList) {
    Displays displays({Left, Right});
    EXPECT_EQ(displays.main(), Left);
    displays.setMain(1);
    EXPECT_EQ(displays.main(), Right);
    displays.setMain(2);
    EXPECT_EQ(displays.main(), std::nullopt);
    displays.setMain(std::nullopt);
    EXPECT_EQ(displays.main(), std::nullopt);
}

TEST(Displays, HaveNoMainOneWhenNoneIsConnected) { EXPECT_EQ(Displays({}).main(), std::nullopt); }

TEST(Displays, HaveFramesThatCountUpwardsFromThePrimarysBottom) {
    const Displays displays({Left, Right});
    EXPECT_EQ(displays.appKitFrame({0, 0, 1512, 982}), Rect(0, 0, 1512, 982));
    EXPECT_EQ(displays.appKitFrame({1512, 0, 1920, 1080}), Rect(1512, -98, 1920, 1080));
    EXPECT_EQ(displays.appKitFrame({10.5, 982, 100.25, 50.5}), Rect(10.5, -50.5, 100.25, 50.5));
    EXPECT_EQ(displays.appKitFrame({0, -500, 100, 100}), Rect(0, 1382, 100, 100));
}

TEST(Displays, HaveFramesOfTheLastReadWhenNoneIsConnected) {
    Displays displays({});
    EXPECT_EQ(displays.appKitFrame({0, 0, 100, 50}), Rect(0, -50, 100, 50));
    displays.scriptReads({{Left}});
    displays.read();
    EXPECT_EQ(displays.appKitFrame({0, 0, 100, 50}), Rect(0, 932, 100, 50));
}

TEST(Displays, HaveUUIDsWhileConnectedAndWhileListed) {
    Displays displays({Left});
    EXPECT_EQ(displays.uuidOf(1), uuidOfDisplay(1));
    EXPECT_EQ(displays.uuidOf(3), std::nullopt);
    displays.scriptReads({{Third}});
    displays.read();
    EXPECT_EQ(displays.uuidOf(3), uuidOfDisplay(3));
    EXPECT_EQ(displays.uuidOf(1), uuidOfDisplay(1));
    displays.read();
    EXPECT_EQ(displays.uuidOf(3), std::nullopt);
}

TEST(Displays, HaveNoUUIDWhereTheSystemKnowsNone) {
    Display nameless = Left;
    nameless.uuid.reset();
    Displays displays({nameless});
    EXPECT_EQ(displays.uuidOf(1), std::nullopt);
}

TEST(Displays, AreFoundByAPointOnThem) {
    const Displays displays({Left, Right});
    EXPECT_EQ(displays.containing({0, 0})->displayID, 1U);
    EXPECT_EQ(displays.containing({1512, 0})->displayID, 2U);
    EXPECT_EQ(displays.containing({100, 982}), nullptr);
    EXPECT_EQ(displays.containing({-0.5, 10}), nullptr);
}

TEST(Displays, AreFoundByTheirNumber) {
    const Displays displays({Left, Right});
    EXPECT_EQ(*displays.withID(2), Right);
    EXPECT_EQ(displays.withID(3), nullptr);
}

} // namespace
} // namespace kestrune::sim
