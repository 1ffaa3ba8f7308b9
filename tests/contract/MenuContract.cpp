// How menus and their items look to the user.
#include "tests/contract/MenuFixture.h"

#include <gmock/gmock.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MenuContract : public MenuFixture {};

TEST_F(MenuContract, StartsEmpty) {
    statusItem_.setMenu(Menu());
    int openings = 0;
    EXPECT_TRUE(world_.openStatusMenu([&] {
        ++openings;
        EXPECT_THAT(world_.openMenuRows(), IsEmpty());
    }));
    EXPECT_EQ(openings, 1);
}

TEST_F(MenuContract, ShowsItsItemsInTheOrderOfTheirAddition) {
    Menu menu = manualMenu();
    menu.addItem(MenuItem("One", std::nullopt, ""));
    menu.addItem(MenuItem::separatorItem());
    menu.addItem(MenuItem("Two", std::nullopt, ""));
    menu.addItem(MenuItem("One", std::nullopt, ""));
    statusItem_.setMenu(menu);
    const std::vector<ShownRow> rows = world_.statusMenuRows();
    EXPECT_THAT(titles(rows), ElementsAre("One", "", "Two", "One"));
    EXPECT_FALSE(rows[0].isSeparator);
    EXPECT_TRUE(rows[1].isSeparator);
    EXPECT_FALSE(rows[1].isEnabled);
}

TEST_F(MenuContract, ShowsANewItemWithoutMarkEnabledAndWithTheCommandKey) {
    const ShownRow row = shown(MenuItem("Title", Record, "q"));
    EXPECT_EQ(row.title, "Title");
    EXPECT_EQ(row.state, ControlState::off);
    EXPECT_TRUE(row.isEnabled);
    EXPECT_FALSE(row.isSeparator);
    EXPECT_EQ(row.keyEquivalent, "q");
    EXPECT_EQ(row.modifiers, EventModifierFlags::command);
}

TEST_F(MenuContract, KeepsTheBytesOfATitle) {
    EXPECT_EQ(shown(MenuItem("  \xC3\x84nderung  (1512\xC3\x97"
                             "982)  ",
                             Record, ""))
                  .title,
              "  \xC3\x84nderung  (1512\xC3\x97"
              "982)  ");
}

TEST_F(MenuContract, KeepsOnlyThePartThatATitleSpans) {
    EXPECT_EQ(shown(MenuItem(std::string_view("shown, not shown").substr(0, 5), Record, "")).title, "shown");
}

TEST_F(MenuContract, ShowsTheStateOfAnItemAsItsMark) {
    MenuItem item("Title", Record, "");
    for (const ControlState state : {ControlState::on, ControlState::mixed, ControlState::off}) {
        item.setState(state);
        EXPECT_EQ(shown(item).state, state);
    }
}

TEST_F(MenuContract, ShowsTheModifiersThatReplaceTheCommandKey) {
    MenuItem item("Redo", Record, "z");
    item.setKeyEquivalentModifierMask(EventModifierFlags::shift | EventModifierFlags::command);
    EXPECT_EQ(shown(item).modifiers, EventModifierFlags::shift | EventModifierFlags::command);
    EXPECT_EQ(static_cast<std::uintptr_t>(shown(item).modifiers), 0x120000U);
}

TEST_F(MenuContract, RetainsItsItems) {
    Menu menu = manualMenu();
    {
        MenuItem item("Title", Record, "");
        menu.addItem(item);
        item.setState(ControlState::on);
    }
    statusItem_.setMenu(menu);
    const std::vector<ShownRow> rows = world_.statusMenuRows();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].state, ControlState::on);
}

TEST_F(MenuContract, ShowsWhatBecameOfAnItemAfterItsAddition) {
    Menu menu = manualMenu();
    MenuItem item("Title", Record, "");
    menu.addItem(item);
    statusItem_.setMenu(menu);
    EXPECT_TRUE(world_.statusMenuRows().at(0).isEnabled);
    item.setEnabled(false);
    EXPECT_FALSE(world_.statusMenuRows().at(0).isEnabled);
}

