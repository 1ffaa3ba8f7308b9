#include "Kestrune/MainMenu.h"

#include "sim/services/MenuState.h"
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
        session.user().openMenu(sim::MainMenuIndex{title});
        return rowTexts(session.menus().rows());
    }
};

TEST(MainMenuCalls, BuildItInOrder) {
    sim::Session session;
    const auto app = KestruneApp::make();
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
                  AddingItem, "-[NSMenuItem init]", "-[NSMenuItem setSubmenu:] \"Edit\"", AddingItem}});
    EXPECT_THAT(callsOf([&] { buildMainMenu(app, Selector("menuOpenSettings")); }),
                ElementsAreArray(expected));
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

TEST_F(MainMenu, OpensSettingsInOrder) {
    app->openSettingsWindow();
    const Calls showing = callsOf([this] { app->openSettingsWindow(); });
    EXPECT_THAT(callsOf([this] { app->menuOpenSettings(); }),
                ElementsAreArray(
                    inOrder({{"-[NSUserDefaults boolForKey:] hasCompletedOnboarding", Trusted}, showing})));
}

TEST_F(MainMenu, OpensSettingsWithCommandComma) {
    EXPECT_TRUE(session.user().press(",", EventModifierFlags::command));
    EXPECT_NE(app->settingsWindowController(), nullptr);
}

TEST_F(MainMenu, OpensTheWizardUntilItIsFinished) {
    store(entries::HasCompletedOnboarding, sim::PropertyList{false});
    EXPECT_TRUE(session.user().press(",", EventModifierFlags::command));
    EXPECT_NE(app->welcomeWindowController(), nullptr);
    EXPECT_EQ(app->settingsWindowController(), nullptr);
}

TEST_F(MainMenu, HasNoSettingsOnceTheDelegateIsGone) {
    app.reset();
    EXPECT_FALSE(session.user().press(",", EventModifierFlags::command));
    EXPECT_THAT(session.windows().all(), ::testing::IsEmpty());
}

TEST_F(MainMenu, QuitsWithCommandQ) {
    EXPECT_TRUE(session.user().press("q", EventModifierFlags::command));
    EXPECT_FALSE(session.application().exists);
    EXPECT_FALSE(guard->isRunning());
}

TEST_F(MainMenu, AnswersNoKeysWhileAnotherApplicationIsActive) {
    session.application().isActive = false;
    EXPECT_FALSE(session.user().press("q", EventModifierFlags::command));
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
