// What each scene of the tour leaves on the desk.

#include "desk/live/gallery/Gallery.h"
#include "desk/live/world/LivePicture.h"
#include "sim/services/WindowState.h"
#include "tests/desk/live/WindowTitles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// The second display is above the first one, which leaves it no free bottom edge.
LiveDeskSetup otherDisplays() {
    auto setup = std::get<LiveDeskSetup>(setupOf({}));
    setup.displays = {{0, 0, 1000, 600}, {0, -500, 800, 500}, {-900, 0, 900, 700}};
    setup.pinned = 2;
    setup.permission = sim::Permission::notListed;
    return setup;
}

LiveDeskSetup usualDisplays() {
    auto setup = std::get<LiveDeskSetup>(setupOf({}));
    setup.permission = sim::Permission::notListed;
    return setup;
}

const std::vector<Scene>& scenesOfTheTour() { return chapters().front().stories.front().scenes; }

class ScenesOn : public testing::Test {
protected:
    explicit ScenesOn(const LiveDeskSetup& setup) : stage(setup) {}

    // All of them up to that one, with it.
    void playUntil(std::string_view name) {
        for (const Scene& scene : scenesOfTheTour()) {
            before = desk.report();
            const auto outcome = stage.perform(scene);
            const auto* const shown = std::get_if<DeskPicture>(&outcome);
            ASSERT_NE(shown, nullptr) << std::get<std::string>(outcome);
            stories.push_back(shown->story);
            if (scene.name == name) {
                return;
            }
        }
        FAIL() << "no scene " << name;
    }

    DeskPicture picture() { return pictureOf(desk); }

    std::vector<std::string> rowsOfMenu() {
        std::vector<std::string> titles;
        for (const sim::MenuRow& row : desk.session().menus().rows()) {
            titles.push_back(row.title);
        }
        return titles;
    }

    ActivationPolicy policy() { return desk.session().application().policy; }

    // What of the report is the last scene's.
    std::string figures() {
        const replay::Report now = desk.report();
        return std::to_string(now.events - before.events) + " events, " +
               std::to_string(now.changed - before.changed) + " held, " +
               std::to_string(now.dockMoves - before.dockMoves) + " Dock moves, " +
               std::to_string(now.violations - before.violations) + " against the rule";
    }

    Stage stage;
    LiveDesk& desk = stage.desk();
    replay::Report before;
    std::vector<std::string> stories;
};

class ScenesOfTheTour : public ScenesOn {
protected:
    ScenesOfTheTour() : ScenesOn(otherDisplays()) {}
};

class ScenesOnTheUsualDisplays : public ScenesOn {
protected:
    ScenesOnTheUsualDisplays() : ScenesOn(usualDisplays()) {}
};

TEST_F(ScenesOnTheUsualDisplays, LetTheDockLeave) {
    playUntil("the-dock-leaves");
    EXPECT_THAT(stories.back(), HasSubstr("the pointer pulls the Dock over."));
    EXPECT_EQ(desk.news().text, "The Dock moved to Display 2");
    EXPECT_EQ(figures(), "150 events, 0 held, 1 Dock moves, 0 against the rule");
}

TEST_F(ScenesOnTheUsualDisplays, GuardAsSoonAsTheyMay) {
    playUntil("permission-granted");
    EXPECT_THAT(stories.back(), HasSubstr("within a second the guard runs by itself."));
    EXPECT_EQ(desk.news().text, "Guard on: only Built-in Display may have the Dock");
}

TEST_F(ScenesOnTheUsualDisplays, HoldThePointer) {
    playUntil("held");
    EXPECT_EQ(desk.news().text, "Held at 977 on Display 2");
    EXPECT_EQ(figures(), "150 events, 68 held, 0 Dock moves, 0 against the rule");
}

TEST_F(ScenesOnTheUsualDisplays, LetTheDockGoWhereItIsChosenTo) {
    playUntil("another-choice");
    EXPECT_EQ(desk.news().text, "The Dock moved to Display 2");
}

TEST_F(ScenesOnTheUsualDisplays, UnplugThePinnedOne) {
    playUntil("pinned-display-unplugged");
    EXPECT_EQ(desk.news().text, "Display 2 was unplugged; the pin and the Dock moved to Built-in Display");
}

TEST_F(ScenesOnTheUsualDisplays, KeepToTheRuleToTheEnd) {
    playUntil("launched-again");
    EXPECT_EQ(desk.report().dockMoves, 3U);
    EXPECT_EQ(desk.report().violations, 0U);
}

TEST_F(ScenesOfTheTour, ArePlayedOnOtherDisplaysToo) {
    playUntil(scenesOfTheTour().back().name);
    EXPECT_THAT(stories, Contains(HasSubstr("brings the Dock home to Display 3.")));
    EXPECT_THAT(stories, Contains(HasSubstr("the bottom edge of Built-in Display")));
    EXPECT_EQ(desk.report().dockMoves, 3U);
    EXPECT_EQ(desk.report().violations, 0U);
    EXPECT_GT(desk.report().changed, 100U);
}

