#include "platform/Application.h"
#include "platform/StatusBar.h"
#include "sim/session/Session.h"
#include "tests/contract/RecordingObjects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace kestrune::sim {
namespace {

using namespace std::chrono_literals;
using contract::Record;
using contract::RecordAgain;
using testing::ElementsAre;
using testing::IsEmpty;

class MenuTrackingTest : public testing::Test {
protected:
    MenuItem item(std::string_view title, const Selector& action, std::string_view keyEquivalent) const {
        MenuItem result(title, action, keyEquivalent);
        result.setTarget(target_);
        return result;
    }

    static MenuItem itemWithSubmenu(const Menu& submenu) {
        MenuItem result;
        result.setSubmenu(submenu);
        return result;
    }

    // A status item's menu: "Do" (Command-D), a separator, "Off", which is disabled.
    Menu statusMenu() const {
        Menu menu;
        menu.setAutoenablesItems(false);
        menu.addItem(item("Do", Record, "d"));
        menu.addItem(MenuItem::separatorItem());
        MenuItem disabled = item("Off", Record, "o");
        disabled.setEnabled(false);
        menu.addItem(disabled);
        return menu;
    }

    // Menus "First" with "Here" (Command-H) and "Second" with "There" (Command-T), and an item without menu.
    void showMainMenu() {
        Menu first("First");
        first.addItem(item("Here", Record, "h"));
        Menu second("Second");
        second.addItem(item("There", RecordAgain, "t"));
        Menu mainMenu;
        mainMenu.addItem(itemWithSubmenu(first));
        mainMenu.addItem(itemWithSubmenu(second));
        mainMenu.addItem(MenuItem("Third", std::nullopt, ""));
        application_.setMainMenu(mainMenu);
        session_.application().isActive = true;
    }

    std::size_t actions() const { return target_->received().size(); }

