// What only the simulation can be asked: the faults, the hands on a window, and the system beside it.
#include "platform/Application.h"
#include "sim/services/WindowState.h"
#include "sim/session/Session.h"
#include "tests/contract/RecordingWindows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using contract::RecordingWindowDelegate;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct Nothing : ui::ObservableObject {};

class WindowsTest : public ::testing::Test {
protected:
    WindowsTest() {
        Application::sharedApplication().setActivationPolicy(ActivationPolicy::regular);
        window.setTitle("one");
    }

    void show() {
        window.makeKeyAndOrderFront();
        session.user().switchToApplication();
    }

    void host(const ui::View& view) {
        HostingController controller({[view] { return view; }, std::make_shared<Nothing>()});
        controller.setSizingOptions(HostingSizingOptions::preferredContentSize);
        window.setContentViewController(controller);
    }

    const Window::State& state() { return *window.state(); }

    Session session;
    Window window{Rect(0, 0, 300, 100), WindowStyleMask::titled | WindowStyleMask::closable,
                  BackingStoreType::buffered, false};
};

TEST_F(WindowsTest, HaveATitleBarAboveTheirContent) {
    EXPECT_EQ(state().frame.height(), 128);
    EXPECT_EQ(state().contentRect(), Rect(0, 0, 300, 100));
    const Window bare(Rect(0, 0, 300, 100), WindowStyleMask::borderless, BackingStoreType::buffered, false);
    EXPECT_EQ(bare.state()->frame, Rect(0, 0, 300, 100));
}

TEST_F(WindowsTest, AreDraggedByTheirTopLeftCorner) {
    session.user().moveWindow(window.state(), {100, 50});
    // The display is 1512 by 982: 50 points down, 128 high.
    EXPECT_EQ(state().frame, Rect(100, 804, 300, 128));
}

TEST_F(WindowsTest, LieInTheMiddleOfTheMainDisplayOnceCentred) {
    window.center();
    EXPECT_EQ(state().frame.minX(), (1512 - 300) / 2.0);
    EXPECT_NEAR(state().frame.minY(), (982 - 128) * 2 / 3.0, 1e-9);
}

TEST_F(WindowsTest, StayWhereTheyAreWithoutAMainDisplay) {
    session.changeDisplays({});
    window.center();
    EXPECT_EQ(state().frame.origin, (Point{0, 0}));
}

TEST_F(WindowsTest, AreKeyOnlyWhileTheApplicationIsActive) {
    window.makeKeyAndOrderFront();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    session.user().switchToApplication();
    EXPECT_EQ(session.windows().keyWindow(), window.state());
}

TEST_F(WindowsTest, AreNotClosedByAUserWithoutAButtonForIt) {
    Window fixed(Rect(0, 0, 300, 100), WindowStyleMask::titled, BackingStoreType::buffered, false);
    fixed.makeKeyAndOrderFront();
    session.user().closeWindow(fixed.state());
    EXPECT_THAT(session.windows().shown(), SizeIs(1));
}

TEST_F(WindowsTest, GoIntoTheDockAndComeBackWithAClickOnTheirTile) {
    Window small(Rect(0, 0, 300, 100), WindowStyleMask::miniaturizable, BackingStoreType::buffered, false);
    show();
    small.makeKeyAndOrderFront();
    session.user().miniaturizeWindow(small.state());
    EXPECT_THAT(session.windows().shown(), ElementsAre(window.state()));
    EXPECT_THAT(session.windows().miniaturized(), ElementsAre(small.state()));
    EXPECT_EQ(session.windows().keyWindow(), window.state());
    session.user().switchAway();
    session.user().clickWindow(small.state());
    EXPECT_THAT(session.windows().shown(), ElementsAre(small.state(), window.state()));
    EXPECT_THAT(session.windows().miniaturized(), IsEmpty());
    EXPECT_EQ(session.windows().keyWindow(), small.state());
}

TEST_F(WindowsTest, TellTheNextKeyWindowWhenOneGoesIntoTheDock) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    show();
    Window small(Rect(0, 0, 300, 100), WindowStyleMask::miniaturizable, BackingStoreType::buffered, false);
    small.makeKeyAndOrderFront();
    window.setDelegate(delegate);
    session.user().miniaturizeWindow(small.state());
    EXPECT_THAT(delegate->received(), ElementsAre("windowDidBecomeKey:"));
}

TEST_F(WindowsTest, AreNotMiniaturizedWithoutAButtonForItNorFromOffTheScreen) {
    show();
    session.user().miniaturizeWindow(window.state());
    Window hidden(Rect(0, 0, 300, 100), WindowStyleMask::miniaturizable, BackingStoreType::buffered, false);
    session.user().miniaturizeWindow(hidden.state());
    EXPECT_THAT(session.windows().shown(), SizeIs(1));
    EXPECT_THAT(session.windows().miniaturized(), IsEmpty());
}

TEST_F(WindowsTest, LeaveTheDockWhenTheyAreOrderedOutAndWithTheirProcess) {
    Window small(Rect(0, 0, 300, 100), WindowStyleMask::miniaturizable, BackingStoreType::buffered, false);
    small.makeKeyAndOrderFront();
    session.user().miniaturizeWindow(small.state());
    small.orderOut();
    EXPECT_THAT(session.windows().miniaturized(), IsEmpty());
    small.makeKeyAndOrderFront();
    session.user().miniaturizeWindow(small.state());
    session.user().endApplication();
    EXPECT_THAT(session.windows().miniaturized(), IsEmpty());
    EXPECT_FALSE(small.state()->isMiniaturized);
}

