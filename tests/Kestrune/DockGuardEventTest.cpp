#include "sim/hardware/PointerEvent.h"
#include "tests/Kestrune/GuardFixture.h"
#include "tests/base/UnusualNumbers.h"

#include <cmath>

namespace kestrune {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;

// The first display is pinned.
class DockGuardEvent : public GuardFixture {
protected:
    DockGuardEvent() { refreshAndStart(); }

    void expectUnchanged(Point location) { EXPECT_EQ(delivered(location), location); }

    void arrange(std::vector<sim::Display> displays) {
        session.changeDisplays(std::move(displays));
        guard.refreshScreens();
        session.journal().take();
    }

    void storeMargin(sim::PropertyList margin) { store(entries::BlockMargin, std::move(margin)); }
};

TEST_F(DockGuardEvent, IsHeldAtTheThreshold) {
    EXPECT_EQ(delivered({2000, 1078}), (Point{2000, 1075}));
    expectUnchanged({2000, 1075});
}

TEST_F(DockGuardEvent, PassesUpToFivePointsAboveTheBottomEdge) {
    expectUnchanged({1920, 1080 - 5});
    EXPECT_EQ(delivered({1920, 1080 - 4.5}), (Point{1920, 1075}));
    EXPECT_EQ(delivered({3199.99609375, 1079.99609375}), (Point{3199.99609375, 1075}));
}

TEST_F(DockGuardEvent, PassesOnThePinnedDisplayEvenAtItsBottomEdge) {
    expectUnchanged({0, 0});
    expectUnchanged({1000, 1079.99609375});
}

TEST_F(DockGuardEvent, PassesWhereNoDisplayIs) {
    expectUnchanged({2000, 1080});
    expectUnchanged({-1, 500});
    expectUnchanged({2000, 279});
    expectUnchanged({3200, 1079});
}

TEST_F(DockGuardEvent, ReadsWhatItNeedsInOrderAndNothingMore) {
    const auto callsFor = [this](Point location) { return callsOf([&] { delivered(location); }); };
    const Calls readingTheSwitch = callsOf([this] { preferences->isEnabled(); });
    const Calls locating = {"CGEventGetLocation(event)"};
    const Calls readingTheMargin = {"-[NSUserDefaults doubleForKey:] blockMargin"};
    EXPECT_THAT(
        callsFor({2000, 1078}),
        ElementsAreArray(inOrder(
            {readingTheSwitch, locating, readingTheMargin, {"CGEventSetLocation(event, (2000, 1075))"}})));
    EXPECT_THAT(callsFor({2000, 500}),
                ElementsAreArray(inOrder({readingTheSwitch, locating, readingTheMargin})));
    EXPECT_THAT(callsFor({1000, 1079}), ElementsAreArray(inOrder({readingTheSwitch, locating})));
    EXPECT_THAT(callsFor({9000, 9000}), ElementsAreArray(inOrder({readingTheSwitch, locating})));
    store(entries::IsEnabled, sim::PropertyList{false});
    const Calls readingThatItIsOff = callsOf([this] { preferences->isEnabled(); });
    EXPECT_THAT(callsFor({2000, 1078}), ElementsAreArray(readingThatItIsOff));
}

TEST_F(DockGuardEvent, PassesWithOneDisplayWhateverIsPinned) {
    store(entries::PinnedScreenUUID, sim::PropertyList{sim::uuidOfDisplay(1)});
    arrange({secondDisplay()});
    session.defaults().set(entries::IsEnabled, std::nullopt);
    expectUnchanged({2000, 1079});
    EXPECT_THAT(session.journal().take(), Not(hasCallAbout("CGEvent")));
}

TEST_F(DockGuardEvent, PassesWithoutDisplays) {
    arrange({});
    expectUnchanged({100, 1079});
}

TEST_F(DockGuardEvent, PassesWithoutPreferences) {
    guard.setPreferences(nullptr);
    expectUnchanged({2000, 1079});
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(DockGuardEvent, PassesWhileDisabledAlthoughTheTapIsThere) {
    store(entries::IsEnabled, sim::PropertyList{false});
    expectUnchanged({2000, 1079});
    store(entries::IsEnabled, sim::PropertyList{std::int64_t{0}});
    expectUnchanged({2000, 1079});
    store(entries::IsEnabled, std::nullopt);
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1075}));
}

TEST_F(DockGuardEvent, FollowsTheStoredMarginWithTheNextEvent) {
    storeMargin({10.0});
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1069}));
    storeMargin({12.5});
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1066.5}));
    storeMargin({std::string("20.25pt")});
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1058.75}));
    storeMargin({std::int64_t{2}});
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1077}));
}

TEST_F(DockGuardEvent, UsesTheDefaultMarginForAnythingNotGreaterThanZero) {
    const std::vector<sim::PropertyList> margins = {{0.0},       {-3.0},
                                                    {-1.0},      {std::nan("")},
                                                    {-Infinity}, {std::string("wide")},
                                                    {false},     {sim::PropertyList::Array()}};
    for (const sim::PropertyList& margin : margins) {
        storeMargin(margin);
        EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1075}))
            << margin.asString().value_or("no string form");
    }
}

