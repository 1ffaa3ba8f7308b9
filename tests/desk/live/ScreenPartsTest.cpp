#include "desk/live/world/ScreenParts.h"

#include "tests/desk/live/PartsFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

using testing::StartsWith;

using ScreenPartsMenu = PartsFixture;
using ScreenPartsKeys = PartsFixture;
using ScreenPartsMainMenu = PartsFixture;
using ScreenPartsToolTip = PartsFixture;

TEST_F(ScreenPartsMenu, OpensWithThePressAndStaysOpenAfterAClick) {
    parts.press(Icon);
    EXPECT_TRUE(parts.isMenuOpen());
    parts.release(Icon);
    EXPECT_TRUE(parts.isMenuOpen());
    EXPECT_EQ(picture().menu->display, 0U);
    EXPECT_EQ(picture().menu->anchor, MenuAnchor(StatusItemAnchor{0}));
    EXPECT_FALSE(highlightedTitle());
}

TEST_F(ScreenPartsMenu, IsChosenFromByTwoClicks) {
    click(Icon);
    const PartsOutcome outcome = click(row("Two"));
    EXPECT_THAT(outcome.chosenRow.value_or(""), StartsWith("  Two"));
    EXPECT_FALSE(outcome.wasMarked);
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_EQ(storedChoice(), sim::uuidOfDisplay(2));
}

TEST_F(ScreenPartsMenu, IsChosenFromByOneDrag) {
    parts.press(Icon);
    parts.hover(row("Two"));
    EXPECT_THAT(highlightedTitle().value_or(""), StartsWith("  Two"));
    EXPECT_THAT(parts.release(row("Two")).chosenRow.value_or(""), StartsWith("  Two"));
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_EQ(storedChoice(), sim::uuidOfDisplay(2));
}

TEST_F(ScreenPartsMenu, TellsThatTheChosenRowWasMarkedAlready) {
    click(Icon);
    const PartsOutcome outcome = click(row("One"));
    EXPECT_TRUE(outcome.chosenRow);
    EXPECT_TRUE(outcome.wasMarked);
}

TEST_F(ScreenPartsMenu, ClosesWithAPressElsewhereThatDoesNothingMore) {
    session.accessibility().askUser();
    const std::optional<DeskTarget> places[] = {std::nullopt, control("Deny")};
    for (const std::optional<DeskTarget>& elsewhere : places) {
        click(Icon);
        parts.press(elsewhere);
        EXPECT_FALSE(parts.isMenuOpen());
        parts.release(elsewhere);
        EXPECT_TRUE(session.accessibility().isDialogShown());
    }
    EXPECT_EQ(storedChoice(), "");
}

TEST_F(ScreenPartsMenu, ClosesWhenItsItemIsPressedAgain) {
    click(Icon);
    click(Icon);
    EXPECT_FALSE(parts.isMenuOpen());
    click(Icon);
    EXPECT_TRUE(parts.isMenuOpen());
}

TEST_F(ScreenPartsMenu, MovesToTheDisplayWhereTheItemIsPressed) {
    click(Icon);
    click(IconOnTwo);
    EXPECT_TRUE(parts.isMenuOpen());
    EXPECT_EQ(picture().menu->display, 1U);
}

TEST_F(ScreenPartsMenu, ClosesAfterADragThatEndsElsewhere) {
    parts.press(Icon);
    parts.release(std::nullopt);
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_EQ(storedChoice(), "");
}

TEST_F(ScreenPartsMenu, StaysOpenOverWhatCannotBeChosen) {
    click(Icon);
    const DeskTarget useless[] = {row("Pin Dock to:"), separator(), DeskTarget::menuPanel(),
                                  DeskTarget::menuRow(99)};
    for (const DeskTarget& target : useless) {
        parts.hover(target);
        EXPECT_FALSE(highlightedTitle());
        EXPECT_FALSE(click(target).chosenRow);
        EXPECT_TRUE(parts.isMenuOpen());
    }
    parts.press(NavigationKey::escape);
    parts.press(Icon);
    EXPECT_FALSE(parts.release(separator()).chosenRow) << "at the end of a drag";
    EXPECT_TRUE(parts.isMenuOpen());
    EXPECT_EQ(storedChoice(), "");
}

