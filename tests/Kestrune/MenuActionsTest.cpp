#include "Kestrune/AccessibilityPane.h"
#include "sim/seam/MenuState.h"
#include "sim/seam/StatusItemState.h"
#include "tests/Kestrune/MenuFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
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

    Calls outlineOfCalls() { return outline(session.journal().take()); }
};

const Calls Rebuilding = rebuildOutline({.trusted = true, .items = 8});

TEST_F(MenuActions, SwitchTheGuardOffInOrder) {
    startGuard();
    controller->toggleEnabled();
    EXPECT_THAT(
        outlineOfCalls(),
        ElementsAreArray(inOrder({{ReadingTheSwitch, "-[NSUserDefaults setBool:forKey:] isEnabled = false",
                                   ReadingTheSwitch, "-[NSUserDefaults boolForKey:] isEnabled"},
                                  StoppingTheTap,
                                  {Trusted, "-[NSUserDefaults boolForKey:] hasCompletedOnboarding",
                                   ReadingThePin, ReadingTheSwitch, "-[NSUserDefaults boolForKey:] isEnabled",
                                   "-[NSStatusItem setMenu:] 8 items"}})));
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_FALSE(stored("isEnabled")->asBool());
}

TEST_F(MenuActions, SwitchTheGuardOnInOrder) {
    store("isEnabled", sim::PropertyList{false});
    controller->toggleEnabled();
    const std::string readingTheValue = "-[NSUserDefaults boolForKey:] isEnabled";
    EXPECT_THAT(outlineOfCalls(),
                ElementsAreArray(inOrder(
                    {{ReadingTheSwitch, readingTheValue, "-[NSUserDefaults setBool:forKey:] isEnabled = true",
                      ReadingTheSwitch, readingTheValue, Trusted, ReadingThePin},
                     StartingTheTap,
                     {Trusted, "-[NSUserDefaults boolForKey:] hasCompletedOnboarding", ReadingThePin,
                      ReadingTheSwitch, readingTheValue, "-[NSStatusItem setMenu:] 8 items"}})));
    EXPECT_TRUE(dockGuard->isRunning());
    EXPECT_TRUE(stored("isEnabled")->asBool());
}

const std::string ReadingTheValue = "-[NSUserDefaults boolForKey:] isEnabled";
const Calls SwitchingOn = {ReadingTheSwitch, ReadingTheValue,
                           "-[NSUserDefaults setBool:forKey:] isEnabled = true", ReadingTheSwitch,
                           ReadingTheValue};

TEST_F(MenuActions, KeepARunningGuardAsItIsWhenItIsSwitchedOn) {
    startGuard();
    store("isEnabled", sim::PropertyList{false});
    controller->toggleEnabled();
    EXPECT_THAT(outlineOfCalls(),
                ElementsAreArray(
                    inOrder({SwitchingOn,
                             {Trusted, "-[NSUserDefaults boolForKey:] hasCompletedOnboarding", ReadingThePin,
                              ReadingTheSwitch, ReadingTheValue, "-[NSStatusItem setMenu:] 8 items"}})));
    EXPECT_TRUE(dockGuard->isRunning());
    EXPECT_EQ(session.taps().count(), 1U);
}

TEST_F(MenuActions, SwitchOnWithoutAStartWhenThePermissionIsMissing) {
    store("isEnabled", sim::PropertyList{false});
    session.accessibility().setPermission(sim::Permission::switchedOff);
    controller->toggleEnabled();
    EXPECT_THAT(outlineOfCalls(),
                ElementsAreArray(inOrder({SwitchingOn,
                                          {NotTrusted, NotTrusted, ReadingThePin, ReadingTheSwitch,
                                           ReadingTheValue, "-[NSStatusItem setMenu:] 10 items"}})));
    EXPECT_TRUE(stored("isEnabled")->asBool());
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_THAT(dockGuard->screensCache(), IsEmpty());
    EXPECT_THAT(session.logRecords(), IsEmpty());
}

TEST_F(MenuActions, OfferToDisableAlthoughTheStartFailed) {
    store("isEnabled", sim::PropertyList{false});
    controller->rebuildMenu();
    session.refuseTapCreation(true);
    EXPECT_TRUE(chooseRow(session, "Enable"));
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(openedMenu(session)[4], "Disable");
}

TEST_F(MenuActions, ChooseADisplayInOrder) {
    const MenuItem item = session.statusItems().shown()[0]->menu->state()->items[2];
    controller->selectScreen(item);
    EXPECT_THAT(outlineOfCalls(),
                ElementsAreArray(inOrder(
                    {{"-[NSUserDefaults setObject:forKey:] pinnedScreenUUID = " + sim::uuidOfDisplay(2),
                      ReadingThePin},
                     Rebuilding})));
    EXPECT_EQ(dockGuard->pinnedScreen()->uuid, sim::uuidOfDisplay(2));
    EXPECT_FALSE(dockGuard->isRunning());
    EXPECT_EQ(openedMenu(session)[2], "✓  Second  (1280×800)");
}

