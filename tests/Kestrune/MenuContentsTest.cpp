#include "Kestrune/KestruneApp.h"
#include "sim/services/MenuState.h"
#include "sim/services/StatusItemState.h"
#include "tests/Kestrune/MenuFixture.h"
#include "tests/base/UnusualNumbers.h"

#include <cmath>
#include <deque>

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class MenuContents : public MenuFixture {
protected:
    explicit MenuContents(sim::SessionOptions options = withDisplays({primaryDisplay(), secondDisplay()}))
        : MenuFixture(std::move(options)) {}

    void connect(std::vector<sim::Display> displays) { session.changeDisplays(std::move(displays)); }

    // The rows between the heading and the separator after it, of a menu after setup.
    std::vector<std::string> screenRows() {
        std::vector<std::string> rows = freshMenu();
        return {rows.begin() + 1, std::find(rows.begin(), rows.end(), "---")};
    }
};

TEST_F(MenuContents, AreBuiltInOrder) {
    completeSetup();
    store(entries::PinnedScreenUUID, sim::PropertyList{sim::uuidOfDisplay(2)});
    make();
    const Calls screens =
        inOrder({makingOwnItem("  Primary  (1920×1080)  (Main)", "selectScreen:", ""),
                 {"-[NSMenuItem setRepresentedObject:] " + sim::uuidOfDisplay(1), "-[NSMenuItem setState:] 0",
                  "-[NSMenuItem setEnabled:] true", AddingItem},
                 makingOwnItem("  Second  (1280×800)", "selectScreen:", ""),
                 {"-[NSMenuItem setRepresentedObject:] " + sim::uuidOfDisplay(2), "-[NSMenuItem setState:] 1",
                  "-[NSMenuItem setEnabled:] true", AddingItem}});
    const Calls rebuilding = callsOf([this] { controller->rebuildMenu(); });
    // The title of the main display's item is localized on the way.
    EXPECT_THAT(
        rebuilding,
        ElementsAreArray(inOrder(
            {{"-[NSMenu init]", "-[NSMenu setAutoenablesItems:] false", Trusted,
              "-[NSUserDefaults boolForKey:] hasCompletedOnboarding"},
             localizing("Pin Dock to:"),
             {makingItem("Pin Dock to:", "nil", ""), "-[NSMenuItem setEnabled:] false", AddingItem},
             callsOf(allScreens),
             callsOf(mainScreenUUID),
             {"-[NSUserDefaults stringForKey:] pinnedScreenUUID"},
             localizing("Main"),
             screens,
             AddingSeparator,
             callsOf([this] { preferences->isEnabled(); }),
             localizing("Disable"),
             makingOwnItem("Disable", "toggleEnabled", ""),
             {"-[NSMenuItem setEnabled:] true", AddingItem},
             AddingSeparator,
             localizing("Settings…"),
             makingOwnItem("Settings…", "showSettings", ","),
             {AddingItem},
             localizing("Quit"),
             makingOwnItem("Quit", "quit", "q"),
             {AddingItem, "-[NSMenu setDelegate:] MenuBarController", "-[NSStatusItem setMenu:] 8 items"}})));
}

TEST_F(MenuContents, LeadToTheWizardBeforeSetup) {
    EXPECT_THAT(freshMenu(),
                ElementsAre("Complete setup…", "---", "Pin Dock to: (disabled)",
                            "✓  Primary  (1920×1080)  (Main) (disabled)", "  Second  (1280×800) (disabled)",
                            "---", "Disable", "---", "Settings… [,]", "Quit [q]"));
    EXPECT_TRUE(chooseRow(session, "Complete setup…"));
    EXPECT_EQ(welcomeOpenings, 1);
    EXPECT_TRUE(chooseRow(session, "Disable"));
    EXPECT_EQ(welcomeOpenings, 2);
    EXPECT_TRUE(chooseRow(session, "Settings…"));
    EXPECT_EQ(welcomeOpenings, 3);
    EXPECT_FALSE(chooseRow(session, "  Second  (1280×800)"));
    EXPECT_EQ(settingsOpenings, 0);
    EXPECT_EQ(stored(entries::PinnedScreenUUID), nullptr);
    EXPECT_EQ(stored(entries::IsEnabled), nullptr);
}

TEST_F(MenuContents, OpenSettingsAfterSetup) {
    completeSetup();
    make();
    EXPECT_TRUE(chooseRow(session, "Settings…"));
    EXPECT_EQ(settingsOpenings, 1);
    EXPECT_EQ(welcomeOpenings, 0);
}

TEST_F(MenuContents, LeadToTheWizardWithoutThePermission) {
    completeSetup();
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_THAT(freshMenu(),
                ElementsAre("Complete setup…", "---", "Pin Dock to: (disabled)",
                            "✓  Primary  (1920×1080)  (Main) (disabled)", "  Second  (1280×800) (disabled)",
                            "---", "Disable", "---", "Settings… [,]", "Quit [q]"));
    EXPECT_TRUE(chooseRow(session, "Settings…"));
    EXPECT_TRUE(chooseRow(session, "Disable"));
    EXPECT_EQ(welcomeOpenings, 2);
    EXPECT_EQ(settingsOpenings, 0);
    EXPECT_EQ(stored(entries::IsEnabled), nullptr);
}

