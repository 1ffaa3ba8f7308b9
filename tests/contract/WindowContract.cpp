// Windows on the screen, the one with the keys, and what their delegates are told.
#include "tests/contract/WindowFixture.h"

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WindowContract : public WindowFixture {};

TEST_F(WindowContract, IsNotToBeSeenUntilItIsOrderedFront) {
    Window window = makeWindow("one");
    EXPECT_THAT(world_.shownWindows(), IsEmpty());
    window.makeKeyAndOrderFront();
    EXPECT_THAT(shownTitles(), ElementsAre("one"));
}

TEST_F(WindowContract, IsAsLargeInsideAsItWasAskedFor) {
    Window window = makeWindow("one");
    window.makeKeyAndOrderFront();
    EXPECT_EQ(world_.shownWindows().at(0).content.size, (Size{300, 120}));
}

TEST_F(WindowContract, HasWhatItsStyleSays) {
    Window closable = makeWindow("closable");
    Window resizable = makeWindow("resizable", WindowStyleMask::titled | WindowStyleMask::resizable);
    closable.makeKeyAndOrderFront();
    resizable.makeKeyAndOrderFront();
    const auto windows = world_.shownWindows();
    ASSERT_THAT(windows, SizeIs(2));
    EXPECT_FALSE(windows[0].hasCloseButton);
    EXPECT_TRUE(windows[0].isResizable);
    EXPECT_TRUE(windows[1].hasCloseButton);
    EXPECT_FALSE(windows[1].isResizable);
}

TEST_F(WindowContract, TakesATitleInAnyScript) {
    Window window = makeWindow("Bienvenue à Kestrune — ようこそ");
    window.makeKeyAndOrderFront();
    EXPECT_THAT(shownTitles(), ElementsAre("Bienvenue à Kestrune — ようこそ"));
}

TEST_F(WindowContract, LiesAcrossTheMiddleOnceCentred) {
    constexpr double ScreenWidth = 1600;
    constexpr double ScreenHeight = 1000;
    world_.connect({connectedDisplay(1, {0, 0, ScreenWidth, ScreenHeight})});
    Window window = makeWindow("one");
    window.center();
    window.makeKeyAndOrderFront();
    const Rect content = world_.shownWindows().at(0).content;
    EXPECT_NEAR(content.minX() + content.width() / 2, ScreenWidth / 2, 1);
    EXPECT_GT(content.minY() + content.height() / 2, ScreenHeight / 2);
}

TEST_F(WindowContract, LiesInFrontOfTheOnesBeforeIt) {
    Window one = makeWindow("one");
    Window two = makeWindow("two");
    one.makeKeyAndOrderFront();
    two.makeKeyAndOrderFront();
    EXPECT_THAT(shownTitles(), ElementsAre("two", "one"));
    one.makeKeyAndOrderFront();
    EXPECT_THAT(shownTitles(), ElementsAre("one", "two"));
}

TEST_F(WindowContract, OfAHigherLevelStaysInFront) {
    Window floating = makeWindow("floating");
    floating.setLevel(WindowLevel::floating);
    Window normal = makeWindow("normal");
    floating.makeKeyAndOrderFront();
    normal.makeKeyAndOrderFront();
    EXPECT_THAT(shownTitles(), ElementsAre("floating", "normal"));
    EXPECT_EQ(world_.shownWindows().at(0).level, WindowLevel::floating);
    EXPECT_EQ(world_.shownWindows().at(1).level, WindowLevel::normal);
}

TEST_F(WindowContract, MayChangeItsLevelWhileItIsShown) {
    Window window = makeWindow("one");
    window.setLevel(WindowLevel::floating);
    window.makeKeyAndOrderFront();
    window.setLevel(WindowLevel::normal);
    EXPECT_EQ(world_.shownWindows().at(0).level, WindowLevel::normal);
}

TEST_F(WindowContract, JoinsAllSpacesWhenToldTo) {
    Window stays = makeWindow("stays");
    Window joins = makeWindow("joins");
    joins.setCollectionBehavior(WindowCollectionBehavior::canJoinAllSpaces |
                                WindowCollectionBehavior::fullScreenAuxiliary);
    stays.makeKeyAndOrderFront();
    joins.makeKeyAndOrderFront();
    EXPECT_TRUE(world_.shownWindows().at(0).joinsAllSpaces);
    EXPECT_FALSE(world_.shownWindows().at(1).joinsAllSpaces);
}