TEST_F(ScreenPartsMenu, HighlightsTheRowUnderThePointerOnly) {
    click(Icon);
    parts.hover(row("Disable"));
    EXPECT_EQ(highlightedTitle(), "Disable");
    parts.hover(row("Quit"));
    EXPECT_EQ(highlightedTitle(), "Quit");
    parts.hover(std::nullopt);
    EXPECT_FALSE(highlightedTitle());
    parts.hover(row("Quit"));
    parts.press(NavigationKey::escape);
    click(Icon);
    EXPECT_FALSE(highlightedTitle()) << "a menu opens without the highlight of the last";
}

TEST_F(ScreenPartsMenu, ShowsMarksAndKeys) {
    click(Icon);
    const MenuPicture menu = *picture().menu;
    ASSERT_EQ(menu.rows.size(), 8U);
    EXPECT_FALSE(menu.rows[0].enabled);
    EXPECT_TRUE(menu.rows[1].marked);
    EXPECT_FALSE(menu.rows[2].marked);
    EXPECT_EQ(menu.rows[3].kind, MenuRowKind::separator);
    EXPECT_EQ(menu.rows[4].keyEquivalent, "");
    EXPECT_EQ(menu.rows[6].keyEquivalent, "⌘,");
    EXPECT_EQ(menu.rows[7].keyEquivalent, "⌘Q");
}

TEST_F(ScreenPartsMenu, GoesWithTheDisplayThatItHangsFrom) {
    click(IconOnTwo);
    const DeskTarget two = row("Two");
    parts.press(two);
    parts.displaysChanged();
    EXPECT_FALSE(parts.isMenuOpen());
    parts.release(two);
    EXPECT_EQ(storedChoice(), "");
}

TEST_F(ScreenPartsMenu, IsGoneWithTheProcess) {
    click(Icon);
    click(row("Quit"));
    host.noticeEnd();
    EXPECT_TRUE(picture().statusItems.empty());
    parts.press(Icon);
    parts.release(Icon);
    parts.openStatusMenu(0);
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_FALSE(picture().menu);
}

TEST_F(ScreenPartsKeys, GoToTheMenuOnlyWhileItIsOpen) {
    EXPECT_FALSE(parts.takesKeys());
    parts.openStatusMenu(1);
    EXPECT_TRUE(parts.takesKeys());
    EXPECT_EQ(picture().menu->display, 1U);
    parts.press(NavigationKey::escape);
    EXPECT_FALSE(parts.takesKeys());
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_EQ(storedChoice(), "");
}

TEST_F(ScreenPartsKeys, MoveTheHighlightPastWhatCannotBeChosen) {
    parts.openStatusMenu(0);
    EXPECT_THAT(highlightedTitle().value_or(""), StartsWith("  One"));
    std::vector<std::string> downwards;
    for (int step = 0; step < 5; ++step) {
        parts.press(NavigationKey::down);
        downwards.push_back(highlightedTitle().value_or(""));
    }
    EXPECT_THAT(downwards, testing::ElementsAre(StartsWith("  Two"), "Disable", "Settings…", "Quit", "Quit"));
    for (int step = 0; step < 9; ++step) {
        parts.press(NavigationKey::up);
    }
    EXPECT_THAT(highlightedTitle().value_or(""), StartsWith("  One"));
}

TEST_F(ScreenPartsKeys, StartFromEitherEndOfAMenuWithoutHighlight) {
    click(Icon);
    parts.press(NavigationKey::up);
    EXPECT_EQ(highlightedTitle(), "Quit");
    parts.hover(std::nullopt);
    parts.press(NavigationKey::down);
    EXPECT_THAT(highlightedTitle().value_or(""), StartsWith("  One"));
}

TEST_F(ScreenPartsKeys, ContinueWhereThePointerIs) {
    click(Icon);
    parts.hover(row("Disable"));
    parts.press(NavigationKey::down);
    EXPECT_EQ(highlightedTitle(), "Settings…");
}