    Session session_;
    Application application_ = Application::sharedApplication();
    MenuTracking& menus_ = session_.menus();
    StatusItem statusItem_ = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    std::shared_ptr<contract::RecordingTarget> target_ = std::make_shared<contract::RecordingTarget>();
};

TEST_F(MenuTrackingTest, StartsWithNoMenuOpen) {
    EXPECT_EQ(menus_.place(), std::nullopt);
    EXPECT_THAT(menus_.rows(), IsEmpty());
    EXPECT_FALSE(menus_.choose(0));
    menus_.close();
    EXPECT_EQ(menus_.place(), std::nullopt);
}

TEST_F(MenuTrackingTest, OpensNothingWhereThereIsNoMenu) {
    EXPECT_FALSE(menus_.open(StatusItemIndex{0}));
    EXPECT_FALSE(menus_.open(StatusItemIndex{1}));
    EXPECT_FALSE(menus_.open(MainMenuIndex{0}));
    EXPECT_EQ(menus_.place(), std::nullopt);
}

TEST_F(MenuTrackingTest, ShowsTheRowsOfTheOpenMenu) {
    statusItem_.setMenu(statusMenu());
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    EXPECT_EQ(menus_.place(), MenuPlace(StatusItemIndex{0}));
    EXPECT_THAT(
        menus_.rows(),
        ElementsAre(MenuRow{"Do", ControlState::off, true, false, "d", EventModifierFlags::command},
                    MenuRow{"", ControlState::off, false, true, "", EventModifierFlags::command},
                    MenuRow{"Off", ControlState::off, false, false, "o", EventModifierFlags::command}));
    menus_.close();
    EXPECT_EQ(menus_.place(), std::nullopt);
    EXPECT_THAT(menus_.rows(), IsEmpty());
}

TEST_F(MenuTrackingTest, ClosesTheOpenMenuWhenAnotherOpens) {
    statusItem_.setMenu(statusMenu());
    showMainMenu();
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    ASSERT_TRUE(menus_.open(MainMenuIndex{1}));
    EXPECT_EQ(menus_.place(), MenuPlace(MainMenuIndex{1}));
    ASSERT_EQ(menus_.rows().size(), 1U);
    EXPECT_EQ(menus_.rows()[0].title, "There");
    EXPECT_FALSE(menus_.open(MainMenuIndex{2}));
    EXPECT_EQ(menus_.place(), std::nullopt);
}

TEST_F(MenuTrackingTest, ClosesTheMenuWhenARowIsChosen) {
    statusItem_.setMenu(statusMenu());
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    bool wasOpen = true;
    target_->onAction([&] { wasOpen = menus_.place().has_value(); });
    EXPECT_TRUE(menus_.choose(0));
    EXPECT_FALSE(wasOpen);
    EXPECT_EQ(actions(), 1U);
    EXPECT_EQ(menus_.place(), std::nullopt);
}

TEST_F(MenuTrackingTest, StaysOpenWhenARowCannotBeChosen) {
    statusItem_.setMenu(statusMenu());
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    EXPECT_FALSE(menus_.choose(1));
    EXPECT_FALSE(menus_.choose(2));
    EXPECT_FALSE(menus_.choose(3));
    EXPECT_EQ(menus_.place(), MenuPlace(StatusItemIndex{0}));
    EXPECT_EQ(actions(), 0U);
}

TEST_F(MenuTrackingTest, ClosesWithoutAReceiverForTheAction) {
    Menu menu;
    menu.setAutoenablesItems(false);
    menu.addItem(item("Title", contract::Unknown, ""));
    menu.addItem(MenuItem("Title", Record, ""));
    statusItem_.setMenu(menu);
    for (const std::size_t row : {0U, 1U}) {
        ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
        EXPECT_FALSE(menus_.choose(row));
        EXPECT_EQ(menus_.place(), std::nullopt);
    }
}

TEST_F(MenuTrackingTest, KeepsAMenuOpenWhoseStatusItemGoes) {
    std::optional<StatusItem> other = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    other->setMenu(statusMenu());
    ASSERT_TRUE(menus_.open(StatusItemIndex{1}));
    other.reset();
    EXPECT_EQ(menus_.rows().size(), 3U);
    EXPECT_TRUE(menus_.choose(0));
    EXPECT_FALSE(menus_.open(StatusItemIndex{1}));
}

TEST_F(MenuTrackingTest, HasNothingOpenWhenTheDelegateEndsTheApplication) {
    const auto delegate = std::make_shared<contract::RecordingMenuDelegate>();
    delegate->onOpening([this](const Menu& /*opened*/) { application_.terminate(); });
    Menu menu = statusMenu();
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    EXPECT_FALSE(menus_.open(StatusItemIndex{0}));
    EXPECT_EQ(menus_.place(), std::nullopt);
}

TEST_F(MenuTrackingTest, TitlesTheMainMenuAfterTheApplicationAndItsSubmenus) {
    showMainMenu();
    EXPECT_THAT(menus_.mainMenuTitles(), ElementsAre("Kestrune", "Second", "Third"));
}

TEST(MenuTrackingTitles, StartWithTheNameInTheBundle) {
    SessionOptions options;
    options.bundle.infoDictionary["CFBundleName"] = {std::string("Name")};
    Session session(std::move(options));
    Menu mainMenu;
    mainMenu.addItem(MenuItem("Title", std::nullopt, ""));
    Application::sharedApplication().setMainMenu(mainMenu);
    session.application().isActive = true;
    EXPECT_THAT(session.menus().mainMenuTitles(), ElementsAre("Name"));
}

TEST_F(MenuTrackingTest, TitlesNothingUnlessTheApplicationIsRegularAndActive) {
    EXPECT_THAT(menus_.mainMenuTitles(), IsEmpty());
    showMainMenu();
    application_.setActivationPolicy(ActivationPolicy::accessory);
    EXPECT_THAT(menus_.mainMenuTitles(), IsEmpty());
    application_.setActivationPolicy(ActivationPolicy::prohibited);
    EXPECT_THAT(menus_.mainMenuTitles(), IsEmpty());
    application_.setActivationPolicy(ActivationPolicy::regular);
    session_.application().isActive = false;
    EXPECT_THAT(menus_.mainMenuTitles(), IsEmpty());
    session_.application().isActive = true;
    EXPECT_EQ(menus_.mainMenuTitles().size(), 3U);
}

TEST_F(MenuTrackingTest, TitlesNothingForAMainMenuWithoutItems) {
    application_.setMainMenu(Menu());
    session_.application().isActive = true;
    EXPECT_THAT(menus_.mainMenuTitles(), IsEmpty());
}

TEST_F(MenuTrackingTest, ChoosesByKeyInTheOpenMenuAlone) {
    statusItem_.setMenu(statusMenu());
    showMainMenu();
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    EXPECT_FALSE(menus_.press("h", EventModifierFlags::command));
    EXPECT_FALSE(menus_.press("o", EventModifierFlags::command));
    EXPECT_EQ(menus_.place(), MenuPlace(StatusItemIndex{0}));
    EXPECT_TRUE(menus_.press("d", EventModifierFlags::command));
    EXPECT_EQ(menus_.place(), std::nullopt);
    EXPECT_EQ(actions(), 1U);
}

TEST_F(MenuTrackingTest, ChoosesByKeyInEveryMenuOfTheMainMenu) {
    showMainMenu();
    EXPECT_TRUE(menus_.press("h", EventModifierFlags::command));
    EXPECT_TRUE(menus_.press("t", EventModifierFlags::command));
    EXPECT_THAT(target_->received(),
                ElementsAre(contract::ReceivedAction{"record:"}, contract::ReceivedAction{"recordAgain"}));
}

TEST_F(MenuTrackingTest, ChoosesNothingByKeyWhileTheApplicationIsNotActive) {
    EXPECT_FALSE(menus_.press("h", EventModifierFlags::command));
    showMainMenu();
    session_.application().isActive = false;
    EXPECT_FALSE(menus_.press("h", EventModifierFlags::command));
    EXPECT_EQ(actions(), 0U);
}

TEST_F(MenuTrackingTest, ChoosesNothingByAKeyWithoutCharacter) {
    Menu menu;
    menu.setAutoenablesItems(false);
    menu.addItem(item("Without key", Record, ""));
    statusItem_.setMenu(menu);
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    EXPECT_FALSE(menus_.press("", EventModifierFlags::command));
    EXPECT_EQ(actions(), 0U);
}

TEST_F(MenuTrackingTest, LeavesTimersWaitingBehindAnAlertWhenAKeyIsPressed) {
    showMainMenu();
    bool hasFired = false;
    const Timer timer = Timer::scheduledTimer(1, false, [&](Timer& /*timer*/) { hasFired = true; });
    session_.mainThread().beginModalAlert();
    session_.advance(1s);
    EXPECT_TRUE(menus_.press("h", EventModifierFlags::command));
    EXPECT_FALSE(hasFired);
    session_.mainThread().endModalAlert();
    EXPECT_TRUE(hasFired);
}

TEST_F(MenuTrackingTest, HoldsTimersBackUntilTheActionIsDone) {
    statusItem_.setMenu(statusMenu());
    std::vector<std::string> order;
    const Timer timer =
        Timer::scheduledTimer(1, false, [&](Timer& /*timer*/) { order.emplace_back("timer"); });
    target_->onAction([&] { order.emplace_back("action"); });
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    session_.advance(2s);
    EXPECT_TRUE(menus_.choose(0));
    EXPECT_THAT(order, ElementsAre("action", "timer"));
}

TEST_F(MenuTrackingTest, IsJournaledAsWhatTheApplicationIsCalledWith) {
    const auto delegate = std::make_shared<contract::RecordingMenuDelegate>();
    Menu menu = statusMenu();
    menu.setDelegate(delegate);
    statusItem_.setMenu(menu);
    session_.journal().take();
    ASSERT_TRUE(menus_.open(StatusItemIndex{0}));
    EXPECT_TRUE(menus_.choose(0));
    EXPECT_THAT(session_.journal().take(),
                ElementsAre("-[RecordingMenuDelegate menuWillOpen:]", "-[RecordingTarget record:]",
                            "-[NSMenuItem representedObject]"));
}

} // namespace
} // namespace kestrune::sim
