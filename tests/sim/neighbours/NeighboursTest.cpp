// The programs beside the application, and their windows among its own.

#include "sim/neighbours/Neighbours.h"

#include "platform/Application.h"
#include "sim/services/WindowState.h"
#include "sim/session/FixedAdvanceMeasurer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::sim {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* DialogTitle = "Accessibility Access (Events)";
constexpr const char* PaneTitle = "Accessibility";
constexpr const char* MailTitle = "New Message";

class NeighboursTest : public ::testing::Test {
protected:
    NeighboursTest() {
        Application::sharedApplication().setActivationPolicy(ActivationPolicy::regular);
        own.setTitle("own");
        own.makeKeyAndOrderFront();
        session.user().switchToApplication();
    }

    // Of all windows, the frontmost first.
    std::vector<std::string> titles() {
        neighbours.catchUp();
        std::vector<std::string> result;
        for (const auto& window : session.windows().stack()) {
            result.push_back(window->title);
        }
        return result;
    }

    // Null when it is not open.
    Windows::WindowState window(const std::string& title) {
        neighbours.catchUp();
        for (const auto& window : session.windows().stack()) {
            if (window->title == title) {
                return window;
            }
        }
        return nullptr;
    }

    std::string titleWithTheKeys() {
        neighbours.catchUp();
        const auto window = session.windows().receiverOfKeys();
        return window ? window->title : "none";
    }

    void openMail() {
        openLink("mailto:a@b?subject=s");
        neighbours.catchUp();
    }

    void openLink(const std::string& address) { current<Links>().open(address); }

    Session session;
    Neighbours neighbours{session};
    Window own{Rect(0, 0, 300, 100), WindowStyleMask::titled | WindowStyleMask::closable,
               BackingStoreType::buffered, false};
};

TEST_F(NeighboursTest, OpenTheirWindowsInFrontOfTheApplications) {
    EXPECT_THAT(titles(), ElementsAre("own"));
    session.user().openPane();
    EXPECT_THAT(titles(), ElementsAre(PaneTitle, "own"));
    session.accessibility().askUser();
    EXPECT_THAT(titles(), ElementsAre(DialogTitle, PaneTitle, "own"));
    openMail();
    EXPECT_THAT(titles(), ElementsAre(DialogTitle, MailTitle, PaneTitle, "own"));
}

TEST_F(NeighboursTest, AreNotSeenByTheApplication) {
    session.accessibility().askUser();
    session.user().openPane();
    openMail();
    EXPECT_THAT(titles(), SizeIs(4));
    EXPECT_THAT(session.windows().shown(), ElementsAre(own.state()));
    EXPECT_THAT(session.windows().all(), ElementsAre(own.state()));
    EXPECT_THAT(session.windows().miniaturized(), IsEmpty());
    EXPECT_EQ(session.windows().keyWindow(), nullptr);
    EXPECT_THAT(Application::sharedApplication().windows(), SizeIs(1));
    EXPECT_EQ(Application::sharedApplication().windows()[0].title(), "own");
}

TEST_F(NeighboursTest, TellNobodyInTheApplicationThatTheyComeAndGo) {
    session.user().switchAway();
    session.journal().take();
    session.accessibility().askUser();
    neighbours.catchUp();
    session.user().denyInDialog();
    session.user().switchAway();
    neighbours.catchUp();
    EXPECT_THAT(session.journal().take(), IsEmpty());
}

TEST_F(NeighboursTest, GiveTheKeysToWhoIsInFront) {
    EXPECT_EQ(titleWithTheKeys(), "own");
    session.accessibility().askUser();
    EXPECT_EQ(titleWithTheKeys(), DialogTitle);
    session.user().clickWindow(own.state());
    EXPECT_EQ(titleWithTheKeys(), "own");
    session.user().clickWindow(window(DialogTitle));
    EXPECT_EQ(titleWithTheKeys(), DialogTitle);
    EXPECT_FALSE(session.application().isActive);
    session.user().switchToApplication();
    session.windows().orderOut(own.state());
    EXPECT_EQ(titleWithTheKeys(), "none");
    session.user().denyInDialog();
    session.user().switchAway();
    EXPECT_EQ(titleWithTheKeys(), "none");
}

