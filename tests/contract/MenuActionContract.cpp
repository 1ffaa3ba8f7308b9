// The user chooses items, by hand or by key.
#include "tests/contract/MenuFixture.h"

#include <gmock/gmock.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MenuActionContract : public MenuFixture {};

TEST_F(MenuActionContract, ReachesTheTargetOnce) {
    choose(itemFor(target_));
    EXPECT_THAT(target_->received(), ElementsAre(ReceivedAction{"record:"}));
}

TEST_F(MenuActionContract, ReachesTheTargetsMethodOfThatName) {
    MenuItem item("Title", RecordAgain, "");
    item.setTarget(target_);
    choose(item);
    EXPECT_THAT(target_->received(), ElementsAre(ReceivedAction{"recordAgain"}));
}

TEST_F(MenuActionContract, BringsNoSenderToAMethodWithoutArgument) {
    MenuItem item("Title", RecordAgain, "");
    item.setTarget(target_);
    item.setRepresentedObject(std::string("object"));
    choose(item);
    EXPECT_THAT(target_->received(), ElementsAre(ReceivedAction{"recordAgain", std::nullopt}));
}

TEST_F(MenuActionContract, BringsTheSenderAlong) {
    Menu menu = manualMenu();
    MenuItem first = itemFor(target_);
    first.setRepresentedObject(std::string("first"));
    MenuItem second = itemFor(target_);
    second.setRepresentedObject(std::int64_t{2});
    menu.addItem(first);
    menu.addItem(second);
    statusItem_.setMenu(menu);
    world_.chooseInStatusMenu(1);
    world_.chooseInStatusMenu(0);
    EXPECT_THAT(target_->received(), ElementsAre(ReceivedAction{"record:", std::int64_t{2}},
                                                 ReceivedAction{"record:", std::string("first")}));
}

TEST_F(MenuActionContract, StaysAwayFromATargetThatIsGone) {
    const MenuItem item = itemFor(target_);
    const std::weak_ptr<RecordingTarget> target = target_;
    target_.reset();
    EXPECT_TRUE(target.expired());
    choose(item);
    EXPECT_EQ(item.representedObject(), std::nullopt);
}

TEST_F(MenuActionContract, GoesToTheApplicationsDelegateOnceTheTargetIsGone) {
    const auto delegate = std::make_shared<RecordingApplicationDelegate>();
    application_.setDelegate(delegate);
    const MenuItem item = itemFor(target_);
    choose(item);
    EXPECT_THAT(delegate->received(), IsEmpty());
    target_.reset();
    choose(item);
    EXPECT_THAT(delegate->received(), ElementsAre("record:"));
}

TEST_F(MenuActionContract, GoesToTheApplicationsDelegateWithoutATarget) {
    const auto delegate = std::make_shared<RecordingApplicationDelegate>();
    application_.setDelegate(delegate);
    choose(MenuItem("Title", Record, ""), true);
    EXPECT_THAT(delegate->received(), ElementsAre("record:"));
}

TEST_F(MenuActionContract, IsNotSentForADisabledItem) {
    MenuItem item = itemFor(target_);
    item.setEnabled(false);
    choose(item);
    EXPECT_THAT(target_->received(), IsEmpty());
}

TEST_F(MenuActionContract, IsNotSentForAnItemThatItsMenuDisabled) {
    MenuItem item("Title", Unknown, "");
    item.setTarget(target_);
    choose(item, true);
    EXPECT_THAT(target_->received(), IsEmpty());
}

TEST_F(MenuActionContract, IsNotSentForASeparator) {
    Menu menu = manualMenu();
    MenuItem separator = MenuItem::separatorItem();
    separator.setTarget(target_);
    menu.addItem(separator);
    menu.addItem(itemFor(target_));
    statusItem_.setMenu(menu);
    world_.chooseInStatusMenu(0);
    EXPECT_THAT(target_->received(), IsEmpty());
    world_.chooseInStatusMenu(1);
    EXPECT_EQ(target_->received().size(), 1U);
}

TEST_F(MenuActionContract, IsNotSentForAnItemWithoutAction) {
    MenuItem item("Title", std::nullopt, "");
    item.setTarget(target_);
    choose(item);
    EXPECT_THAT(target_->received(), IsEmpty());
}

TEST_F(MenuActionContract, MayReplaceTheMenuThatItWasChosenFrom) {
    Menu menu = manualMenu();
    menu.addItem(itemFor(target_));
    statusItem_.setMenu(menu);
    target_->onAction([this] { statusItem_.setMenu(manualMenu()); });
    world_.chooseInStatusMenu(0);
    EXPECT_EQ(target_->received().size(), 1U);
    EXPECT_THAT(world_.statusMenuRows(), IsEmpty());
}

class KeyEquivalentContract : public MenuFixture {
protected:
    // The selectors that arrive when the user presses that while a menu with Undo (Command-Z) and Redo
    // (Shift-Command-Z) is open.
    std::vector<std::string> pressed(std::string_view character, EventModifierFlags modifiers) {
        Menu menu = manualMenu();
        MenuItem undo("Undo", Record, "z");
        undo.setTarget(target_);
        MenuItem redo("Redo", RecordAgain, "z");
        redo.setKeyEquivalentModifierMask(EventModifierFlags::shift | EventModifierFlags::command);
        redo.setTarget(target_);
        menu.addItem(undo);
        menu.addItem(redo);
        statusItem_.setMenu(menu);
        world_.openStatusMenu([&] { world_.pressKey(character, modifiers); });
        std::vector<std::string> selectors;
        for (const ReceivedAction& action : target_->received()) {
            selectors.push_back(action.selector);
        }
        return selectors;
    }
};

TEST_F(KeyEquivalentContract, ChoosesTheItemOfTheOpenMenu) {
    EXPECT_THAT(pressed("z", EventModifierFlags::command), ElementsAre("record:"));
}

TEST_F(KeyEquivalentContract, TellsItemsApartByTheShiftKey) {
    EXPECT_THAT(pressed("z", EventModifierFlags::shift | EventModifierFlags::command),
                ElementsAre("recordAgain"));
}

TEST_F(KeyEquivalentContract, NeedsTheModifiersOfTheItem) {
    EXPECT_THAT(pressed("z", EventModifierFlags::control | EventModifierFlags::command), IsEmpty());
    EXPECT_THAT(pressed("z", EventModifierFlags::option | EventModifierFlags::command), IsEmpty());
}

TEST_F(KeyEquivalentContract, NeedsTheCharacterOfTheItem) {
    EXPECT_THAT(pressed("x", EventModifierFlags::command), IsEmpty());
}

TEST_F(KeyEquivalentContract, HasNoEffectForADisabledItem) {
    Menu menu = manualMenu();
    MenuItem item("Quit", Record, "q");
    item.setTarget(target_);
    item.setEnabled(false);
    menu.addItem(item);
    statusItem_.setMenu(menu);
    world_.openStatusMenu([&] { world_.pressKey("q", EventModifierFlags::command); });
    EXPECT_THAT(target_->received(), IsEmpty());
}

TEST_F(KeyEquivalentContract, HasNoEffectInAStatusItemsMenuThatIsClosed) {
    Menu menu = manualMenu();
    MenuItem item("Quit", Record, "q");
    item.setTarget(target_);
    menu.addItem(item);
    statusItem_.setMenu(menu);
    world_.activateApplication();
    world_.pressKey("q", EventModifierFlags::command);
    EXPECT_THAT(target_->received(), IsEmpty());
}

} // namespace
} // namespace kestrune::contract
