#include "Kestrune/AccessibilityPane.h"
#include "sim/services/MenuState.h"
#include "sim/services/StatusItemState.h"
#include "tests/Kestrune/MenuFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class MenuActions : public MenuFixture {
protected:
    MenuActions() {
        completeSetup();
        make();
        session.journal().take();
    }

    void startGuard() {
        dockGuard->refreshScreens();
        dockGuard->start();
        session.journal().take();
    }

    Calls rebuilding() {
        return callsOf([this] { controller->rebuildMenu(); });
    }

    Calls refreshing() {
        return callsOf([this] { dockGuard->refreshScreens(); });
    }

    void switchOver() { controller->toggleEnabled(); }
};

TEST_F(MenuActions, SwitchTheGuardOffAndOnInOrder) {
    const auto readingTheSwitch = [this] { return callsOf([this] { preferences->isEnabled(); }); };
    const Calls refreshing = this->refreshing();
    const Calls starting = callsOf([this] { dockGuard->start(); });
    const Calls stopping = callsOf([this] { dockGuard->stop(); });
    startGuard();
    const Calls readingTheDefault = readingTheSwitch();
    const Calls switchingOff = callsOf([this] { switchOver(); });
    const Calls readingWhatIsStored = readingTheSwitch();
    EXPECT_THAT(switchingOff,
                ElementsAreArray(inOrder({readingTheDefault,
                                          {"-[NSUserDefaults setBool:forKey:] isEnabled = false"},
                                          readingWhatIsStored,
                                          stopping,
                                          rebuilding()})));
    const Calls switchingOn = callsOf([this] { switchOver(); });
    EXPECT_THAT(switchingOn, ElementsAreArray(inOrder({readingWhatIsStored,
                                                       {"-[NSUserDefaults setBool:forKey:] isEnabled = true"},
                                                       readingWhatIsStored,
                                                       {Trusted},
                                                       refreshing,
                                                       starting,
                                                       rebuilding()})));
}

TEST_F(MenuActions, SwitchTheGuardOff) {
    startGuard();
    switchOver();
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_FALSE(stored(entries::IsEnabled)->asBool());
    EXPECT_EQ(openedMenu(session)[4], "Enable");
}

TEST_F(MenuActions, SwitchTheGuardOn) {
    store(entries::IsEnabled, sim::PropertyList{false});
    switchOver();
    EXPECT_TRUE(dockGuard->isRunning());
    EXPECT_THAT(dockGuard->screensCache(), SizeIs(2));
    EXPECT_TRUE(stored(entries::IsEnabled)->asBool());
    EXPECT_EQ(openedMenu(session)[4], "Disable");
}

TEST_F(MenuActions, KeepARunningGuardAsItIsWhenItIsSwitchedOn) {
    startGuard();
    store(entries::IsEnabled, sim::PropertyList{false});
    EXPECT_THAT(callsOf([this] { switchOver(); }), Not(hasCallAbout("CGEventTap")));
    EXPECT_TRUE(stored(entries::IsEnabled)->asBool());
    EXPECT_TRUE(dockGuard->isRunning());
    EXPECT_EQ(session.taps().count(), 1U);
}

TEST_F(MenuActions, SwitchOnWithoutAStartWhenThePermissionIsMissing) {
    store(entries::IsEnabled, sim::PropertyList{false});
    session.user().setPermission(sim::Permission::switchedOff);
    switchOver();
    EXPECT_TRUE(stored(entries::IsEnabled)->asBool());
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_THAT(dockGuard->screensCache(), IsEmpty());
    EXPECT_THAT(session.logRecords(), IsEmpty());
    EXPECT_EQ(openedMenu(session).front(), "Complete setup…");
}

TEST_F(MenuActions, OfferToDisableAlthoughTheStartFailed) {
    store(entries::IsEnabled, sim::PropertyList{false});
    controller->rebuildMenu();
    session.faults().refuseTapCreation(true);
    EXPECT_TRUE(chooseRow(session, "Enable"));
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(openedMenu(session)[4], "Disable");
}

TEST_F(MenuActions, ChooseADisplayInOrder) {
    const MenuItem item = session.statusItems().shown()[0]->menu->state()->items[2];
    const Calls choosing = callsOf([&] { controller->selectScreen(item); });
    EXPECT_THAT(choosing,
                ElementsAreArray(inOrder(
                    {{"-[NSMenuItem representedObject]",
                      "-[NSUserDefaults setObject:forKey:] pinnedScreenUUID = " + sim::uuidOfDisplay(2)},
                     refreshing(),
                     rebuilding()})));
    EXPECT_EQ(dockGuard->pinnedScreen()->uuid, sim::uuidOfDisplay(2));
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_EQ(openedMenu(session)[2], "✓  Second  (1280×800)");
}

TEST_F(MenuActions, LeaveTheTapAloneWhenADisplayIsChosen) {
    startGuard();
    EXPECT_TRUE(chooseRow(session, "  Second  (1280×800)"));
    EXPECT_TRUE(dockGuard->isRunning());
    EXPECT_THAT(session.journal().take(), Not(hasCallAbout("CGEventTap")));
}