TEST_F(MenuActions, LeaveTheTapAloneWhenADisplayIsChosen) {
    startGuard();
    EXPECT_TRUE(chooseRow(session, "  Second  (1280×800)"));
    EXPECT_TRUE(dockGuard->isRunning());
    for (const std::string& call : session.journal().take()) {
        EXPECT_FALSE(call.starts_with("CGEventTap")) << call;
    }
}

TEST_F(MenuActions, IgnoreASenderThatStandsForNoText) {
    MenuItem item("Display", std::nullopt, "");
    session.journal().take();
    controller->selectScreen(item);
    EXPECT_THAT(session.journal().take(), ElementsAre("-[NSMenuItem representedObject]"));
    item.setRepresentedObject(std::int64_t{2});
    session.journal().take();
    controller->selectScreen(item);
    EXPECT_THAT(session.journal().take(), ElementsAre("-[NSMenuItem representedObject]"));
    EXPECT_EQ(stored("pinnedScreenUUID"), nullptr);
}

TEST_F(MenuActions, OpenTheAccessibilityPaneInOrder) {
    session.accessibility().setPermission(sim::Permission::notListed);
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
    session.journal().take();
    EXPECT_TRUE(chooseRow(session, "Quit"));
    const Calls calls = session.journal().take();
    EXPECT_THAT(Calls(calls.end() - 3, calls.end()),
                ElementsAre("-[MenuBarController quit]", "NSApp", "-[NSApplication terminate:]"));
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
    session.accessibility().setPermission(sim::Permission::notListed);
    const MenuItem sender;
    for (const ActionMethod& method : controller->actionMethods()) {
        if (method.selector == Selector("openAccessibilitySettings")) {
            method.perform(*controller, sender);
        }
    }
    EXPECT_TRUE(session.accessibility().isPaneShown());
}

TEST_F(MenuActions, DoNothingOnceTheControllerIsGone) {
    session.menus().open(sim::StatusItemIndex{0});
    controller.reset();
    session.journal().take();
    EXPECT_FALSE(session.menus().choose(4));
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

class MenuOpening : public MenuActions {
protected:
    void open() {
        session.journal().take();
        session.menus().open(sim::StatusItemIndex{0});
    }

    void expectCallback() {
        controller->setOnAccessibilityGranted([this] { ++grants; });
    }

    int grants = 0;
};

TEST_F(MenuOpening, AsksForTheStartAndRebuildsInOrder) {
    controller->setOnAccessibilityGranted([this] { session.journal().record("onAccessibilityGranted"); });
    open();
    EXPECT_THAT(
        outlineOfCalls(),
        ElementsAreArray(inOrder(
            {{"-[MenuBarController menuWillOpen:]", Trusted, "onAccessibilityGranted"}, Rebuilding})));
}

TEST_F(MenuOpening, AsksForNoStartWithoutThePermission) {
    expectCallback();
    session.accessibility().setPermission(sim::Permission::switchedOff);
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
    store("isEnabled", sim::PropertyList{false});
    open();
    EXPECT_EQ(grants, 1);
}

TEST_F(MenuOpening, RebuildsWithoutACallback) {
    open();
    EXPECT_THAT(outlineOfCalls(),
                ElementsAreArray(inOrder({{"-[MenuBarController menuWillOpen:]", Trusted}, Rebuilding})));
}

TEST_F(MenuOpening, ReplacesTheMenuEachTime) {
    const auto before = session.statusItems().shown()[0]->menu->state();
    open();
    EXPECT_NE(session.statusItems().shown()[0]->menu->state(), before);
}

TEST_F(MenuOpening, LeavesTheShownMenuAsItWas) {
    session.accessibility().setPermission(sim::Permission::switchedOff);
    EXPECT_EQ(openedMenu(session).front(), "Pin Dock to: (disabled)");
    session.menus().close();
    EXPECT_EQ(openedMenu(session).front(), "Complete setup…");
}

using MenuActionsDeathTest = MenuActions;

TEST_F(MenuActionsDeathTest, StopWithoutASharedApplicationToQuit) {
    EXPECT_DEATH(controller->quit(), "Fatal error: There is no shared application\\.");
}

TEST_F(MenuActionsDeathTest, StopWhenThePanesAddressIsNoURL) {
    session.refuseURLs(true);
    EXPECT_DEATH(controller->openAccessibilitySettings(),
                 "Fatal error: The address of the Accessibility pane is no URL\\.");
}

} // namespace
} // namespace kestrune