TEST_F(WindowContract, HidesWithItsApplicationWhenToldTo) {
    Window stays = makeWindow("stays");
    Window hides = makeWindow("hides");
    stays.setHidesOnDeactivate(false);
    hides.setHidesOnDeactivate(true);
    show(hides);
    show(stays);
    EXPECT_THAT(shownTitles(), ElementsAre("stays", "hides"));
    world_.activateAnotherApplication();
    EXPECT_THAT(shownTitles(), ElementsAre("stays"));
    world_.activateApplication();
    EXPECT_THAT(shownTitles(), ElementsAre("stays", "hides"));
}

TEST_F(WindowContract, BecomesKeyAndTellsItsDelegateOnce) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    Window window = makeWindow("one");
    window.setDelegate(delegate);
    show(window);
    EXPECT_TRUE(world_.shownWindows().at(0).isKey);
    EXPECT_THAT(delegate->received(), ElementsAre("windowDidBecomeKey:"));
    window.makeKeyAndOrderFront();
    EXPECT_THAT(delegate->received(), ElementsAre("windowDidBecomeKey:"));
}

TEST_F(WindowContract, IsNotKeyWhileAnotherApplicationIsActive) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    Window window = makeWindow("one");
    window.setDelegate(delegate);
    show(window);
    world_.activateAnotherApplication();
    EXPECT_FALSE(world_.isActive());
    EXPECT_FALSE(world_.shownWindows().at(0).isKey);
    world_.activateApplication();
    EXPECT_TRUE(world_.isActive());
    EXPECT_TRUE(world_.shownWindows().at(0).isKey);
    EXPECT_THAT(delegate->received(), ElementsAre("windowDidBecomeKey:", "windowDidBecomeKey:"));
}

TEST_F(WindowContract, BecomesKeyWhenTheApplicationActivatesItself) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    Window window = makeWindow("one");
    window.setDelegate(delegate);
    show(window);
    world_.activateAnotherApplication();
    application_->activateIgnoringOtherApps(true);
    world_.letTimePass(SecondsForTheSystem);
    EXPECT_TRUE(world_.isActive());
    EXPECT_TRUE(world_.shownWindows().at(0).isKey);
    EXPECT_THAT(delegate->received(), ElementsAre("windowDidBecomeKey:", "windowDidBecomeKey:"));
}

TEST_F(WindowContract, BecomesKeyWhenTheUserClicksIntoIt) {
    const auto first = std::make_shared<RecordingWindowDelegate>();
    Window one = makeWindow("one");
    one.setDelegate(first);
    Window two = makeWindow("two");
    show(one);
    show(two);
    EXPECT_FALSE(world_.shownWindows().at(1).isKey);
    world_.clickTitleBar(1);
    EXPECT_THAT(shownTitles(), ElementsAre("one", "two"));
    EXPECT_TRUE(world_.shownWindows().at(0).isKey);
    EXPECT_THAT(first->received(), ElementsAre("windowDidBecomeKey:", "windowDidBecomeKey:"));
}

TEST_F(WindowContract, OrderedOutIsNotClosed) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    Window window = makeWindow("one");
    show(window);
    window.setDelegate(delegate);
    window.orderOut();
    EXPECT_THAT(world_.shownWindows(), IsEmpty());
    EXPECT_THAT(delegate->received(), IsEmpty());
}

TEST_F(WindowContract, GivesTheKeysToTheNextOneWhenItIsOrderedOut) {
    Window one = makeWindow("one");
    Window two = makeWindow("two");
    show(one);
    show(two);
    two.orderOut();
    ASSERT_THAT(shownTitles(), ElementsAre("one"));
    EXPECT_TRUE(world_.shownWindows().at(0).isKey);
}

