#include "Kestrune/ManagedScreen.h"

#include "tests/Kestrune/GuardFixture.h"

#include <limits>

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::Not;

std::optional<DisplayID> displayIDFor(std::optional<DeviceDescriptionValue> screenNumber) {
    sim::Display display = primaryDisplay();
    display.screenNumber = std::move(screenNumber);
    sim::Session session(withDisplays({display}));
    return displayIDOfScreen(Screen::screens().front());
}

TEST(ManagedScreen, IsTheSameDisplayWhenTheIdentifiersAreEqualToTheLetter) {
    const ManagedScreen screen{"37D8832A", 1, "One", {0, 0, 100, 100}};
    EXPECT_EQ(screen, (ManagedScreen{"37D8832A", 2, "Two", {5, 5, 50, 50}}));
    EXPECT_NE(screen, (ManagedScreen{"37d8832a", 1, "One", {0, 0, 100, 100}}));
}

TEST(AllScreens, DescribeEachDisplayInTheSystemsOrder) {
    sim::Session session(withDisplays({thirdDisplay(), primaryDisplay(), secondDisplay()}));
    EXPECT_THAT(allScreens(),
                ElementsAre(Field(&ManagedScreen::displayID, 3), Field(&ManagedScreen::displayID, 1),
                            Field(&ManagedScreen::displayID, 2)));
}

TEST(AllScreens, AskThePlatformInOrder) {
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay()}));
    const auto describing = [](DisplayID displayID) -> Calls {
        return {"-[NSScreen deviceDescription][NSScreenNumber]",
                "CGDisplayCreateUUIDFromDisplayID(" + std::to_string(displayID) + ")",
                "CFUUIDCreateString(kCFAllocatorDefault)",
                "CFRelease(string)",
                "CFRelease(uuid)",
                "-[NSScreen localizedName]",
                "-[NSScreen frame]",
                "NSScreen.screens",
                "-[NSScreen frame]"};
    };
    EXPECT_THAT(callsOf(allScreens),
                ElementsAreArray(inOrder({{"NSScreen.screens"}, describing(1), describing(2)})));
    EXPECT_EQ(session.liveObjects(), 0);
}

TEST(AllScreens, CarryIdentifierNumberNameAndFrame) {
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay()}));
    const ManagedScreen second = allScreens().at(1);
    EXPECT_EQ(second.uuid, sim::uuidOfDisplay(2));
    EXPECT_EQ(second.displayID, 2U);
    EXPECT_EQ(second.localizedName, "Second");
    EXPECT_EQ(second.cgFrame, Rect(1920, 280, 1280, 800));
}

TEST(AllScreens, TurnFramesUpsideDownAgainstThePrimary) {
    const Rect above{0, -1080, 1920, 1080};
    const Rect below{0, 1080, 1280, 1024};
    const Rect left{-1080.5, -400.25, 1080.5, 1920};
    sim::Session session(
        withDisplays({primaryDisplay(), sim::makeDisplay(2, "Above", above),
                      sim::makeDisplay(3, "Below", below), sim::makeDisplay(4, "Left", left)}));
    session.displays().setMain(2);
    EXPECT_EQ(Screen::screens().at(1).frame(), Rect(0, 1080, 1920, 1080));
    const std::vector<ManagedScreen> screens = allScreens();
    EXPECT_EQ(screens.at(0).cgFrame, Rect(0, 0, 1920, 1080));
    EXPECT_EQ(screens.at(1).cgFrame, above);
    EXPECT_EQ(screens.at(2).cgFrame, below);
    EXPECT_EQ(screens.at(3).cgFrame, left);
}

TEST(AllScreens, AreThePrimarysAppKitFrameForThePrimary) {
    sim::Session session(withDisplays({primaryDisplay()}));
    EXPECT_EQ(allScreens().front().cgFrame, Screen::screens().front().frame());
    EXPECT_EQ(allScreens().front().cgFrame.origin, Point{});
}

TEST(AllScreens, KeepTheFrameWhenTheDisplaysVanishWhileTheyAreListed) {
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay()}));
    session.displays().scriptReads({{primaryDisplay(), secondDisplay()}, {}, {}});
    const std::vector<ManagedScreen> screens = allScreens();
    ASSERT_EQ(screens.size(), 2U);
    EXPECT_EQ(screens.at(1).cgFrame, Rect(1920, 0, 1280, 800));
}

TEST(AllScreens, NameADisplayWithoutUUIDByItsNumber) {
    sim::Display display = primaryDisplay();
    display.uuid.reset();
    sim::Session session(withDisplays({display}));
    EXPECT_EQ(allScreens().front().uuid, "display-1");
    EXPECT_EQ(mainScreenUUID(), "display-1");
    EXPECT_EQ(session.liveObjects(), 0);
}

TEST(AllScreens, NameADisplayByItsNumberWhenTheUUIDHasNoText) {
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay()}));
    session.displays().setUUIDStringsFail(true);
    EXPECT_EQ(allScreens().at(1).uuid, "display-2");
    EXPECT_EQ(mainScreenUUID(), "display-1");
    EXPECT_EQ(session.liveObjects(), 0);
}