TEST_F(MenuContents, BeforeSetupStandForTheirDisplays) {
    make();
    const auto items = session.statusItems().shown()[0]->menu->state()->items;
    EXPECT_EQ(items.at(3).representedObject(), RepresentedObject(sim::uuidOfDisplay(1)));
    EXPECT_EQ(items.at(4).representedObject(), RepresentedObject(sim::uuidOfDisplay(2)));
}

TEST_F(MenuContents, AreThoseBeforeSetupAgainWhenThePermissionIsRevoked) {
    completeSetup();
    EXPECT_EQ(freshMenu().front(), "Pin Dock to: (disabled)");
    session.user().setPermission(sim::Permission::switchedOff);
    EXPECT_EQ(menu().front(), "Complete setup…");
    EXPECT_TRUE(stored(entries::HasCompletedOnboarding)->asBool());
}

TEST_F(MenuContents, MarkTheStoredChoice) {
    completeSetup();
    store(entries::PinnedScreenUUID, sim::PropertyList{sim::uuidOfDisplay(2)});
    EXPECT_THAT(screenRows(), ElementsAre("  Primary  (1920×1080)  (Main)", "✓  Second  (1280×800)"));
}

TEST_F(MenuContents, MarkTheMainDisplayWithoutAChoice) {
    completeSetup();
    session.displays().setMain(1);
    EXPECT_THAT(screenRows(), ElementsAre("  Primary  (1920×1080)", "✓  Second  (1280×800)  (Main)"));
}

TEST_F(MenuContents, MarkTheFirstDisplayWithoutAChoiceAndAMainDisplay) {
    completeSetup();
    session.displays().setMain(std::nullopt);
    EXPECT_THAT(screenRows(), ElementsAre("✓  Primary  (1920×1080)", "  Second  (1280×800)"));
}

TEST_F(MenuContents, MarkNothingWhenTheStoredDisplayIsGone) {
    completeSetup();
    store(entries::PinnedScreenUUID, sim::PropertyList{std::string("GONE")});
    EXPECT_THAT(screenRows(), ElementsAre("  Primary  (1920×1080)  (Main)", "  Second  (1280×800)"));
    dockGuard->refreshScreens();
    EXPECT_THAT(screenRows(), ElementsAre("✓  Primary  (1920×1080)  (Main)", "  Second  (1280×800)"));
}

TEST_F(MenuContents, MarkNothingWhenTheMainDisplayIsNotListed) {
    completeSetup();
    make();
    session.displays().scriptReads(std::deque(2, std::vector{secondDisplay()}));
    controller->rebuildMenu();
    session.user().openMenu(sim::StatusItemIndex{0});
    EXPECT_EQ(rowTexts(session.menus().rows())[1], "  Second  (1280×800)");
}

TEST_F(MenuContents, MarkTheFirstDisplayWhenTheMainOneHasNoNumber) {
    completeSetup();
    sim::Display numberless = thirdDisplay();
    numberless.screenNumber.reset();
    connect({primaryDisplay(), numberless});
    session.displays().setMain(1);
    EXPECT_THAT(screenRows(), ElementsAre("✓  Primary  (1920×1080)"));
}

TEST_F(MenuContents, MarkEveryDisplayWithTheChosenIdentifier) {
    completeSetup();
    sim::Display twin = secondDisplay();
    twin.uuid = primaryDisplay().uuid;
    connect({primaryDisplay(), twin});
    EXPECT_THAT(screenRows(),
                ElementsAre("✓  Primary  (1920×1080)  (Main)", "✓  Second  (1280×800)  (Main)"));
}

TEST_F(MenuContents, CompareTheStoredChoiceToTheLetter) {
    completeSetup();
    sim::Display lettered = primaryDisplay();
    lettered.uuid = "ABCDEF";
    connect({lettered, secondDisplay()});
    store(entries::PinnedScreenUUID, sim::PropertyList{std::string("abcdef")});
    EXPECT_THAT(screenRows(), ElementsAre("  Primary  (1920×1080)  (Main)", "  Second  (1280×800)"));
}

TEST_F(MenuContents, HaveOnlyTheHeadingWithoutADisplay) {
    completeSetup();
    connect({});
    EXPECT_THAT(freshMenu(),
                ElementsAre("Pin Dock to: (disabled)", "---", "Disable", "---", "Settings… [,]", "Quit [q]"));
}

