// The main menu: seen while the application is regular and active, its keys while it is active.
#include "tests/contract/MenuFixture.h"

#include <gmock/gmock.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainMenuContract : public MenuFixture {
protected:
    // A main menu with two menus; the test keeps none of the objects.
    void setMainMenu() {
        MenuItem settings("Settings", Record, ",");
        settings.setTarget(target_);
        MenuItem again("Again", RecordAgain, "z");
        again.setKeyEquivalentModifierMask(EventModifierFlags::shift | EventModifierFlags::command);
        again.setTarget(target_);
        Menu applicationMenu;
        applicationMenu.addItem(settings);
        Menu editMenu("Edit");
        editMenu.addItem(MenuItem("Cut", Selector("cut:"), "x"));
        editMenu.addItem(again);
        MenuItem applicationItem;
        applicationItem.setSubmenu(applicationMenu);
        MenuItem editItem;
        editItem.setSubmenu(editMenu);
        Menu mainMenu;
        mainMenu.addItem(applicationItem);
        mainMenu.addItem(editItem);
        application_.setMainMenu(mainMenu);
    }

    // The first rows of the main menu's item; the system may add rows of its own to a menu called Edit.
    std::vector<ShownRow> mainMenuRows(std::size_t item) {
        std::vector<ShownRow> rows;
        world_.openMainMenu(item, [&] { rows = world_.openMenuRows(); });
        return rows;
    }

    bool opens(std::size_t item) {
        return world_.openMainMenu(item, [] {});
    }
};

TEST_F(MainMenuContract, IsRetainedWithItsSubmenus) {
    application_.setActivationPolicy(ActivationPolicy::regular);
    setMainMenu();
    world_.activateApplication();
    const std::vector<ShownRow> first = mainMenuRows(0);
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(first[0].title, "Settings");
    EXPECT_EQ(first[0].keyEquivalent, ",");
    EXPECT_TRUE(first[0].isEnabled);
    const std::vector<ShownRow> second = mainMenuRows(1);
    ASSERT_GE(second.size(), 2U);
    EXPECT_EQ(second[0].title, "Cut");
    EXPECT_FALSE(second[0].isEnabled);
    EXPECT_EQ(second[1].title, "Again");
    EXPECT_TRUE(second[1].isEnabled);
}

TEST_F(MainMenuContract, SendsTheActionOfAnItemThatWasChosen) {
    application_.setActivationPolicy(ActivationPolicy::regular);
    setMainMenu();
    world_.activateApplication();
    EXPECT_TRUE(world_.openMainMenu(0, [&] { world_.chooseRow(0); }));
    EXPECT_THAT(target_->received(), ElementsAre(ReceivedAction{"record:"}));
}

TEST_F(MainMenuContract, IsNotShownForAnAccessoryApplication) {
    application_.setActivationPolicy(ActivationPolicy::accessory);
    setMainMenu();
    world_.activateApplication();
    EXPECT_FALSE(opens(0));
    application_.setActivationPolicy(ActivationPolicy::regular);
    EXPECT_TRUE(opens(0));
}

TEST_F(MainMenuContract, IsNotShownForAnApplicationThatIsNotActive) {
    application_.setActivationPolicy(ActivationPolicy::regular);
    setMainMenu();
    EXPECT_FALSE(opens(0));
}

TEST_F(MainMenuContract, IsNotShownWhereItHasNoItem) {
    application_.setActivationPolicy(ActivationPolicy::regular);
    world_.activateApplication();
    EXPECT_FALSE(opens(0));
    setMainMenu();
    EXPECT_TRUE(opens(1));
    EXPECT_FALSE(opens(2));
}

TEST_F(MainMenuContract, AnswersToItsKeysWhileTheApplicationIsActive) {
    setMainMenu();
    world_.pressKey(",", EventModifierFlags::command);
    EXPECT_THAT(target_->received(), IsEmpty());
    world_.activateApplication();
    world_.pressKey(",", EventModifierFlags::command);
    EXPECT_THAT(target_->received(), ElementsAre(ReceivedAction{"record:"}));
}

TEST_F(MainMenuContract, AnswersToItsKeysUnderTheAccessoryPolicyToo) {
    application_.setActivationPolicy(ActivationPolicy::accessory);
    setMainMenu();
    world_.activateApplication();
    world_.pressKey("z", EventModifierFlags::shift | EventModifierFlags::command);
    world_.pressKey("z", EventModifierFlags::command);
    EXPECT_THAT(target_->received(), ElementsAre(ReceivedAction{"recordAgain"}));
}

TEST_F(MainMenuContract, TakesThePlaceOfTheOneBefore) {
    setMainMenu();
    world_.activateApplication();
    application_.setMainMenu(Menu());
    world_.pressKey(",", EventModifierFlags::command);
    EXPECT_THAT(target_->received(), IsEmpty());
}

} // namespace
} // namespace kestrune::contract
