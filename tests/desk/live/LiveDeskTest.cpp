#include "tests/desk/live/LiveFixture.h"
#include "tests/desk/live/WindowTitles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace kestrune::desk {
namespace {

using testing::ElementsAre;
using Bounds = std::vector<Rect>;

TEST(LiveDesk, StartsWithTheDockOnThePinnedDisplay) {
    LiveDeskSetup setup;
    setup.pinned = 1;
    LiveDesk desk(setup);
    EXPECT_EQ(desk.session().dock().display(), 2U);
    EXPECT_EQ(desk.report().dockDisplay, 1U);
    EXPECT_EQ(desk.news().text, "Guard on: only Display 2 may have the Dock");
    EXPECT_TRUE(desk.host().guardIsRunning());
}

TEST(LiveDesk, StartsWithTheDockOnTheMainDisplayWhenNoneWasChosen) {
    LiveDesk desk({});
    EXPECT_EQ(desk.session().dock().display(), 1U);
    EXPECT_EQ(storedText(desk, "pinnedScreenUUID"), "");
}

TEST(LiveDesk, HoldsThePointerAndTellsWhere) {
    LiveDesk desk({});
    push(desk, Display2Edge);
    EXPECT_EQ(desk.news().text, "Held at 977 on Display 2");
    EXPECT_EQ(desk.news().kind, Occurrence::held);
    EXPECT_EQ(desk.session().pointer(), (Point{2472, 977}));
    ASSERT_TRUE(desk.heldPointer().has_value());
    EXPECT_EQ(desk.heldPointer()->location, (Point{2472, 977}));
    EXPECT_EQ(desk.heldPointer()->time, std::chrono::milliseconds(400));

    const replay::Report report = desk.report();
    EXPECT_EQ(report.events, 41U);
    EXPECT_EQ(report.changed, 40U);
    EXPECT_EQ(report.swallowed, 0U);
    EXPECT_EQ(report.violations, 0U);
    EXPECT_EQ(report.dockMoves, 0U);
}

TEST(LiveDesk, TellsThatADraggedPointerWasHeld) {
    for (const EventType type :
         {EventType::leftMouseDragged, EventType::rightMouseDragged, EventType::otherMouseDragged}) {
        LiveDesk desk({});
        push(desk, Display2Edge, type);
        EXPECT_EQ(desk.news().text, "Held at 977 on Display 2 while dragging");
    }
}

TEST(LiveDesk, TellsThatTheDockMoved) {
    LiveDesk desk(unguarded());
    EXPECT_EQ(desk.news().text, "Guard off: the Dock goes wherever the pointer pushes it");
    push(desk, Display2Edge);
    EXPECT_EQ(desk.news().text, "The Dock moved to Display 2");
    EXPECT_EQ(desk.news().kind, Occurrence::dockMoved);
    ASSERT_TRUE(desk.dockMove().has_value());
    EXPECT_EQ(desk.dockMove()->from, 1U);
    EXPECT_EQ(desk.dockMove()->to, 2U);

    const replay::Report report = desk.report();
    EXPECT_EQ(report.changed, 0U);
    EXPECT_EQ(report.dockMoves, 1U);
    EXPECT_EQ(report.dockDisplay, 1U);
    EXPECT_EQ(report.violations, 0U);
}

TEST(LiveDesk, CountsAGuardThatDoesNotHoldAsAgainstTheRule) {
    LiveDesk desk({});
    // Another process turns the choice round behind the guard's back, which keeps what it resolved.
    desk.session().defaults().set("pinnedScreenUUID", sim::PropertyList{sim::uuidOfDisplay(2)});
    push(desk, Display2Edge);
    EXPECT_EQ(desk.report().violations, 40U);
}

TEST(LiveDesk, PinsADisplayByItsNumber) {
    LiveDesk desk({});
    desk.pin(2);
    EXPECT_EQ(desk.news().text, "Display 2 is pinned: push into its bottom edge, and the Dock comes");
    EXPECT_EQ(storedText(desk, "pinnedScreenUUID"), sim::uuidOfDisplay(2));
    push(desk, Display2Edge);
    EXPECT_EQ(desk.news().text, "The Dock moved to Display 2");
    push(desk, BuiltInEdge);
    EXPECT_EQ(desk.news().text, "Held at 977 on Built-in Display");
    desk.pin(2);
    EXPECT_EQ(desk.news().text, "Display 2 is pinned and has the Dock");
    EXPECT_EQ(desk.report().violations, 0U);
}

TEST(LiveDesk, PinsNothingForANumberThatNoDisplayHas) {
    LiveDesk desk({});
    desk.pin(7);
    EXPECT_EQ(desk.news().text, "There is no display 7");
    EXPECT_EQ(storedText(desk, "pinnedScreenUUID"), "");
}

TEST(LiveDesk, SwitchesTheGuardOffAndOn) {
    LiveDesk desk({});
    desk.toggleGuard();
    EXPECT_EQ(desk.news().text, "Guard off: the Dock goes wherever the pointer pushes it");
    EXPECT_FALSE(desk.host().guardIsRunning());
    EXPECT_EQ(storedText(desk, "isEnabled"), "0");
    push(desk, Display2Edge);
    EXPECT_EQ(desk.report().dockMoves, 1U);

    desk.toggleGuard();
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
    EXPECT_TRUE(desk.host().guardIsRunning());
    push(desk, BuiltInEdge);
    push(desk, Display2Edge);
    EXPECT_EQ(desk.report().dockMoves, 2U);
    EXPECT_EQ(desk.report().dockDisplay, 0U);
    EXPECT_EQ(desk.report().violations, 0U);
}

TEST(LiveDesk, MovesThePinWhenThePinnedDisplayIsUnplugged) {
    LiveDeskSetup setup;
    setup.pinned = 1;
    LiveDesk desk(setup);
    desk.movePointerTowards({2000, 400});
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.news().text, "Display 2 was unplugged; the pin and the Dock moved to Built-in Display");
    EXPECT_EQ(desk.news().kind, Occurrence::warning);
    EXPECT_EQ(storedText(desk, "pinnedScreenUUID"), sim::uuidOfDisplay(1));
    EXPECT_THAT(namesOfDisplays(desk), ElementsAre("Built-in Display"));
}