TEST_F(ScreenPartsKeys, ChooseTheHighlightedRow) {
    parts.openStatusMenu(0);
    parts.press(NavigationKey::down);
    EXPECT_THAT(parts.press(NavigationKey::enter).chosenRow.value_or(""), StartsWith("  Two"));
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_EQ(storedChoice(), sim::uuidOfDisplay(2));
}

TEST_F(ScreenPartsKeys, CloseAMenuWithoutHighlight) {
    click(Icon);
    EXPECT_FALSE(parts.press(NavigationKey::enter).chosenRow);
    EXPECT_FALSE(parts.isMenuOpen());
}

TEST_F(ScreenPartsKeys, LeaveTheStatusMenuWhereItIsSideways) {
    parts.openStatusMenu(0);
    for (const NavigationKey key : {NavigationKey::left, NavigationKey::right}) {
        parts.press(key);
        EXPECT_EQ(picture().menu->anchor, MenuAnchor(StatusItemAnchor{0}));
    }
}

TEST_F(ScreenPartsKeys, ChooseByKeyEquivalentWhileTheMenuIsOpen) {
    parts.openStatusMenu(0);
    EXPECT_FALSE(parts.pressEquivalent("q", true).chosenRow) << "with Shift it is another key";
    EXPECT_FALSE(parts.pressEquivalent("x", false).chosenRow);
    EXPECT_TRUE(parts.isMenuOpen());
    EXPECT_EQ(parts.pressEquivalent(",", false).chosenRow, "⌘,");
    EXPECT_FALSE(parts.isMenuOpen());
    EXPECT_TRUE(session.application().exists);
    parts.openStatusMenu(0);
    EXPECT_EQ(parts.pressEquivalent("q", false).chosenRow, "⌘q");
    EXPECT_FALSE(session.application().exists);
}

TEST_F(ScreenPartsKeys, MeanNothingToAnAccessoryWithoutAnOpenMenu) {
    EXPECT_FALSE(parts.pressEquivalent("q", false).chosenRow);
    EXPECT_FALSE(parts.pressEquivalent(",", false).chosenRow);
    EXPECT_TRUE(session.application().exists);
}

TEST_F(ScreenPartsMainMenu, IsInTheBarOnlyWhileTheApplicationIsRegularAndActive) {
    EXPECT_TRUE(picture().mainMenuTitles.empty());
    makeRegular();
    EXPECT_THAT(picture().mainMenuTitles, testing::ElementsAre("Kestrune", "Edit"));
}

TEST_F(ScreenPartsMainMenu, OpensUnderItsTitle) {
    makeRegular();
    click(DeskTarget::mainMenuTitle(1, 0));
    const MenuPicture menu = *picture().menu;
    EXPECT_EQ(menu.display, 1U);
    EXPECT_EQ(menu.anchor, MenuAnchor(MainMenuTitleAnchor{0}));
    ASSERT_EQ(menu.rows.size(), 3U);
    EXPECT_EQ(menu.rows[0].title, "Settings…");
    EXPECT_EQ(menu.rows[2].title, "Quit Kestrune");
}

TEST_F(ScreenPartsMainMenu, ShowsShiftInAKeyEquivalent) {
    makeRegular();
    click(DeskTarget::mainMenuTitle(0, 1));
    EXPECT_EQ(picture().menu->rows[0].keyEquivalent, "⌘Z");
    EXPECT_EQ(picture().menu->rows[1].keyEquivalent, "⇧⌘Z");
}

TEST_F(ScreenPartsMainMenu, IsWalkedThroughByTheArrowKeys) {
    makeRegular();
    click(DeskTarget::mainMenuTitle(0, 0));
    parts.press(NavigationKey::right);
    EXPECT_EQ(picture().menu->anchor, MenuAnchor(MainMenuTitleAnchor{1}));
    EXPECT_FALSE(highlightedTitle()) << "nobody takes what the Edit menu offers";
    parts.press(NavigationKey::right);
    EXPECT_EQ(picture().menu->anchor, MenuAnchor(MainMenuTitleAnchor{0}));
    EXPECT_EQ(highlightedTitle(), "Settings…");
    parts.press(NavigationKey::left);
    EXPECT_EQ(picture().menu->anchor, MenuAnchor(MainMenuTitleAnchor{1}));
}

