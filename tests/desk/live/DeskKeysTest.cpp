#include "desk/live/hand/DeskKeys.h"

#include "tests/desk/live/LiveFixture.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

std::string newsAfter(char key) {
    LiveDesk desk({});
    desk.announce({});
    EXPECT_FALSE(pressDeskKey(desk, key)) << key;
    return desk.news().text;
}

TEST(DeskKeys, DoWhatTheLegendSays) {
    EXPECT_EQ(newsAfter('1'), "Built-in Display is pinned and has the Dock");
    EXPECT_EQ(newsAfter('9'), "There is no display 9");
    EXPECT_EQ(newsAfter('g'), "Guard off: the Dock goes wherever the pointer pushes it");
    EXPECT_EQ(newsAfter('p'), "Display 3 was plugged in");
    EXPECT_EQ(newsAfter('t'),
              "The system switched the tap off after a timeout; the guard switched it on again at once");
    EXPECT_EQ(newsAfter('+'), "The guarded band is 8 points deep");
    EXPECT_EQ(newsAfter('-'), "The guarded band is 2 points deep");
    EXPECT_EQ(newsAfter('u').substr(0, 30), "Built-in Display was unplugged");
    EXPECT_EQ(newsAfter('a').substr(0, 23), "The system does not ask");
    EXPECT_EQ(newsAfter('i'), "System Settings shows the login items");
    EXPECT_EQ(newsAfter('w'), "From now on a new login item waits for the user's approval");
    EXPECT_EQ(newsAfter('f'), "The update feed has a new version");
    EXPECT_EQ(newsAfter('c'), "The updater checks the feed by itself and finds nothing to show");
    EXPECT_EQ(newsAfter('l'), "Kestrune has quit: the Dock goes wherever the pointer pushes it");
}

TEST(DeskKeys, OpenTheMenu) {
    LiveDesk desk({});
    pressDeskKey(desk, 'm');
    EXPECT_TRUE(desk.parts().isMenuOpen());
}

TEST(DeskKeys, LaunchAnApplicationThatHasQuit) {
    LiveDesk desk({});
    pressDeskKey(desk, 'l');
    EXPECT_FALSE(desk.host().isRunning());
    for (const char key : {'1', 'g', 'm', 'a'}) {
        desk.announce({});
        pressDeskKey(desk, key);
        EXPECT_EQ(desk.news().text, "Kestrune does not run") << key;
    }
    pressDeskKey(desk, 'l');
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST(DeskKeys, LeaveTheDeskAloneWhenTheyMeanNothingToIt) {
    LiveDesk desk({});
    const std::string before = desk.news().text;
    for (const char key : {'0', 'x', 'G', '\0'}) {
        EXPECT_FALSE(pressDeskKey(desk, key));
    }
    EXPECT_EQ(desk.news().text, before);
}

TEST(DeskKeys, LeaveTheWindowsOwnToIt) {
    LiveDesk desk({});
    const std::string before = desk.news().text;
    EXPECT_EQ(pressDeskKey(desk, 'z'), WindowCommand::zoom);
    EXPECT_EQ(pressDeskKey(desk, 'd'), WindowCommand::changeAppearance);
    EXPECT_EQ(pressDeskKey(desk, 's'), WindowCommand::savePicture);
    EXPECT_EQ(pressDeskKey(desk, 'h'), WindowCommand::hideKeys);
    EXPECT_EQ(pressDeskKey(desk, 'q'), WindowCommand::quit);
    EXPECT_EQ(desk.news().text, before);
}

TEST(DeskKeys, AreAllInTheLegend) {
    std::string keys;
    for (const KeyHint& hint : keyLegend()) {
        EXPECT_FALSE(hint.action.empty());
        keys += hint.key + " ";
    }
    EXPECT_EQ(keys, "1–9 G M U P A I W F C T + − L Z D S H Q ");
    EXPECT_EQ(legendOfHiddenKeys(), (std::vector<KeyHint>{{"H", "show the keys"}}));
}

} // namespace
} // namespace kestrune::desk