TEST(LiveDesk, TellsThatOnlyThePinMoved) {
    LiveDesk desk({});
    desk.pin(2);
    desk.movePointerTowards({2000, 400});
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.news().text, "Display 2 was unplugged; the pin moved to Built-in Display");
}

TEST(LiveDesk, TellsThatAnUnpinnedDisplayWasUnplugged) {
    LiveDesk desk({});
    desk.movePointerTowards({2000, 400});
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.news().text, "Display 2 was unplugged");
    EXPECT_EQ(desk.news().kind, Occurrence::neutral);
}

TEST(LiveDesk, MakesTheNextDisplayThePrimaryOne) {
    LiveDesk desk({});
    desk.pin(2);
    push(desk, Display2Edge);
    desk.movePointerTowards({700, 400});
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.news().text, "Built-in Display was unplugged; Display 2 is the primary display now");
    EXPECT_EQ(boundsOfDisplays(desk), (Bounds{{0, 0, 1920, 1080}}));
    EXPECT_TRUE(desk.session().displays().containing(desk.session().pointer()));
}

TEST(LiveDesk, TellsThatPinAndDockMovedToTheNewPrimaryDisplay) {
    LiveDesk desk({});
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.news().text, "Built-in Display was unplugged; the pin and the Dock moved to Display 2, "
                                "the primary display now");
}

TEST(LiveDesk, CanLoseEveryDisplay) {
    LiveDeskSetup setup;
    setup.displays = {{0, 0, 1512, 982}};
    setup.pinned = 0;
    LiveDesk desk(setup);
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.news().text,
              "Built-in Display was unplugged: no display is left, and the pin is forgotten");
    EXPECT_EQ(storedText(desk, "pinnedScreenUUID"), "");
    EXPECT_EQ(desk.report().dockDisplay, 0U);

    desk.movePointerTowards({10, 10});
    EXPECT_EQ(desk.report().events, 0U);
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.news().text, "No display is under the pointer");
    desk.toggleGuard();
    desk.toggleGuard();
    EXPECT_EQ(desk.news().text, "Guard on, but no display is connected");

    desk.plugIn();
    EXPECT_EQ(desk.news().text, "Built-in Display was plugged in as the primary display");
    EXPECT_EQ(boundsOfDisplays(desk), (Bounds{{0, 0, 1512, 982}}));
}

TEST(LiveDesk, RemembersWhereTheDockWasWhenNoDisplayIsLeft) {
    LiveDeskSetup setup;
    setup.pinned = 1;
    LiveDesk desk(setup);
    desk.unplugUnderPointer();
    desk.unplugUnderPointer();
    EXPECT_EQ(desk.report().dockDisplay, 1U);
}

