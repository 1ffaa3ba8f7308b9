#include "sim/seam/MenuState.h"
#include "tests/Kestrune/AppFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class MainMenu : public AppFixture {
protected:
    MainMenu() {
        launchAndSettle();
        session.application().isActive = true;
    }

    // As a window makes it.
    void makeRegular() { Application::sharedApplication().setActivationPolicy(ActivationPolicy::regular); }

    std::vector<std::string> opened(std::size_t title) {
        session.menus().open(sim::MainMenuIndex{title});
        return rowTexts(session.menus().rows());
    }
};

TEST(MainMenuCalls, BuildItInOrder) {
    sim::Session session;
    const auto app = KestruneApp::make();
    Application::sharedApplication();
    session.journal().take();
    app->applicationDidFinishLaunching();
    const Calls journal = session.journal().take();
    const Calls expected =
        inOrder({{"-[NSMenu init]", "-[NSMenu init]"},
                 localizing("Settings…"),
                 {makingItem("Settings…", "menuOpenSettings", ","), "-[NSMenuItem setTarget:] KestruneApp",
                  AddingItem},
                 AddingSeparator,
                 localizing("Quit Kestrune"),
                 {makingItem("Quit Kestrune", "terminate:", "q"), AddingItem, "-[NSMenuItem init]",
                  "-[NSMenuItem setSubmenu:] \"\"", AddingItem, "-[NSMenu initWithTitle:] \"Edit\"",
                  makingItem("Undo", "undo:", "z"), AddingItem, makingItem("Redo", "redo:", "z"),
                  "-[NSMenuItem setKeyEquivalentModifierMask:] " + std::to_string(0x120000), AddingItem},
                 AddingSeparator,
                 {makingItem("Cut", "cut:", "x"), AddingItem, makingItem("Copy", "copy:", "c"), AddingItem,
                  makingItem("Paste", "paste:", "v"), AddingItem, makingItem("Select All", "selectAll:", "a"),
                  AddingItem, "-[NSMenuItem init]", "-[NSMenuItem setSubmenu:] \"Edit\"", AddingItem, "NSApp",
                  "-[NSApplication setMainMenu:] 2 items"}});
    EXPECT_THAT(Calls(journal.begin(), journal.begin() + static_cast<std::ptrdiff_t>(expected.size())),
                ElementsAreArray(expected));
    app->dockGuard()->stop();
}

TEST_F(MainMenu, ShowsOnlyWhileTheApplicationIsRegular) {
    EXPECT_TRUE(session.menus().mainMenuTitles().empty());
    makeRegular();
    EXPECT_THAT(session.menus().mainMenuTitles(), ElementsAre("Kestrune", "Edit"));
}

TEST_F(MainMenu, EnablesWhatSomebodyAnswers) {
    makeRegular();
    EXPECT_THAT(opened(0), ElementsAre("Settings… [,]", "---", "Quit Kestrune [q]"));
    EXPECT_THAT(opened(1),
                ElementsAre("Undo [z] (disabled)", "Redo [z] (disabled)", "---", "Cut [x] (disabled)",
                            "Copy [c] (disabled)", "Paste [v] (disabled)", "Select All [a] (disabled)"));
}

TEST_F(MainMenu, OpensSettingsWithCommandComma) {
    EXPECT_TRUE(session.menus().press(",", EventModifierFlags::command));
    const Calls calls = session.journal().take();
    EXPECT_EQ(calls.at(0), "-[KestruneApp menuOpenSettings]");
    EXPECT_EQ(calls.at(1), "-[NSUserDefaults boolForKey:] hasCompletedOnboarding");
    EXPECT_EQ(calls.at(2), Trusted);
    EXPECT_NE(app->settingsWindowController(), nullptr);
}

TEST_F(MainMenu, LooksAtThePermissionOnlyWhenTheWizardIsFinished) {
    store("hasCompletedOnboarding", sim::PropertyList{false});
    EXPECT_TRUE(session.menus().press(",", EventModifierFlags::command));
    const Calls calls = session.journal().take();
    EXPECT_EQ(calls.at(0), "-[KestruneApp menuOpenSettings]");
    EXPECT_EQ(calls.at(1), "-[NSUserDefaults boolForKey:] hasCompletedOnboarding");
    // One look for the wizard that is made now, and none for the setup.
    EXPECT_EQ(calls.at(2), Trusted);
    EXPECT_TRUE(calls.at(3).starts_with("-[NSWindow initWithContentRect:")) << calls.at(3);
    EXPECT_NE(app->welcomeWindowController(), nullptr);
}

TEST_F(MainMenu, HasNoSettingsOnceTheDelegateIsGone) {
    app.reset();
    session.journal().take();
    EXPECT_FALSE(session.menus().press(",", EventModifierFlags::command));
    EXPECT_THAT(session.journal().take(), ::testing::IsEmpty());
}

TEST_F(MainMenu, QuitsWithCommandQ) {
    EXPECT_TRUE(session.menus().press("q", EventModifierFlags::command));
    EXPECT_FALSE(session.application().exists);
    EXPECT_FALSE(guard->isRunning());
}

TEST_F(MainMenu, AnswersNoKeysWhileAnotherApplicationIsActive) {
    session.application().isActive = false;
    EXPECT_FALSE(session.menus().press("q", EventModifierFlags::command));
    EXPECT_TRUE(session.application().exists);
}

TEST_F(MainMenu, TellsUndoFromRedoByShift) {
    makeRegular();
    const auto edit = session.application().mainMenu->state()->items[1].state()->submenu->state();
    EXPECT_EQ(edit->title, "Edit");
    EXPECT_EQ(edit->items[0].state()->modifiers, EventModifierFlags::command);
    EXPECT_EQ(edit->items[1].state()->modifiers, EventModifierFlags::shift | EventModifierFlags::command);
}

} // namespace
} // namespace kestrune
