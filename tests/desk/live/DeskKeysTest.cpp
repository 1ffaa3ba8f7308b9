#include "desk/live/hand/DeskKeys.h"

#include "tests/desk/live/LiveFixture.h"
#include "tests/desk/live/SettingsOnTheDesk.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

std::optional<WindowCommand> press(LiveDesk& desk, char32_t key) { return pressDeskKey(desk, {key}); }

std::string newsAfter(char32_t key) {
    LiveDesk desk({});
    desk.announce({});
    EXPECT_FALSE(press(desk, key));
    return desk.news().text;
}

TEST(DeskKeys, DoWhatTheLegendSays) {
    EXPECT_EQ(newsAfter(U'1'), "Built-in Display is pinned and has the Dock");
    EXPECT_EQ(newsAfter(U'9'), "There is no display 9");
    EXPECT_EQ(newsAfter(U'g'), "Guard off: the Dock goes wherever the pointer pushes it");
    EXPECT_EQ(newsAfter(U'p'), "Display 3 was plugged in");
    EXPECT_EQ(newsAfter(U't'),
              "The system switched the tap off after a timeout; the guard switched it on again at once");
    EXPECT_EQ(newsAfter(U'+'), "The guarded band is 8 points deep");
    EXPECT_EQ(newsAfter(U'-'), "The guarded band is 2 points deep");
    EXPECT_EQ(newsAfter(U'u').substr(0, 30), "Built-in Display was unplugged");
    EXPECT_EQ(newsAfter(U'a').substr(0, 23), "The system does not ask");
    EXPECT_EQ(newsAfter(U'i'), "System Settings shows the login items");
    EXPECT_EQ(newsAfter(U'w'), "From now on a new login item waits for the user's approval");
    EXPECT_EQ(newsAfter(U'f'), "The update feed has a new version");
    EXPECT_EQ(newsAfter(U'c'), "The updater checks the feed by itself and finds nothing to show");
    EXPECT_EQ(newsAfter(U'l'), "Kestrune has quit: the Dock goes wherever the pointer pushes it");
}

TEST(DeskKeys, OpenTheMenu) {
    LiveDesk desk({});
    press(desk, U'm');
    EXPECT_TRUE(desk.parts().isMenuOpen());
}

TEST(DeskKeys, LaunchAnApplicationThatHasQuit) {
    LiveDesk desk({});
    press(desk, U'l');
    EXPECT_FALSE(desk.host().isRunning());
    for (const char32_t key : {U'1', U'g', U'm', U'a'}) {
        desk.announce({});
        press(desk, key);
        EXPECT_EQ(desk.news().text, "Kestrune does not run") << static_cast<char>(key);
    }
    press(desk, U'l');
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST(DeskKeys, LeaveTheDeskAloneWhenTheyMeanNothingToIt) {
    LiveDesk desk({});
    const std::string before = desk.news().text;
    for (const char32_t key : {U'0', U'x', U'G', U'\0', U'↑', U'⏎'}) {
        EXPECT_FALSE(press(desk, key));
    }
    pressDeskKey(desk, {.key = 0, .withCommand = true});
    EXPECT_EQ(desk.news().text, before);
}

TEST(DeskKeys, LeaveTheWindowsOwnToIt) {
    LiveDesk desk({});
    const std::string before = desk.news().text;
    EXPECT_EQ(press(desk, U'z'), WindowCommand::zoom);
    EXPECT_EQ(press(desk, U'd'), WindowCommand::changeAppearance);
    EXPECT_EQ(press(desk, U's'), WindowCommand::savePicture);
    EXPECT_EQ(press(desk, U'h'), WindowCommand::hideKeys);
    EXPECT_EQ(press(desk, U'q'), WindowCommand::quit);
    EXPECT_EQ(desk.news().text, before);
}

class DeskKeysInSettings : public SettingsOnTheDesk {
protected:
    DeskKeysInSettings() { open(); }
};

TEST(DeskKeys, WalkThroughAMenuAndChooseInIt) {
    LiveDesk desk({});
    press(desk, U'm');
    const auto highlighted = [&desk] {
        const DeskPicture picture = pictureOf(desk);
        std::vector<std::string> titles;
        for (const MenuRowPicture& row : picture.menu->rows) {
            if (row.highlighted) {
                titles.push_back(row.title);
            }
        }
        return titles;
    };
    const auto first = highlighted();
    press(desk, U'↓');
    const auto second = highlighted();
    EXPECT_NE(second, first);
    press(desk, U'↑');
    EXPECT_EQ(highlighted(), first);
    pressDeskKey(desk, {.key = U'↓', .isRepeated = true});
    EXPECT_EQ(highlighted(), second) << "an arrow that is held down goes on";
    press(desk, U'⎋');
    EXPECT_FALSE(desk.parts().isMenuOpen());
    press(desk, U'm');
    press(desk, U'⏎');
    EXPECT_FALSE(desk.parts().isMenuOpen());
    EXPECT_NE(desk.news().text, "");
}

TEST_F(DeskKeysInSettings, GoFromControlToControl) {
    const auto focused = [this] { return desk.parts().applicationWindow()->focusedElement; };
    EXPECT_FALSE(focused());
    press(desk, U'⇥');
    const auto first = focused();
    EXPECT_TRUE(first);
    press(desk, U'⇥');
    EXPECT_NE(focused(), first);
    pressDeskKey(desk, {.key = U'⇥', .withShift = true});
    EXPECT_EQ(focused(), first);
    press(desk, U' ');
    EXPECT_EQ(desk.session().loginItem().status(), AppServiceStatus::enabled);
}

TEST_F(DeskKeysInSettings, AreTheMenusWithCommand) {
    pressDeskKey(desk, {.key = U'q', .withCommand = true});
    EXPECT_FALSE(desk.host().isRunning());
}

TEST(DeskKeys, DoTheirWorkOnceWhileTheyAreHeldDown) {
    LiveDesk desk({});
    desk.announce({});
    EXPECT_FALSE(pressDeskKey(desk, {.key = U'q', .isRepeated = true}));
    pressDeskKey(desk, {.key = U'g', .isRepeated = true});
    EXPECT_EQ(desk.news().text, "");
    pressDeskKey(desk, {.key = U'+', .isRepeated = true});
    EXPECT_EQ(desk.news().text, "The guarded band is 8 points deep") << "but for the depth of the band";
}

TEST(DeskKeys, AreAllInTheLegend) {
    std::string keys;
    for (const KeyHint& hint : keyLegend(false)) {
        EXPECT_FALSE(hint.action.empty());
        keys += hint.key + " ";
    }
    EXPECT_EQ(keys, "1–9 G M ← ↑ ↓ → ↩ esc ⇥ Space Control U P A I W F C T + − L Z D S H Q ");
    EXPECT_EQ(keyLegend(true), (std::vector<KeyHint>{{"H", "show the keys"}}));
}

} // namespace
} // namespace kestrune::desk