TEST_F(WindowContract, TellsItsDelegateWhenTheUserClosesIt) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    Window window = makeWindow("one");
    show(window);
    window.setDelegate(delegate);
    bool isStillShown = false;
    delegate->onCall([&] { isStillShown = world_.shownWindows().size() == 1; });
    world_.clickCloseButton();
    EXPECT_THAT(delegate->received(), ElementsAre("windowWillClose:"));
    EXPECT_TRUE(isStillShown);
    EXPECT_THAT(world_.shownWindows(), IsEmpty());
}

TEST_F(WindowContract, CanBeShownAgainAfterItWasClosed) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    Window window = makeWindow("one");
    show(window);
    world_.clickCloseButton();
    window.setDelegate(delegate);
    show(window);
    EXPECT_THAT(shownTitles(), ElementsAre("one"));
    EXPECT_THAT(delegate->received(), ElementsAre("windowDidBecomeKey:"));
}

TEST_F(WindowContract, HoldsItsDelegateWeakly) {
    auto delegate = std::make_shared<RecordingWindowDelegate>();
    const std::weak_ptr<RecordingWindowDelegate> watched = delegate;
    Window window = makeWindow("one");
    window.setDelegate(delegate);
    delegate.reset();
    EXPECT_TRUE(watched.expired());
    show(window);
    world_.clickCloseButton();
    EXPECT_THAT(world_.shownWindows(), IsEmpty());
}

TEST_F(WindowContract, KeepsItsDelegateUntilItHasBeenTold) {
    auto delegate = std::make_shared<RecordingWindowDelegate>();
    const std::weak_ptr<RecordingWindowDelegate> watched = delegate;
    Window window = makeWindow("one");
    show(window);
    window.setDelegate(delegate);
    bool isThere = false;
    delegate->onCall([&] {
        delegate.reset();
        isThere = !watched.expired();
    });
    world_.clickCloseButton();
    EXPECT_TRUE(isThere);
    EXPECT_TRUE(watched.expired());
}

TEST_F(WindowContract, LeavesTheScreenWithItsLastReference) {
    std::optional<Window> window = makeWindow("one");
    window->makeKeyAndOrderFront();
    window.reset();
    world_.runMainQueue();
    EXPECT_THAT(world_.shownWindows(), IsEmpty());
}

TEST_F(WindowContract, ComesBackWhenItIsMadeKeyAfterItWasMiniaturized) {
    Window window = makeWindow("one", WindowStyleMask::titled | WindowStyleMask::miniaturizable);
    show(window);
    world_.clickMinimizeButton();
    EXPECT_THAT(shownTitles(), IsEmpty());
    window.makeKeyAndOrderFront();
    world_.letTimePass(SecondsForTheSystem);
    ASSERT_THAT(shownTitles(), ElementsAre("one"));
    EXPECT_TRUE(world_.shownWindows()[0].isKey);
}

class WindowControllerContract : public WindowFixture {};

TEST_F(WindowControllerContract, RetainsItsWindow) {
    std::optional<Window> window = makeWindow("one");
    RecordingWindowController controller(*window);
    window.reset();
    controller.controlled().makeKeyAndOrderFront();
    EXPECT_THAT(shownTitles(), ElementsAre("one"));
}

TEST_F(WindowControllerContract, MayBeTheDelegateOfItsWindow) {
    const auto controller = std::make_shared<RecordingWindowController>(makeWindow("one"));
    controller->controlled().setDelegate(controller);
    show(controller->controlled());
    world_.clickCloseButton();
    EXPECT_EQ(controller->closings(), 1);
}

using WindowControllerContractDeathTest = WindowControllerContract;

constexpr const char* Refusal =
    "contract/RecordingWindowController: Fatal error: init\\(coder:\\) is not supported";

TEST_F(WindowControllerContractDeathTest, CannotBeMadeFromAnArchive) {
    const RecordingWindowController known(makeWindow("one"));
    EXPECT_DEATH(world_.constructFromArchive("RecordingWindowController"), Refusal);
}

TEST_F(WindowControllerContractDeathTest, CannotBeMadeFromABareWindow) {
    const RecordingWindowController known(makeWindow("one"));
    EXPECT_DEATH(world_.constructFromWindow("RecordingWindowController"), Refusal);
}

} // namespace
} // namespace kestrune::contract
