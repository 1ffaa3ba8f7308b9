// The first run of a new user, from the launch to a Dock that is held: the same story on every implementation
// of the seam, told in what the user sees.
#include "Kestrune/Preferences.h"
#include "platform/UserDefaults.h"
#include "tests/contract/World.h"
#include "tests/scenarios/LaunchedApplication.h"
#include "tests/scenarios/ShippedBundle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::scenarios {
namespace {

using contract::ShownWindow;
using contract::Trust;
using testing::ElementsAre;

contract::ConnectedDisplay display(DisplayID number, const std::string& name, const Rect& bounds) {
    return {number, name, bounds, "37D8832A-2D66-02CA-B9F7-8F300000000" + std::to_string(number),
            static_cast<std::int64_t>(number)};
}

std::string listOf(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ", ") + text;
    }
    return list;
}

class FirstRun : public testing::Test {
protected:
    FirstRun() : world_(shippedBundle()) {
        world_.connect(
            {display(1, "Built-in", {0, 0, 1512, 982}), display(2, "Studio", {1512, 0, 1920, 1080})});
        world_.setTrust(Trust::notListed);
    }

    void launch() { application_.emplace(world_); }

    void happens(const std::string& event) { steps_.push_back(event + ": " + whatIsSeen()); }

    std::string whatIsSeen() {
        std::string seen =
            world_.activationPolicy() == ActivationPolicy::regular ? "in the Dock" : "accessory";
        for (const ShownWindow& window : world_.shownWindows()) {
            seen += "; \"" + window.title + "\"" + (window.level == WindowLevel::floating ? " floats" : "") +
                    " says \"" + status(window) + "\" and offers " + listOf(window.buttons);
        }
        seen += world_.isTrustDialogShown() ? "; the system asks" : "";
        return seen + (holdsTheDock() ? "; the Dock is held" : "; the Dock is free");
    }

    // The last text of a page is what the user looks at next.
    static std::string status(const ShownWindow& window) {
        return window.texts.empty() ? "" : window.texts.back();
    }

    // Whether the pointer is kept out of the band above the bottom edge of the display that is not the main
    // one.
    bool holdsTheDock() {
        return world_.post(EventType::mouseMoved, {2000, 1078}) == std::optional(Point{2000, 1075});
    }

    std::string firstRow() { return world_.statusMenuRows().at(0).title; }

    contract::World world_;
    std::optional<LaunchedApplication> application_;
    std::vector<std::string> steps_;
};

// For whoever asked for the list.
void write(const std::vector<std::string>& steps) {
    if (const char* const path = std::getenv("KESTRUNE_STEPS")) {
        std::FILE* const file = std::fopen(path, "w");
        ASSERT_NE(file, nullptr) << path;
        for (const std::string& step : steps) {
            std::fprintf(file, "%s\n", step.c_str());
        }
        std::fclose(file);
    }
}

TEST_F(FirstRun, GoesFromTheLaunchToAHeldDock) {
    launch();
    happens("Kestrune is launched");
    EXPECT_EQ(firstRow(), "Complete setup…");

    world_.clickButton("Request permission");
    world_.runMainQueue();
    happens("\"Request permission\" is pressed");

    world_.followTrustDialog();
    world_.setTrust(Trust::granted);
    happens("the permission is granted in System Settings");

    world_.letTimePass(SecondsForATick);
    happens("a second passes");

    world_.clickTitleBar();
    world_.pressKey("\r", EventModifierFlags::none);
    world_.runMainQueue();
    happens("Return is pressed");
    EXPECT_EQ(firstRow(), "Pin Dock to:");
    EXPECT_TRUE(UserDefaults::standardUserDefaults()->boolForKey(Preferences::HasCompletedOnboardingKey));

    write(steps_);
    const std::string wizard = "\"Welcome to Kestrune\"";
    EXPECT_THAT(
        steps_,
        ElementsAre(
            "Kestrune is launched: in the Dock; " + wizard +
                " says \"Waiting for permission…\" and offers Request permission; the Dock is free",
            "\"Request permission\" is pressed: in the Dock; " + wizard +
                " says \"Waiting for permission…\" and offers Open System Settings, Request permission; the "
                "system asks; the Dock is free",
            "the permission is granted in System Settings: in the Dock; " + wizard +
                " says \"Waiting for permission…\" and offers Open System Settings, Request permission; the "
                "Dock is free",
            "a second passes: in the Dock; " + wizard +
                " says \"Permission granted\" and offers Finish; the Dock is held",
            "Return is pressed: accessory; the Dock is held"));
}

TEST_F(FirstRun, IsOverAtOnceForWhoeverHasThePermission) {
    world_.setTrust(Trust::granted);
    launch();
    EXPECT_EQ(whatIsSeen(), "accessory; the Dock is held");
    firstRow(); // of the menu that was made before the wizard was decided against
    EXPECT_EQ(firstRow(), "Pin Dock to:");
}

TEST_F(FirstRun, BeginsWithTheIntroductionForWhoeverHasThePermissionAlready) {
    world_.setTrust(Trust::granted);
    launch();
    world_.chooseInStatusMenu(0);
    world_.runMainQueue();
    EXPECT_EQ(world_.shownWindows().at(0).level, WindowLevel::floating);
    EXPECT_THAT(world_.shownWindows().at(0).buttons, ElementsAre("Get started"));
    world_.clickButton("Get started");
    world_.runMainQueue();
    EXPECT_EQ(world_.shownWindows().at(0).level, WindowLevel::normal);
    world_.clickButton("Finish");
    world_.runMainQueue();
    EXPECT_EQ(whatIsSeen(), "accessory; the Dock is held");
}

TEST_F(FirstRun, CanBePutOffAndTakenUpAgain) {
    launch();
    world_.clickCloseButton();
    EXPECT_EQ(whatIsSeen(), "accessory; the Dock is free");
    world_.chooseInStatusMenu(0);
    world_.runMainQueue();
    EXPECT_EQ(world_.shownWindows().size(), 1U);
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::regular);
    EXPECT_FALSE(UserDefaults::standardUserDefaults()->boolForKey(Preferences::HasCompletedOnboardingKey));
}

} // namespace
} // namespace kestrune::scenarios