TEST_F(ScreenPartsMainMenu, CanGoWhileOneOfItsMenusIsOpen) {
    makeRegular();
    click(DeskTarget::mainMenuTitle(0, 0));
    session.application().isActive = false;
    parts.press(NavigationKey::right);
    parts.press(NavigationKey::escape);
    EXPECT_FALSE(parts.isMenuOpen());
}

TEST_F(ScreenPartsMainMenu, SwitchesMenusUnderAPointerInTheSameBar) {
    makeRegular();
    click(DeskTarget::mainMenuTitle(0, 0));
    parts.hover(DeskTarget::mainMenuTitle(0, 1));
    EXPECT_EQ(picture().menu->anchor, MenuAnchor(MainMenuTitleAnchor{1}));
    parts.hover(Icon);
    EXPECT_EQ(picture().menu->anchor, MenuAnchor(StatusItemAnchor{0}));
    parts.hover(DeskTarget::mainMenuTitle(1, 0));
    EXPECT_EQ(picture().menu->anchor, MenuAnchor(StatusItemAnchor{0})) << "that is another display's bar";
    EXPECT_EQ(picture().menu->display, 0U);
}

TEST_F(ScreenPartsMainMenu, OpensNothingUnderAPointerAlone) {
    makeRegular();
    parts.hover(DeskTarget::mainMenuTitle(0, 0));
    parts.hover(Icon);
    EXPECT_FALSE(parts.isMenuOpen());
}

TEST_F(ScreenPartsMainMenu, AnswersToKeysWithoutAnOpenMenu) {
    makeRegular();
    EXPECT_EQ(parts.pressEquivalent(",", false).chosenRow, "⌘,");
    EXPECT_FALSE(parts.pressEquivalent("z", true).chosenRow) << "nobody redoes anything";
    EXPECT_EQ(parts.pressEquivalent("q", false).chosenRow, "⌘q");
    EXPECT_FALSE(session.application().exists);
}

TEST_F(ScreenPartsToolTip, ComesWhenThePointerRests) {
    parts.hover(IconOnTwo);
    session.advance(Rest - sim::Duration(1));
    EXPECT_FALSE(picture().toolTip);
    parts.hover(IconOnTwo);
    session.advance(sim::Duration(1));
    ASSERT_TRUE(picture().toolTip);
    EXPECT_EQ(*picture().toolTip, (ToolTipPicture{1, 0, "Kestrune — Pin the Dock to one screen"}));
    parts.hover(std::nullopt);
    EXPECT_FALSE(picture().toolTip);
}

TEST_F(ScreenPartsToolTip, StartsToWaitAnewWhereThePointerComesBack) {
    parts.hover(Icon);
    session.advance(Rest);
    parts.hover(IconOnTwo);
    EXPECT_FALSE(picture().toolTip);
    session.advance(Rest);
    EXPECT_TRUE(picture().toolTip);
}

TEST_F(ScreenPartsToolTip, IsGoneWithThePressAndWhileTheMenuIsOpen) {
    parts.hover(Icon);
    session.advance(Rest);
    ASSERT_TRUE(picture().toolTip);
    parts.press(Icon);
    EXPECT_FALSE(picture().toolTip);
    parts.release(Icon);
    parts.hover(Icon);
    session.advance(10 * Rest);
    EXPECT_FALSE(picture().toolTip) << "the menu is open";
    parts.press(NavigationKey::escape);
    EXPECT_FALSE(picture().toolTip) << "the pointer has to rest anew";
    session.advance(Rest);
    EXPECT_TRUE(picture().toolTip);
}

TEST_F(ScreenPartsToolTip, BelongsToNothingElse) {
    parts.hover(DeskTarget::mainMenuTitle(0, 0));
    session.advance(Rest);
    EXPECT_FALSE(picture().toolTip);
}

TEST_F(ScreenPartsToolTip, IsGoneWithTheItem) {
    parts.hover(Icon);
    session.advance(Rest);
    host.quit();
    EXPECT_FALSE(picture().toolTip);
}

} // namespace
} // namespace kestrune::desk