TEST_F(NeighboursTest, ComeForwardTogetherBesideTheApplication) {
    session.user().openPane();
    openMail();
    session.user().clickWindow(own.state());
    EXPECT_THAT(titles(), ElementsAre("own", MailTitle, PaneTitle));
    session.user().clickWindow(window(PaneTitle));
    EXPECT_THAT(titles(), ElementsAre(PaneTitle, MailTitle, "own"));
    session.user().switchToApplication();
    EXPECT_THAT(titles(), ElementsAre("own", PaneTitle, MailTitle));
    session.user().switchAway();
    EXPECT_THAT(titles(), ElementsAre(PaneTitle, MailTitle, "own"));
}

TEST_F(NeighboursTest, FloatBelowWhatTheApplicationLetsFloat) {
    session.accessibility().askUser();
    neighbours.catchUp();
    own.setLevel(WindowLevel::floating);
    session.user().clickWindow(own.state());
    EXPECT_THAT(titles(), ElementsAre("own", DialogTitle));
    session.user().clickWindow(window(DialogTitle));
    EXPECT_THAT(titles(), ElementsAre("own", DialogTitle));
    EXPECT_EQ(titleWithTheKeys(), DialogTitle);
    own.setLevel(WindowLevel::normal);
    session.user().clickWindow(own.state());
    EXPECT_THAT(titles(), ElementsAre(DialogTitle, "own")) << "it floats in front of other windows";
}

TEST_F(NeighboursTest, DenyWithReturnAndEscapeInTheDialog) {
    for (const auto key : {ui::KeyboardShortcut::defaultAction, ui::KeyboardShortcut::cancelAction}) {
        session.accessibility().askUser();
        neighbours.catchUp();
        EXPECT_TRUE(session.user().press(key));
        EXPECT_FALSE(session.accessibility().isDialogShown());
        EXPECT_FALSE(session.accessibility().isPaneShown());
        EXPECT_THAT(titles(), ElementsAre("own"));
        EXPECT_TRUE(session.application().isActive) << "it has something to show";
    }
}

TEST_F(NeighboursTest, KeepAWindowThatCanBeClosedWhenEscapeIsPressed) {
    session.user().openPane();
    neighbours.catchUp();
    EXPECT_FALSE(session.user().press(ui::KeyboardShortcut::cancelAction));
    EXPECT_FALSE(session.user().press(ui::KeyboardShortcut::defaultAction));
    EXPECT_TRUE(session.accessibility().isPaneShown());
    session.windows().orderOut(own.state());
    session.user().switchToApplication();
    EXPECT_FALSE(session.user().press(ui::KeyboardShortcut::cancelAction)) << "nobody has the keys";
}

TEST_F(NeighboursTest, CloseByTheUserOnlyWhatHasAButtonForIt) {
    session.accessibility().askUser();
    session.user().closeWindow(window(DialogTitle));
    EXPECT_THAT(titles(), Contains(DialogTitle));
    session.user().denyInDialog();
    session.user().openPane();
    session.user().closeWindow(window(PaneTitle));
    EXPECT_FALSE(session.accessibility().isPaneShown());
    openMail();
    session.user().closeWindow(window(MailTitle));
    EXPECT_THAT(titles(), ElementsAre("own"));
    EXPECT_TRUE(session.application().isActive);
}

TEST_F(NeighboursTest, LeaveNobodyInFrontWithoutAWindowOfTheApplications) {
    Application::sharedApplication().setActivationPolicy(ActivationPolicy::accessory);
    openMail();
    session.user().closeWindow(window(MailTitle));
    EXPECT_FALSE(session.application().isActive);
    Application::sharedApplication().setActivationPolicy(ActivationPolicy::regular);
    session.windows().orderOut(own.state());
    openMail();
    session.user().closeWindow(window(MailTitle));
    EXPECT_FALSE(session.application().isActive);
}

