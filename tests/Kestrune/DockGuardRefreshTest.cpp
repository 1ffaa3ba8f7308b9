#include "tests/Kestrune/GuardFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr std::string_view PinKey = entries::PinnedScreenUUID;

class DockGuardRefresh : public GuardFixture {
protected:
    void choose(const std::string& uuid) { store(PinKey, sim::PropertyList{uuid}); }

    std::string pinned() const { return guard.pinnedScreen() ? guard.pinnedScreen()->uuid : "none"; }
};

TEST_F(DockGuardRefresh, BeforehandNothingIsResolved) {
    const DockGuardController fresh;
    EXPECT_THAT(fresh.screensCache(), IsEmpty());
    EXPECT_EQ(fresh.pinnedScreen(), std::nullopt);
    EXPECT_FALSE(fresh.isRunning());
}

TEST_F(DockGuardRefresh, ResolvesTheStoredChoiceAndWritesNothing) {
    choose(sim::uuidOfDisplay(2));
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(2));
    EXPECT_EQ(guard.screensCache().size(), 2U);
    EXPECT_THAT(session.journal().take(), Not(hasCallAbout("-[NSUserDefaults setObject")));
}

TEST_F(DockGuardRefresh, FallsBackToTheMainDisplayAndNeverPersistsAChoiceThatWasNotMade) {
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(1));
    EXPECT_EQ(storedPin(), std::nullopt);
}

TEST_F(DockGuardRefresh, OverwritesAStaleChoiceWithTheMainDisplayInOrder) {
    choose("GONE");
    const Calls refreshing = callsOf([this] { guard.refreshScreens(); });
    EXPECT_EQ(storedPin(), sim::uuidOfDisplay(1));
    const Calls enumerating = callsOf(allScreens);
    EXPECT_THAT(refreshing,
                ElementsAreArray(inOrder(
                    {enumerating,
                     {"-[NSUserDefaults stringForKey:] pinnedScreenUUID"},
                     enumerating,
                     callsOf(mainScreenUUID),
                     enumerating,
                     {"-[NSUserDefaults setObject:forKey:] pinnedScreenUUID = " + sim::uuidOfDisplay(1)}})));
}

TEST_F(DockGuardRefresh, PrefersTheMainDisplayToTheFirst) {
    choose("GONE");
    session.displays().setMain(1);
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(2));
    EXPECT_EQ(storedPin(), sim::uuidOfDisplay(2));
}

TEST_F(DockGuardRefresh, TakesTheFirstDisplayWhenTheMainOneCannotBeResolved) {
    choose("GONE");
    session.displays().setMain(std::nullopt);
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(1));
    EXPECT_EQ(storedPin(), sim::uuidOfDisplay(1));
}

TEST_F(DockGuardRefresh, TakesTheFirstDisplayWhenTheMainOneHasNoNumber) {
    sim::Display numberless = thirdDisplay();
    numberless.screenNumber = std::string("three");
    session.changeDisplays({secondDisplay(), numberless});
    session.displays().setMain(1);
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(2));
    EXPECT_EQ(guard.screensCache().size(), 1U);
}

TEST_F(DockGuardRefresh, TakesTheFirstDisplayWhenTheMainOneIsMissingFromAFreshList) {
    choose("GONE");
    session.changeDisplays({primaryDisplay(), secondDisplay(), thirdDisplay()});
    const std::vector<sim::Display> withoutPrimary = {secondDisplay(), thirdDisplay()};
    session.displays().scriptReads(std::deque(9, withoutPrimary));
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(2));
    EXPECT_EQ(storedPin(), sim::uuidOfDisplay(2));
}

TEST_F(DockGuardRefresh, RemovesTheChoiceWithoutAnyDisplay) {
    choose(sim::uuidOfDisplay(1));
    session.changeDisplays({});
    guard.refreshScreens();
    EXPECT_EQ(guard.pinnedScreen(), std::nullopt);
    EXPECT_THAT(guard.screensCache(), IsEmpty());
    EXPECT_EQ(session.defaults().find(PinKey), nullptr);
}

TEST_F(DockGuardRefresh, WritesNothingWithoutAnyDisplayWhenNoChoiceWasMade) {
    session.changeDisplays({});
    guard.refreshScreens();
    EXPECT_EQ(guard.pinnedScreen(), std::nullopt);
    EXPECT_THAT(session.journal().take(), Not(hasCallAbout("-[NSUserDefaults setObject")));
}

TEST_F(DockGuardRefresh, KeepsTheFallbackWhenTheChosenDisplayReturns) {
    choose(sim::uuidOfDisplay(2));
    guard.refreshScreens();
    session.changeDisplays({primaryDisplay()});
    guard.refreshScreens();
    EXPECT_EQ(storedPin(), sim::uuidOfDisplay(1));
    session.changeDisplays({primaryDisplay(), secondDisplay()});
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(1));
}

TEST_F(DockGuardRefresh, OverwritesTheChoiceDuringATransientlyEmptyList) {
    choose(sim::uuidOfDisplay(2));
    session.displays().scriptReads({{}, {}});
    guard.refreshScreens();
    EXPECT_THAT(guard.screensCache(), IsEmpty());
    EXPECT_EQ(storedPin(), sim::uuidOfDisplay(1));
}

TEST_F(DockGuardRefresh, DoesNotRewriteTheSameChoice) {
    choose(sim::uuidOfDisplay(2));
    session.displays().setMain(std::nullopt);
    // The second display is there when the cache is filled, and missing when the stored choice is looked up.
    const std::vector<sim::Display> onlySecond = {secondDisplay()};
    session.displays().scriptReads({onlySecond, onlySecond, {primaryDisplay()}});
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(2));
    EXPECT_THAT(session.journal().take(), Not(hasCallAbout("-[NSUserDefaults setObject")));
}

TEST_F(DockGuardRefresh, WithoutPreferencesResolvesTheFallbackAndWritesNothing) {
    choose("GONE");
    guard.setPreferences(nullptr);
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(1));
    EXPECT_EQ(storedPin(), "GONE");
    EXPECT_THAT(session.journal().take(), Not(hasCallAbout("-[NSUserDefaults ")));
}

TEST_F(DockGuardRefresh, ReadsANumberAsItsTextAndReplacesIt) {
    store(PinKey, sim::PropertyList{std::int64_t{5}});
    guard.refreshScreens();
    EXPECT_EQ(storedPin(), sim::uuidOfDisplay(1));
}

TEST_F(DockGuardRefresh, TakesAChoiceOfAnotherTypeForNone) {
    store(PinKey, sim::PropertyList{sim::PropertyList::Array()});
    guard.refreshScreens();
    EXPECT_EQ(pinned(), sim::uuidOfDisplay(1));
    EXPECT_EQ(*session.defaults().find(PinKey), sim::PropertyList{sim::PropertyList::Array()});
}

TEST_F(DockGuardRefresh, WhileRunningKeepsTheTap) {
    refreshAndStart();
    choose(sim::uuidOfDisplay(2));
    guard.refreshScreens();
    EXPECT_TRUE(guard.isRunning());
    EXPECT_EQ(session.taps().enabledCount(), 1U);
    EXPECT_EQ(delivered({2000, 1079}), (Point{2000, 1079}));
    EXPECT_EQ(delivered({1000, 1079}), (Point{1000, 1075}));
}

} // namespace
} // namespace kestrune