TEST_F(MenuContents, TellTwinsApartByTheirIdentifiers) {
    completeSetup();
    connect({sim::makeDisplay(1, "Twin", {0, 0, 1920, 1080}),
             sim::makeDisplay(2, "Twin", {1920, 0, 1920, 1080})});
    EXPECT_THAT(screenRows(), ElementsAre("✓  Twin  (1920×1080)  (Main)", "  Twin  (1920×1080)"));
    EXPECT_TRUE(chooseRow(session, "  Twin  (1920×1080)"));
    EXPECT_EQ(stored(entries::PinnedScreenUUID)->asString(), sim::uuidOfDisplay(2));
    EXPECT_THAT(screenRows(), ElementsAre("  Twin  (1920×1080)  (Main)", "✓  Twin  (1920×1080)"));
}

TEST_F(MenuContents, TellTwinsApartByTheirSizes) {
    completeSetup();
    connect({sim::makeDisplay(1, "Twin", {0, 0, 1920, 1080}),
             sim::makeDisplay(2, "Twin", {1920, 0, 2560, 1440})});
    EXPECT_THAT(screenRows(), ElementsAre("✓  Twin  (1920×1080)  (Main)", "  Twin  (2560×1440)"));
}

TEST_F(MenuContents, ShowSizesAsWholePoints) {
    completeSetup();
    connect({sim::makeDisplay(1, "Built-in Display", {0, 0, 1512.5, 982.999}),
             sim::makeDisplay(2, "Wide", {1512.5, 0, 2560, 1440})});
    EXPECT_THAT(screenRows(), ElementsAre("✓  Built-in Display  (1512×982)  (Main)", "  Wide  (2560×1440)"));
}

TEST_F(MenuContents, OfferToEnableAGuardThatIsSwitchedOff) {
    completeSetup();
    store(entries::IsEnabled, sim::PropertyList{false});
    EXPECT_EQ(freshMenu()[4], "Enable");
}

sim::SessionOptions inGerman() {
    sim::SessionOptions options = withDisplays({primaryDisplay()});
    options.bundle.localizedStrings = {{"Pin Dock to:", "Dock anheften an:"},
                                       {"Main", "Hauptbildschirm"},
                                       {"Disable", "Ausschalten"},
                                       {"Settings…", "Einstellungen …"},
                                       {"Quit", "Beenden"},
                                       {"Complete setup…", "Einrichtung abschließen …"},
                                       {"Enable", "Einschalten"},
                                       {"Quit Kestrune", "Kestrune beenden"},
                                       {"Edit", "Bearbeiten"},
                                       {"Kestrune — Pin the Dock to one screen", "Kestrune hält das Dock"}};
    return options;
}

class MenuContentsInGerman : public MenuContents {
protected:
    MenuContentsInGerman() : MenuContents(inGerman()) {}
};

TEST_F(MenuContentsInGerman, AreInTheUsersLanguage) {
    EXPECT_THAT(freshMenu(), ElementsAre("Einrichtung abschließen …", "---", "Dock anheften an: (disabled)",
                                         "✓  Primary  (1920×1080)  (Hauptbildschirm) (disabled)", "---",
                                         "Ausschalten", "---", "Einstellungen … [,]", "Beenden [q]"));
}

TEST_F(MenuContentsInGerman, AreInTheUsersLanguageWhileSwitchedOff) {
    store(entries::IsEnabled, sim::PropertyList{false});
    EXPECT_EQ(freshMenu()[5], "Einschalten");
    EXPECT_EQ(session.statusItems().shown()[0]->button->toolTip, "Kestrune hält das Dock");
}

TEST_F(MenuContentsInGerman, OfTheMainMenuAreInTheUsersLanguageButForEdit) {
    const auto app = runKestrune();
    session.application().isActive = true;
    Application::sharedApplication().setActivationPolicy(ActivationPolicy::regular);
    session.user().openMenu(sim::MainMenuIndex{0});
    EXPECT_THAT(rowTexts(session.menus().rows()),
                ElementsAre("Einstellungen … [,]", "---", "Kestrune beenden [q]"));
    EXPECT_EQ(session.menus().mainMenuTitles()[1], "Edit");
    session.user().endApplication();
}

using MenuContentsDeathTest = MenuContents;

constexpr const char* NoWholePoints =
    "Fatal error: A display's width or height is no number of points that an integer can hold\\.";

TEST_F(MenuContentsDeathTest, StopForASizeThatNoIntegerHolds) {
    constexpr double FirstBeyond = 9223372036854775808.0;
    for (const Size size : {Size{Infinity, 1080}, Size{1920, Infinity}, Size{std::nan(""), 1080},
                            Size{FirstBeyond, 1080}, Size{1920, FirstBeyond}}) {
        connect({sim::makeDisplay(1, "Endless", {0, 0, size.width, size.height})});
        EXPECT_DEATH(make(), NoWholePoints);
    }
}

TEST_F(MenuContents, ShowTheLargestSizeThatAnIntegerHolds) {
    completeSetup();
    connect({sim::makeDisplay(1, "Vast", {0, 0, 9223372036854774784.0, 1})});
    EXPECT_THAT(screenRows(), ElementsAre("✓  Vast  (9223372036854774784×1)  (Main)"));
}

} // namespace
} // namespace kestrune