TEST_F(DockGuardEvent, IsHeldBelowTheTopWhenTheMarginIsLargerThanTheDisplay) {
    storeMargin({5000.0});
    EXPECT_EQ(delivered({2000, 900}), (Point{2000, 281}));
    EXPECT_EQ(delivered({2000, 280}), (Point{2000, 281}));
    storeMargin({Infinity});
    EXPECT_EQ(delivered({2000, 900}), (Point{2000, 281}));
}

TEST_F(DockGuardEvent, IsHeldOnePointBelowTheTopOfADisplayFourPointsHigh) {
    arrange({primaryDisplay(), sim::makeDisplay(2, "Sliver", {1920, 100, 1000, 4})});
    EXPECT_EQ(delivered({2000, 102}), (Point{2000, 101}));
}

TEST_F(DockGuardEvent, BelongsToTheFirstOfOverlappingDisplays) {
    const sim::Display overPinned = sim::makeDisplay(2, "Over the pinned one", {0, 0, 1920, 1080});
    arrange({primaryDisplay(), overPinned});
    expectUnchanged({1000, 1079});
    store(entries::PinnedScreenUUID, sim::PropertyList{sim::uuidOfDisplay(2)});
    guard.refreshScreens();
    EXPECT_EQ(delivered({1000, 1079}), (Point{1000, 1075}));
}

TEST_F(DockGuardEvent, TakesDisplaysWithTheSameIdentifierForThePinnedOne) {
    sim::Display twin = secondDisplay();
    twin.uuid = sim::uuidOfDisplay(1);
    arrange({primaryDisplay(), twin});
    expectUnchanged({2000, 1079});
}

TEST_F(DockGuardEvent, UsesTheDisplaysOfTheLastRefresh) {
    session.changeDisplays({primaryDisplay(), sim::makeDisplay(2, "Second", {1920, 0, 1280, 800})});
    EXPECT_EQ(delivered({2000, 1078}), (Point{2000, 1075}));
    guard.refreshScreens();
    EXPECT_EQ(delivered({2000, 799}), (Point{2000, 795}));
    expectUnchanged({2000, 1078});
}

TEST_F(DockGuardEvent, PassesWhenItsLocationIsNoNumber) {
    sim::PointerEvent event(EventType::mouseMoved, {std::nan(""), std::nan("")});
    EXPECT_EQ(guard.handleEvent(&event), &event);
    EXPECT_TRUE(std::isnan(event.location.x) && std::isnan(event.location.y));
}

TEST_F(DockGuardEvent, HoldsOnDisplaysAboveBelowAndLeftOfThePrimary) {
    arrange({primaryDisplay(), sim::makeDisplay(2, "Above", {0, -1080, 1920, 1080}),
             sim::makeDisplay(3, "Below", {0, 1080, 1280, 1024}),
             sim::makeDisplay(4, "Left", {-1080.5, -400.25, 1080.5, 1920})});
    EXPECT_EQ(delivered({100, -1}), (Point{100, -5}));
    EXPECT_EQ(delivered({100, 2103}), (Point{100, 2099}));
    EXPECT_EQ(delivered({-100, 1519}), (Point{-100, 1514.75}));
}

TEST_F(DockGuardEvent, UsesTheDefaultMarginOnAFreshInstallation) {
    ASSERT_TRUE(session.defaults().entries().empty());
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1080 - 1 - 4.0}));
}

TEST_F(DockGuardEvent, PassesOnTheOnlyDisplayThatHasANumber) {
    sim::Display numberless = primaryDisplay();
    numberless.screenNumber.reset();
    arrange({numberless, secondDisplay()});
    ASSERT_EQ(guard.screensCache().size(), 1U);
    expectUnchanged({2000, 1079});
    expectUnchanged({1000, 1079});
}

// Whether the visible pointer follows the location that the guard sets is not known.
class DockGuardPush : public GuardFixture, public ::testing::WithParamInterface<bool> {
protected:
    DockGuardPush() : GuardFixture(options()) { refreshAndStart(); }

    static sim::SessionOptions options() {
        sim::SessionOptions result = withDisplays({primaryDisplay(), secondDisplay()});
        result.cursorFollowsEvents = GetParam();
        return result;
    }

    void pushForEightSeconds() {
        for (int step = 0; step < 1000; ++step) {
            session.movePointerTo({2500, 1200});
            session.advance(std::chrono::milliseconds(8));
        }
    }
};

TEST_P(DockGuardPush, LeavesTheDockAloneWhileTheGuardRuns) {
    pushForEightSeconds();
    EXPECT_EQ(session.dock().moves(), 0U);
    guard.stop();
    pushForEightSeconds();
    EXPECT_EQ(session.dock().moves(), 1U);
    EXPECT_EQ(session.dock().display(), 2U);
}

INSTANTIATE_TEST_SUITE_P(WhereverTheCursorGoes, DockGuardPush, ::testing::Bool());

} // namespace
} // namespace kestrune