TEST(AllScreens, LeaveOutADisplayWithoutUsableNumber) {
    sim::Display numberless = primaryDisplay();
    numberless.screenNumber.reset();
    sim::Session session(withDisplays({numberless, secondDisplay()}));
    EXPECT_THAT(allScreens(), ElementsAre(Field(&ManagedScreen::displayID, 2)));
    // Though it is left out, it stays the display against which frames are turned.
    EXPECT_EQ(allScreens().front().cgFrame, Rect(1920, 280, 1280, 800));
    EXPECT_EQ(mainScreenUUID(), std::nullopt);
    EXPECT_THAT(callsOf(mainScreenUUID), Not(hasCallAbout("CGDisplayCreateUUID")));
}

TEST(AllScreens, TurnFramesAgainstThePrimaryAsItIsByThen) {
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay()}));
    sim::Display taller = primaryDisplay();
    taller.bounds.size.height = 1200;
    const std::vector<sim::Display> before = {primaryDisplay(), secondDisplay()};
    const std::vector<sim::Display> after = {taller, secondDisplay()};
    session.displays().scriptReads({before, after, after});
    // The second display's bottom edge is level with the primary's in AppKit's coordinates.
    EXPECT_EQ(allScreens().at(1).cgFrame, Rect(1920, 400, 1280, 800));
}

TEST(AllScreens, AreNoneWithoutDisplays) {
    sim::Session session(withDisplays({}));
    EXPECT_THAT(allScreens(), IsEmpty());
    EXPECT_EQ(screenWithUUID("display-1"), std::nullopt);
    EXPECT_EQ(mainScreenUUID(), std::nullopt);
}

TEST(ScreenWithUUID, DoesNotEnumerateForAnAbsentIdentifier) {
    sim::Session session(withDisplays({primaryDisplay()}));
    EXPECT_EQ(screenWithUUID(std::nullopt), std::nullopt);
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST(ScreenWithUUID, EnumeratesAfreshAndFindsTheFirstMatch) {
    sim::Display twin = secondDisplay();
    twin.displayID = 9;
    twin.screenNumber = std::int64_t{9};
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay(), twin}));
    const std::optional<ManagedScreen> found = screenWithUUID(sim::uuidOfDisplay(2));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->displayID, 2U);
    session.changeDisplays({primaryDisplay(), twin});
    EXPECT_EQ(screenWithUUID(sim::uuidOfDisplay(2))->displayID, 9U);
}

TEST(ScreenWithUUID, MindsTheLetterCase) {
    sim::Display display = primaryDisplay();
    display.uuid = "37D8832A-2D66-02CA-B9F7-8F30A301B230";
    sim::Session session(withDisplays({display}));
    EXPECT_TRUE(screenWithUUID("37D8832A-2D66-02CA-B9F7-8F30A301B230"));
    EXPECT_EQ(screenWithUUID("37d8832a-2d66-02ca-b9f7-8f30a301b230"), std::nullopt);
}

TEST(MainScreenUUID, NamesTheDisplayWithTheKeyWindow) {
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay()}));
    session.displays().setMain(1);
    EXPECT_EQ(mainScreenUUID(), sim::uuidOfDisplay(2));
}

TEST(MainScreenUUID, IsAskedForInOrder) {
    sim::Session session(withDisplays({primaryDisplay(), secondDisplay()}));
    session.displays().setMain(1);
    EXPECT_THAT(callsOf(mainScreenUUID),
                ElementsAre("NSScreen.mainScreen", "-[NSScreen deviceDescription][NSScreenNumber]",
                            "CGDisplayCreateUUIDFromDisplayID(2)", "CFUUIDCreateString(kCFAllocatorDefault)",
                            "CFRelease(string)", "CFRelease(uuid)"));
}

TEST(MainScreenUUID, IsAbsentWithoutMainDisplay) {
    sim::Session session(withDisplays({primaryDisplay()}));
    session.displays().setMain(std::nullopt);
    EXPECT_EQ(mainScreenUUID(), std::nullopt);
}

TEST(DisplayIDOfScreen, AcceptsWholeNumbersOf32Bits) {
    EXPECT_EQ(displayIDFor(std::int64_t{0}), 0U);
    EXPECT_EQ(displayIDFor(std::int64_t{69'732'928}), 69'732'928U);
    EXPECT_EQ(displayIDFor(std::int64_t{4'294'967'295}), 4'294'967'295U);
    EXPECT_EQ(displayIDFor(2.0), 2U);
    EXPECT_EQ(displayIDFor(4'294'967'295.0), 4'294'967'295U);
}

TEST(DisplayIDOfScreen, IsAbsentForWhateverDoesNotConvert) {
    EXPECT_EQ(displayIDFor(std::nullopt), std::nullopt);
    EXPECT_EQ(displayIDFor(std::int64_t{-1}), std::nullopt);
    EXPECT_EQ(displayIDFor(std::int64_t{4'294'967'296}), std::nullopt);
    EXPECT_EQ(displayIDFor(-1.0), std::nullopt);
    EXPECT_EQ(displayIDFor(4'294'967'296.0), std::nullopt);
    EXPECT_EQ(displayIDFor(1.5), std::nullopt);
    EXPECT_EQ(displayIDFor(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(displayIDFor(std::string("1")), std::nullopt);
}

TEST(UUIDStringForDisplay, IsWhatTheSystemPrints) {
    sim::Session session(withDisplays({primaryDisplay()}));
    EXPECT_EQ(uuidStringForDisplay(1), sim::uuidOfDisplay(1));
    EXPECT_EQ(uuidStringForDisplay(77), std::nullopt);
    EXPECT_EQ(session.liveObjects(), 0);
}

} // namespace
} // namespace kestrune