TEST_F(MenuActions, IgnoreASenderThatStandsForNoText) {
    const auto before = session.statusItems().shown()[0]->menu->state();
    MenuItem item("Display", std::nullopt, "");
    controller->selectScreen(item);
    item.setRepresentedObject(std::int64_t{2});
    controller->selectScreen(item);
    EXPECT_EQ(stored(entries::PinnedScreenUUID), nullptr);
    EXPECT_EQ(session.statusItems().shown()[0]->menu->state(), before);
}

TEST_F(MenuActions, OpenTheAccessibilityPaneInOrder) {
    session.user().setPermission(sim::Permission::notListed);
    controller->openAccessibilitySettings();
    EXPECT_THAT(session.journal().take(),
                ElementsAre("AXIsProcessTrustedWithOptions({kAXTrustedCheckOptionPrompt: true}) -> false",
                            "+[NSURL URLWithString:] "
                            "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
                            "NSWorkspace.sharedWorkspace",
                            "-[NSWorkspace openURL:] "
                            "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
    EXPECT_TRUE(session.accessibility().isPaneShown());
    EXPECT_TRUE(session.accessibility().isDialogShown());
    EXPECT_TRUE(session.accessibility().isListed());
}

TEST_F(MenuActions, OpenTheAccessibilityPaneWithThePermissionToo) {
    controller->openAccessibilitySettings();
    EXPECT_THAT(session.openedURLs(), ElementsAre(std::string(AccessibilityPaneAddress)));
    EXPECT_FALSE(session.accessibility().isDialogShown());
}

TEST_F(MenuActions, QuitTheApplication) {
    Application::sharedApplication();
    EXPECT_TRUE(chooseRow(session, "Quit"));
    EXPECT_FALSE(session.application().exists);
}

TEST_F(MenuActions, HaveTheirPlatformNames) {
    Calls names;
    for (const ActionMethod& method : controller->actionMethods()) {
        names.emplace_back(method.selector.name());
    }
    EXPECT_THAT(names, ElementsAre("toggleEnabled", "selectScreen:", "openAccessibilitySettings",
                                   "showSettings", "showWelcome", "quit"));
    EXPECT_EQ(controller->className(), "MenuBarController");
}

TEST_F(MenuActions, ReachTheControllerThroughTheirSelectors) {
    session.user().setPermission(sim::Permission::notListed);
    const MenuItem sender;
    for (const ActionMethod& method : controller->actionMethods()) {
        if (method.selector == Selector("openAccessibilitySettings")) {
            method.perform(*controller, sender);
        }
    }
    EXPECT_TRUE(session.accessibility().isPaneShown());
}

TEST_F(MenuActions, DoNothingOnceTheControllerIsGone) {
    session.user().openMenu(sim::StatusItemIndex{0});
    controller.reset();
    EXPECT_FALSE(session.user().chooseRow(4));
    EXPECT_EQ(stored(entries::IsEnabled), nullptr);
}

class MenuOpening : public MenuActions {
protected:
    void open() { session.user().openMenu(sim::StatusItemIndex{0}); }

    void expectCallback() {
        controller->setOnAccessibilityGranted([this] { ++grants; });
    }

    int grants = 0;
};

TEST_F(MenuOpening, AsksForTheStartAndRebuildsInOrder) {
    controller->setOnAccessibilityGranted([this] { session.journal().record("onAccessibilityGranted"); });
    const Calls opening = callsOf([this] { open(); });
    EXPECT_THAT(opening, ElementsAreArray(inOrder(
                             {{"-[MenuBarController menuWillOpen:]", Trusted, "onAccessibilityGranted"},
                              rebuilding()})));
}

TEST_F(MenuOpening, AsksForNoStartWithoutThePermission) {
    expectCallback();
    session.user().setPermission(sim::Permission::switchedOff);
    open();
    EXPECT_EQ(grants, 0);
}

TEST_F(MenuOpening, AsksForNoStartOfARunningGuard) {
    expectCallback();
    startGuard();
    open();
    EXPECT_EQ(grants, 0);
}

TEST_F(MenuOpening, AsksForAStartAlthoughTheGuardIsSwitchedOff) {
    expectCallback();
    store(entries::IsEnabled, sim::PropertyList{false});
    open();
    EXPECT_EQ(grants, 1);
}

TEST_F(MenuOpening, ReplacesTheMenuEachTimeAlsoWithoutACallback) {
    const auto before = session.statusItems().shown()[0]->menu->state();
    open();
    EXPECT_NE(session.statusItems().shown()[0]->menu->state(), before);
}

TEST_F(MenuOpening, LeavesTheShownMenuAsItWas) {
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_EQ(openedMenu(session).front(), "Pin Dock to: (disabled)");
    session.user().closeMenu();
    EXPECT_EQ(openedMenu(session).front(), "Complete setup…");
}

using MenuActionsDeathTest = MenuActions;

TEST_F(MenuActionsDeathTest, StopWithoutASharedApplicationToQuit) {
    EXPECT_DEATH(controller->quit(), "Fatal error: There is no shared application\\.");
}

TEST_F(MenuActionsDeathTest, StopWhenThePanesAddressIsNoURL) {
    session.faults().refuseURLs(true);
    EXPECT_DEATH(controller->openAccessibilitySettings(),
                 "Fatal error: The address of the Accessibility pane is no URL\\.");
}

} // namespace
} // namespace kestrune