TEST(LiveDesk, PutsADisplayBackWhereItWas) {
    LiveDesk desk({});
    const Bounds before = boundsOfDisplays(desk);
    desk.unplugUnderPointer();
    desk.plugIn();
    EXPECT_EQ(desk.news().text, "Built-in Display was plugged in as the primary display");
    EXPECT_THAT(namesOfDisplays(desk), ElementsAre("Built-in Display", "Display 2"));
    EXPECT_EQ(boundsOfDisplays(desk), before);
}

TEST(LiveDesk, PutsADisplayAtTheRightWhenTheOthersHaveChanged) {
    LiveDesk desk({});
    desk.plugIn();
    desk.movePointerTowards({700, 400});
    desk.unplugUnderPointer();
    desk.unplugUnderPointer();
    ASSERT_EQ(namesOfDisplays(desk).size(), 1U);
    desk.plugIn();
    desk.plugIn();
    EXPECT_THAT(namesOfDisplays(desk), ElementsAre("Built-in Display", "Display 2", "Display 3"));
}

TEST(LiveDesk, PlugsNewDisplaysInAtTheRight) {
    LiveDesk desk({});
    desk.plugIn();
    EXPECT_EQ(desk.news().text, "Display 3 was plugged in");
    EXPECT_EQ(boundsOfDisplays(desk).back(), (Rect{3432, -518, 1080, 1920}));
    push(desk, {3972, 1402});
    EXPECT_EQ(desk.news().text, "Held at 1397 on Display 3");
    EXPECT_EQ(desk.report().violations, 0U);
}

TEST(LiveDesk, HasNineDisplaysAtMost) {
    LiveDesk desk({});
    for (int count = 0; count < 8; ++count) {
        desk.plugIn();
    }
    EXPECT_EQ(namesOfDisplays(desk).size(), 9U);
    EXPECT_EQ(desk.news().text, "There is no other display to plug in");
}

TEST(LiveDesk, ForgetsItsMarksWhenDisplaysChange) {
    LiveDesk desk(unguarded());
    push(desk, Display2Edge);
    desk.toggleGuard();
    desk.pin(1);
    push(desk, BuiltInEdge);
    push(desk, Display2Edge);
    ASSERT_TRUE(desk.heldPointer() && desk.dockMove());
    desk.plugIn();
    EXPECT_FALSE(desk.heldPointer());
    EXPECT_FALSE(desk.dockMove());
}

TEST(LiveDesk, ChangesTheBandInPowersOfTwo) {
    LiveDesk desk({});
    desk.deepenBand();
    EXPECT_EQ(desk.news().text, "The guarded band is 8 points deep");
    push(desk, Display2Edge);
    EXPECT_EQ(desk.news().text, "Held at 973 on Display 2");
    EXPECT_EQ(desk.report().violations, 0U);
    for (int step = 0; step < 12; ++step) {
        desk.deepenBand();
    }
    EXPECT_EQ(storedText(desk, "blockMargin"), "256");
    for (int step = 0; step < 12; ++step) {
        desk.narrowBand();
    }
    EXPECT_EQ(desk.news().text, "The guarded band is 1 point deep");
}

TEST(LiveDesk, FindsTheNextPowerOfTwoFromAnyMargin) {
    LiveDeskSetup setup;
    setup.margin = 5.5;
    {
        LiveDesk desk(setup);
        desk.deepenBand();
        EXPECT_EQ(storedText(desk, "blockMargin"), "8");
    }
    LiveDesk desk(setup);
    desk.narrowBand();
    EXPECT_EQ(storedText(desk, "blockMargin"), "4");
}

void click(LiveDesk& desk, const DeskTarget& target) {
    desk.pressButton(target);
    desk.releaseButton(target);
}

// Of the row of the open menu with that title at its beginning, spaces aside.
DeskTarget menuRow(LiveDesk& desk, std::string_view title) {
    const auto rows = desk.session().menus().rows();
    const auto row = std::find_if(rows.begin(), rows.end(), [title](const sim::MenuRow& candidate) {
        return candidate.title.find(title) < 3;
    });
    EXPECT_NE(row, rows.end()) << title;
    return DeskTarget::menuRow(static_cast<std::size_t>(row - rows.begin()));
}

// Past the menu that was built at launch, before the setup was noted.
void openMenu(LiveDesk& desk) {
    desk.openStatusMenu();
    desk.openStatusMenu();
}