TEST_F(NeighboursTest, ShowTheLatestMailInFront) {
    openMail();
    neighbours.openLoginItems();
    EXPECT_THAT(titles(), ElementsAre("Login Items", MailTitle, "own"));
    openLink("https://example.org/");
    EXPECT_EQ(neighbours.mail().count(), 1U);
    openLink("mailto:c@d?subject=t");
    EXPECT_THAT(titles(), ElementsAre(MailTitle, "Login Items", "own"));
    EXPECT_EQ(neighbours.mail().count(), 2U);
    EXPECT_EQ(neighbours.mail().mail()->recipient, "c@d");
}

TEST_F(NeighboursTest, OutliveTheApplicationsProcess) {
    openMail();
    session.user().endApplication();
    EXPECT_THAT(titles(), ElementsAre(MailTitle));
}

TEST_F(NeighboursTest, OpenAnewWhereTheDisplaysAreThen) {
    session.user().openPane();
    const Rect before = window(PaneTitle)->frame;
    neighbours.displaysChanged();
    EXPECT_THAT(session.windows().stack(), ElementsAre(own.state()));
    session.changeDisplays({});
    EXPECT_THAT(titles(), ElementsAre("own"));
    session.changeDisplays({makeDisplay(1, "One", {0, 0, 2000, 1200})});
    EXPECT_NE(window(PaneTitle)->frame, before);
}

TEST_F(NeighboursTest, FitTheirWindowsToWhatTheyShow) {
    session.user().setPermission(Permission::notListed);
    session.user().openPane();
    const double width = window(PaneTitle)->frame.width();
    EXPECT_EQ(window(PaneTitle)->contentRect().size, Windows::sceneOf(*window(PaneTitle)).size);
    EXPECT_EQ(window(PaneTitle)->titleBarHeight(), 52);
    session.user().setPermission(Permission::granted);
    EXPECT_EQ(window(PaneTitle)->contentRect().size, Windows::sceneOf(*window(PaneTitle)).size);
    EXPECT_EQ(window(PaneTitle)->frame.width(), width);
}

TEST_F(NeighboursTest, SayInTheMenuBarWhoIsInFront) {
    EXPECT_EQ(neighbours.menuTitles()[0], "Finder");
    openMail();
    EXPECT_EQ(neighbours.menuTitles()[0], "Mail");
    session.user().openPane();
    neighbours.catchUp();
    EXPECT_EQ(neighbours.menuTitles()[0], "System Settings");
    session.accessibility().askUser();
    neighbours.catchUp();
    EXPECT_EQ(neighbours.menuTitles()[0], "Finder") << "who asks for the permission has no menu bar";
    session.user().switchToApplication();
    EXPECT_EQ(neighbours.menuTitles()[0], "Finder");
}

class CountingMeasurer final : public FixedAdvanceMeasurer {
public:
    Size measureText(const ui::StyledText& text, std::optional<double> width) const override {
        ++count;
        return FixedAdvanceMeasurer::measureText(text, width);
    }

    mutable int count = 0;
};

TEST(NeighboursWindows, AreLaidOutAgainWhenThereIsSomethingElseToTell) {
    const CountingMeasurer measurer;
    SessionOptions options;
    options.permission = Permission::switchedOff;
    options.measurer = &measurer;
    Session session(std::move(options));
    Neighbours neighbours(session);
    session.user().openPane();
    neighbours.catchUp();
    const int first = measurer.count;
    EXPECT_GT(first, 0);
    neighbours.catchUp();
    EXPECT_EQ(measurer.count, first);
    session.user().setPermission(Permission::granted);
    neighbours.catchUp();
    EXPECT_GT(measurer.count, first);
}

} // namespace
} // namespace kestrune::sim