TEST_F(MenuContract, MakesANewSeparatorEachTime) {
    Menu menu = manualMenu();
    MenuItem first = MenuItem::separatorItem();
    const MenuItem second = MenuItem::separatorItem();
    first.setRepresentedObject(std::string("first"));
    EXPECT_EQ(first.representedObject(), RepresentedObject(std::string("first")));
    EXPECT_EQ(second.representedObject(), std::nullopt);
    menu.addItem(first);
    menu.addItem(second);
    statusItem_.setMenu(menu);
    EXPECT_EQ(world_.statusMenuRows().size(), 2U);
}

TEST_F(MenuContract, KeepsWhatAnItemStandsFor) {
    MenuItem item("Title", Record, "");
    EXPECT_EQ(item.representedObject(), std::nullopt);
    item.setRepresentedObject(std::string("text \xC3\xA4"));
    EXPECT_EQ(item.representedObject(), RepresentedObject(std::string("text \xC3\xA4")));
    item.setRepresentedObject(std::int64_t{-7});
    EXPECT_EQ(item.representedObject(), RepresentedObject(std::int64_t{-7}));
    item.setRepresentedObject(std::string());
    EXPECT_EQ(item.representedObject(), RepresentedObject(std::string()));
}

TEST_F(MenuContract, SharesAnItemAmongItsReferences) {
    MenuItem item("Title", Record, "");
    const MenuItem sameItem = item; // NOLINT(performance-unnecessary-copy-initialization): copies retain.
    item.setRepresentedObject(std::string("text"));
    EXPECT_EQ(sameItem.representedObject(), RepresentedObject(std::string("text")));
}

// With automatic enabling off, an item is exactly as it was set.
TEST_F(MenuContract, LeavesEnablingToTheItemsWhenItDoesNotEnableThem) {
    MenuItem item("Title", std::nullopt, "");
    EXPECT_TRUE(shown(item).isEnabled);
    item.setEnabled(false);
    EXPECT_FALSE(shown(item).isEnabled);
    item.setEnabled(true);
    EXPECT_TRUE(shown(item).isEnabled);
}

TEST_F(MenuContract, EnablesItemsByItselfUnlessToldOtherwise) {
    Menu menu;
    menu.addItem(MenuItem("Without action", std::nullopt, ""));
    menu.addItem(itemFor(target_, "With action"));
    statusItem_.setMenu(menu);
    const std::vector<ShownRow> rows = world_.statusMenuRows();
    EXPECT_FALSE(rows.at(0).isEnabled);
    EXPECT_TRUE(rows.at(1).isEnabled);
}

TEST_F(MenuContract, EnablesAnItemByItselfWhateverWasSet) {
    MenuItem item = itemFor(target_);
    item.setEnabled(false);
    EXPECT_TRUE(shown(item, true).isEnabled);
}

TEST_F(MenuContract, DisablesByItselfAnItemWhoseTargetHasNoMethodForTheAction) {
    MenuItem item("Title", Unknown, "");
    item.setTarget(target_);
    EXPECT_FALSE(shown(item, true).isEnabled);
}

TEST_F(MenuContract, DisablesByItselfAnItemWhoseActionNobodyHasAMethodFor) {
    EXPECT_FALSE(shown(MenuItem("Cut", Selector("cut:"), "x"), true).isEnabled);
}

TEST_F(MenuContract, DisablesByItselfAnItemWhoseTargetIsGone) {
    const MenuItem item = itemFor(target_);
    EXPECT_TRUE(shown(item, true).isEnabled);
    target_.reset();
    EXPECT_FALSE(shown(item, true).isEnabled);
}

TEST_F(MenuContract, EnablesByItselfAnItemThatTheApplicationAnswers) {
    EXPECT_TRUE(shown(MenuItem("Quit", Selector("terminate:"), "q"), true).isEnabled);
}

TEST_F(MenuContract, EnablesByItselfAnItemThatTheApplicationsDelegateAnswers) {
    const MenuItem item("Title", Record, "");
    EXPECT_FALSE(shown(item, true).isEnabled);
    const auto delegate = std::make_shared<RecordingApplicationDelegate>();
    application_.setDelegate(delegate);
    EXPECT_TRUE(shown(item, true).isEnabled);
}

} // namespace
} // namespace kestrune::contract