TEST(LiveDesk, TellsWhatWasChosenInTheMenu) {
    LiveDesk desk({});
    openMenu(desk);
    click(desk, menuRow(desk, "Display 2"));
    EXPECT_EQ(desk.news().text, "Display 2 is pinned: push into its bottom edge, and the Dock comes");
    EXPECT_EQ(storedText(desk, "pinnedScreenUUID"), sim::uuidOfDisplay(2));
    openMenu(desk);
    click(desk, menuRow(desk, "Disable"));
    EXPECT_EQ(desk.news().text, "Guard off: the Dock goes wherever the pointer pushes it");
    openMenu(desk);
    click(desk, menuRow(desk, "Enable"));
    EXPECT_EQ(desk.news().text, "Guard on: only Display 2 may have the Dock");
    openMenu(desk);
    click(desk, menuRow(desk, "Settings…"));
    EXPECT_EQ(desk.news().text, "Kestrune opened its window “Kestrune Settings”");
    openMenu(desk);
    click(desk, menuRow(desk, "Quit"));
    EXPECT_EQ(desk.news().text, "Kestrune has quit: the Dock goes wherever the pointer pushes it");
    EXPECT_FALSE(desk.host().isRunning());
}

TEST(LiveDesk, TellsOfTheMarkedDisplayThatItIsPinned) {
    LiveDesk desk({});
    for (const char* time : {"the first time", "again"}) {
        openMenu(desk);
        click(desk, menuRow(desk, "Built-in Display"));
        EXPECT_EQ(desk.news().text, "Built-in Display is pinned and has the Dock") << time;
        desk.announce({});
    }
}

TEST(LiveDesk, ClosesTheMenuWhenDisplaysComeOrGo) {
    LiveDesk desk({});
    desk.movePointerTowards({2000, 400});
    desk.openStatusMenu();
    EXPECT_EQ(desk.displayUnderPointer(), 1U);
    desk.unplugUnderPointer();
    EXPECT_FALSE(desk.parts().isMenuOpen());
    EXPECT_FALSE(desk.navigate(NavigationKey::down)) << "no key goes to a menu that nobody sees";
    desk.openStatusMenu();
    desk.plugIn();
    EXPECT_FALSE(desk.parts().isMenuOpen());
}

TEST(LiveDesk, QuitsByKeyEquivalentWhileTheMenuIsOpen) {
    LiveDesk desk({});
    desk.pressEquivalent("q", false);
    EXPECT_TRUE(desk.host().isRunning()) << "an accessory does not hear keys";
    desk.openStatusMenu();
    desk.pressEquivalent("q", false);
    EXPECT_FALSE(desk.host().isRunning());
    EXPECT_EQ(desk.news().text, "Kestrune has quit: the Dock goes wherever the pointer pushes it");
    push(desk, Display2Edge);
    EXPECT_EQ(desk.report().dockMoves, 1U);
    EXPECT_EQ(desk.report().violations, 0U);
}

TEST(LiveDesk, LaunchesTheApplicationAgainWithWhatItHadStored) {
    LiveDesk desk({});
    desk.pin(2);
    desk.quitOrLaunch();
    EXPECT_EQ(desk.news().text, "Kestrune has quit: the Dock goes wherever the pointer pushes it");
    desk.openStatusMenu();
    EXPECT_EQ(desk.news().text, "Kestrune does not run");
    desk.quitOrLaunch();
    EXPECT_EQ(desk.news().text, "Guard on: only Display 2 may have the Dock");
    push(desk, BuiltInEdge);
    EXPECT_EQ(desk.news().text, "Held at 977 on Built-in Display");
}

TEST(LiveDesk, SwitchesThePermissionInThePane) {
    LiveDeskSetup setup;
    setup.permission = sim::Permission::notListed;
    LiveDesk desk(setup);
    desk.askForPermission();
    click(desk, controlTitled(pictureOf(desk), "Open System Settings").value());
    click(desk, controlTitled(pictureOf(desk), "Kestrune").value());
    EXPECT_EQ(desk.news().text, "Accessibility permission granted: Kestrune looks for it once a second");
    desk.advance(std::chrono::seconds(1));
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
    click(desk, controlTitled(pictureOf(desk), "Kestrune").value());
    EXPECT_EQ(desk.news().text.substr(0, 32), "Accessibility permission revoked");
}

TEST(LiveDesk, TellsWhatIsAnnounced) {
    LiveDesk desk({});
    desk.announce({"The picture was saved", Occurrence::neutral});
    EXPECT_EQ(desk.news().text, "The picture was saved");
}

} // namespace
} // namespace kestrune::desk