TEST_F(ScenesOfTheTour, AskForThePermission) {
    playUntil("permission-asked-for");
    EXPECT_TRUE(desk.session().accessibility().isDialogShown());
    EXPECT_FALSE(desk.host().guardIsRunning());
}

TEST_F(ScenesOfTheTour, GrantThePermission) {
    playUntil("permission-granted");
    EXPECT_EQ(isSwitchOn(picture(), "Kestrune"), true);
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre("Accessibility", "Welcome to Kestrune"));
}

TEST_F(ScenesOfTheTour, FinishTheWizard) {
    playUntil("the-dock-comes-home");
    EXPECT_THAT(windowTitlesOn(desk), IsEmpty());
}

TEST_F(ScenesOfTheTour, OpenSettings) {
    playUntil("settings");
    ASSERT_THAT(windowTitlesOn(desk), ElementsAre("Kestrune Settings"));
    EXPECT_TRUE(picture().windows[0].isKey);
    EXPECT_THAT(picture().mainMenuTitles, Contains("Kestrune"));
    EXPECT_EQ(policy(), ActivationPolicy::regular);
    EXPECT_EQ(desk.session().loginItem().status(), AppServiceStatus::notRegistered);
    EXPECT_EQ(picture().displays.size(), 2U);
}

TEST_F(ScenesOfTheTour, LaunchAtLogin) {
    playUntil("launch-at-login");
    EXPECT_EQ(desk.session().loginItem().status(), AppServiceStatus::enabled);
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre("Login Items", "Kestrune Settings"));
    EXPECT_EQ(isSwitchOn(picture(), "Kestrune"), true);
}

TEST_F(ScenesOfTheTour, FindNothingNew) {
    playUntil("nothing-new");
    EXPECT_TRUE(desk.session().updates().isShowingAlert());
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre("", "Kestrune Settings"));
}

TEST_F(ScenesOfTheTour, FindANewVersion) {
    playUntil("new-version");
    EXPECT_TRUE(desk.session().updates().isShowingUpdate());
    const auto shown = desk.session().windows().shown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0]->title, "Software Update");
    EXPECT_EQ(shown[0]->level, WindowLevel::floating);
    EXPECT_EQ(shown[1]->title, "Kestrune Settings");
    EXPECT_EQ(shown[1]->level, WindowLevel::normal);
    EXPECT_EQ(policy(), ActivationPolicy::regular);
}

TEST_F(ScenesOfTheTour, ReportABug) {
    playUntil("bug-report");
    EXPECT_FALSE(desk.session().updates().isShowingUpdate());
    EXPECT_THAT(windowTitlesOn(desk), ElementsAre("New Message", "Kestrune Settings"));
    EXPECT_THAT(textsIn(picture().windows[0]),
                ElementsAre("To:", HasSubstr("@"), "Subject:", "Kestrune bug report",
                            AllOf(HasSubstr("Describe what went wrong:\n"), HasSubstr("\nApp version: "))));
}

TEST_F(ScenesOfTheTour, LeaveOneDisplay) {
    playUntil("one-display-left");
    EXPECT_THAT(windowTitlesOn(desk), IsEmpty());
    EXPECT_THAT(picture().mainMenuTitles, IsEmpty());
    EXPECT_EQ(policy(), ActivationPolicy::accessory);
    EXPECT_EQ(picture().displays.size(), 1U);
    EXPECT_EQ(desk.session().loginItem().status(), AppServiceStatus::enabled);
}

TEST_F(ScenesOfTheTour, Quit) {
    playUntil("quit");
    EXPECT_FALSE(desk.host().isRunning());
    EXPECT_THAT(picture().statusItems, IsEmpty());
    EXPECT_EQ(desk.session().taps().enabledCount(), 0U);
}

TEST_F(ScenesOfTheTour, LaunchAgain) {
    playUntil("launched-again");
    EXPECT_TRUE(desk.host().isRunning());
    EXPECT_TRUE(desk.host().guardIsRunning());
    EXPECT_THAT(windowTitlesOn(desk), IsEmpty());
    EXPECT_THAT(rowsOfMenu(), Contains("Disable"));
    EXPECT_THAT(rowsOfMenu(), Contains("Settings…"));
    EXPECT_THAT(rowsOfMenu(), Not(Contains("Complete setup…")));
}

// What a stage misses first of all.
std::string missed(const std::vector<Step>& steps) {
    Stage stage(otherDisplays());
    const auto outcome = stage.perform({"scene", Frame::everything, "", steps});
    const auto* const missing = std::get_if<std::string>(&outcome);
    return missing != nullptr ? *missing : "nothing";
}

Step clickOn(const Thing& thing) {
    return [thing](Stage& stage) { stage.click(thing); };
}