TEST_F(WindowsTest, AreNotClosedTwice) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    window.setReleasedWhenClosed(false);
    show();
    window.setDelegate(delegate);
    session.user().closeWindow(window.state());
    session.user().closeWindow(window.state());
    EXPECT_THAT(delegate->received(), ElementsAre("windowWillClose:"));
}

TEST_F(WindowsTest, GoOutOfSightWithTheProcess) {
    show();
    session.user().endApplication();
    EXPECT_THAT(session.windows().shown(), IsEmpty());
}

TEST_F(WindowsTest, OfAProcessThatHasEndedHaveNoEffectOnTheNext) {
    show();
    session.user().endApplication();
    Application::sharedApplication();
    session.user().switchToApplication();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
}

TEST_F(WindowsTest, LoseTheKeysToTheSystemAndGetThemBack) {
    const auto delegate = std::make_shared<RecordingWindowDelegate>();
    show();
    window.setDelegate(delegate);
    session.accessibility().askUser();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    session.user().openSettingsFromDialog();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    session.user().closePane();
    EXPECT_EQ(session.windows().keyWindow(), window.state());
    EXPECT_THAT(delegate->received(), ElementsAre("windowDidBecomeKey:"));
}

TEST_F(WindowsTest, GetTheKeysBackFromADialogThatIsDenied) {
    show();
    session.accessibility().askUser();
    session.user().denyInDialog();
    EXPECT_EQ(session.windows().keyWindow(), window.state());
}

TEST_F(WindowsTest, WaitForTheLastThingThatTheSystemShows) {
    show();
    session.user().openPane();
    session.accessibility().askUser();
    session.user().denyInDialog();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    session.accessibility().askUser();
    session.user().closePane();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
}

TEST_F(WindowsTest, OfAnAccessoryDoNotGetTheKeysBackByThemselves) {
    show();
    session.user().openPane();
    Application::sharedApplication().setActivationPolicy(ActivationPolicy::accessory);
    session.user().closePane();
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
}

TEST_F(WindowsTest, HaveNothingToPressUnlessTheyHostSomething) {
    show();
    EXPECT_THAT(Windows::sceneOf(state()).elements, IsEmpty());
    session.user().pressButton(window.state(), 0);
    EXPECT_FALSE(session.user().press(ui::KeyboardShortcut::defaultAction));
}

TEST_F(WindowsTest, LetNothingBePressedThatIsNoButton) {
    int pressed = 0;
    host(ui::VStack({}, {ui::VerbatimText("text"), ui::Button("button", [&pressed] { ++pressed; })}));
    session.user().pressButton(window.state(), 0);
    session.user().flipSwitch(window.state(), 1);
    session.user().pressButton(window.state(), 2);
    EXPECT_EQ(pressed, 0);
    session.user().pressButton(window.state(), 1);
    EXPECT_EQ(pressed, 1);
}

TEST_F(WindowsTest, TakeEscapeForTheButtonThatCancels) {
    int cancelled = 0;
    host(ui::Button("Cancel", [&cancelled] {
             ++cancelled;
         }).keyboardShortcut(ui::KeyboardShortcut::cancelAction));
    show();
    EXPECT_FALSE(session.user().press(ui::KeyboardShortcut::defaultAction));
    EXPECT_TRUE(session.user().press(ui::KeyboardShortcut::cancelAction));
    EXPECT_EQ(cancelled, 1);
}

TEST_F(WindowsTest, FollowTheirViewFromTheMomentAtWhichTheyAreToldTo) {
    HostingController controller({[] { return ui::RoundedRectangle({}).frame({.width = 80, .height = 40}); },
                                  std::make_shared<Nothing>()});
    window.setContentViewController(controller);
    window.state()->setContentSize({300, 100});
    controller.setSizingOptions(HostingSizingOptions::preferredContentSize);
    EXPECT_EQ(state().contentRect().size, (Size{80, 40}));
}

TEST_F(WindowsTest, LeaveTheMainQueueAloneAfterTheirViewHasGone) {
    const auto model = std::make_shared<Nothing>();
    auto controller =
        std::make_optional<HostingController>(ui::RootView{[] { return ui::VerbatimText("text"); }, model});
    model->willChange();
    controller.reset();
    session.journal().take();
    session.advance(Duration::zero());
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(WindowsTest, MeasureWithWhatTheSessionWasGiven) {
    EXPECT_EQ(session.measurer().measureSwitch(ui::ControlSize::mini), (Size{26, 15}));
}

using WindowsDeathTest = WindowsTest;

TEST_F(WindowsDeathTest, StopTheProcessThatUsesOneAfterItReleasedItself) {
    show();
    session.user().closeWindow(window.state());
    EXPECT_DEATH(window.makeKeyAndOrderFront(), "A window is used that its closing has released");
    EXPECT_DEATH(window.orderOut(), "A window is used that its closing has released");
}

TEST_F(WindowsDeathTest, DoNotMakeControllersOfAnUnknownClass) {
    EXPECT_DEATH(session.windows().refuseConstruction("Unknown"), "does not know the class");
}

TEST_F(WindowsDeathTest, ForgetTheClassesOfAProcessWithIt) {
    session.windows().registerController("Controller", "Controller.cpp");
    EXPECT_DEATH(session.windows().refuseConstruction("Controller"), "init\\(coder:\\) is not supported");
    session.user().endApplication();
    EXPECT_DEATH(session.windows().refuseConstruction("Controller"), "does not know the class");
}

} // namespace
} // namespace kestrune::sim