TEST(HandOfTheTour, LeavesAloneWhatIsNotThere) {
    EXPECT_EQ(missed({}), "nothing");
    EXPECT_EQ(missed({clickOn(menuRow("Disable")), clickOn(control("OK"))}), "the menu row “Disable”")
        << "only the first is told";
    EXPECT_EQ(missed({[](Stage& stage) { stage.push(Role::first); }}), "nothing");
    EXPECT_EQ(missed({[](Stage& stage) {
                  stage.glide(Role::other, 0.5, 0.5);
                  stage.desk().unplugUnderPointer();
                  stage.glide(Role::other, 0.5, 0.5);
                  stage.click(statusItem(Role::other));
              }}),
              "a status item");
}

TEST(HandOfTheTour, PushesAgainstNoEdgeWithADisplayBelowIt) {
    LiveDeskSetup setup = otherDisplays();
    setup.pinned = 1;
    Stage stage(setup);
    stage.push(Role::other);
    EXPECT_FALSE(stage.missing());
    stage.push(Role::first);
    EXPECT_EQ(stage.missing(), "a free bottom edge to push against");
}

TEST(HandOfTheTour, NamesWhatItDidNotFind) {
    EXPECT_EQ(missed({clickOn(menuRow("{first}"))}), "the menu row “Display 3”");
    EXPECT_EQ(missed({clickOn(control("OK"))}), "the button or switch “OK”");
    EXPECT_EQ(missed({clickOn(closeButton("Mail"))}), "the window “Mail”");
    EXPECT_EQ(missed({clickOn(titleBar("Mail"))}), "the window “Mail”");
    const Thing nowhere = {"a part of the screen", [](Stage&) { return DeskTarget::ofWindow(7); }};
    EXPECT_EQ(missed({[&nowhere](Stage& stage) { stage.press(nowhere); }}), "a part of the screen");
}

TEST(SceneOfTheTour, ShowsTheHeldPointerThroughAGlass) {
    Stage stage(otherDisplays());
    std::vector<std::string> throughAGlass;
    for (const Scene& scene : scenesOfTheTour()) {
        const auto outcome = stage.perform(scene);
        const auto* const shown = std::get_if<DeskPicture>(&outcome);
        ASSERT_TRUE(shown) << scene.name;
        if (shown->loupe) {
            throughAGlass.push_back(scene.name);
            EXPECT_EQ(*shown->loupe, shown->pointer);
            EXPECT_FALSE(shown->shown);
            EXPECT_TRUE(shown->heldMark);
        }
    }
    EXPECT_THAT(throughAGlass, Contains("held"));
}

TEST(HandOfTheTour, DragsAWindowByItsTitleBar) {
    Stage stage(otherDisplays());
    stage.desk().advance(std::chrono::seconds(1));
    const auto left = [&stage] { return stage.window()->frame.minX(); };
    const double before = left();
    stage.press(titleBar("Welcome to Kestrune"));
    stage.glide(Role::main, 0.3, 0.3, EventType::leftMouseDragged);
    EXPECT_LT(left(), before);
    stage.letGo();
    const double dropped = left();
    stage.glide(Role::main, 0.6, 0.3, EventType::leftMouseDragged);
    EXPECT_EQ(left(), dropped);
}

TEST(SceneOfTheTour, BeginsWithoutTheNewsOfTheLastOne) {
    Stage stage(usualDisplays());
    const auto newsOf = [&stage](const std::vector<Step>& steps) {
        return std::get<DeskPicture>(stage.perform({"scene", Frame::everything, "", steps})).whatHappened;
    };
    EXPECT_EQ(newsOf({[](Stage& scene) { scene.desk().openLoginItems(); }}),
              "System Settings shows the login items");
    EXPECT_EQ(newsOf({}), "");
}

// The first one that expects it, and what it expected.
TEST(SceneOfTheTour, TellsWhatItDidNotFind) {
    LiveDeskSetup setup = otherDisplays();
    setup.bundle.localizedStrings["Check for Updates…"] = "Look for Updates…";
    Stage stage(setup);
    std::vector<std::string> missing;
    for (const Scene& scene : scenesOfTheTour()) {
        const auto outcome = stage.perform(scene);
        if (const auto* const expected = std::get_if<std::string>(&outcome); expected && missing.empty()) {
            missing = {scene.name, *expected};
        }
    }
    EXPECT_THAT(missing, ElementsAre("nothing-new", "the button or switch “Check for Updates…”"));
}

TEST(SceneOfTheTour, TellsThatThereIsNoWindowToShow) {
    Stage stage(std::get<LiveDeskSetup>(setupOf({})));
    const auto outcome = stage.perform({"nothing", Frame::window, "Nothing", {}});
    EXPECT_EQ(std::get<std::string>(outcome), "a window");
}

} // namespace
} // namespace kestrune::desk
