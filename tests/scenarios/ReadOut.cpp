// What VoiceOver reads out of the wizard and Settings and what it passes over: the same on every
// implementation of the seam, and listed for whoever looks at the test's output.
#include "tests/contract/World.h"
#include "tests/scenarios/LaunchedApplication.h"
#include "tests/scenarios/ShippedBundle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::scenarios {
namespace {

using contract::AccessibleElement;
using contract::Trust;
using testing::ElementsAre;
using testing::StartsWith;

std::string lineFor(const AccessibleElement& element) {
    constexpr std::array<std::string_view, 5> Roles = {"text", "image", "shape", "button", "switch"};
    std::string line(Roles.at(static_cast<std::size_t>(element.role)));
    line += element.text.empty() ? "" : " \"" + element.text + "\"";
    return line + (element.isReadOut ? "" : ", passed over");
}

class ReadOut : public testing::Test {
protected:
    void launch(Trust trust) {
        world_.setTrust(trust);
        application_.emplace(world_);
    }

    // Of the frontmost window.
    std::vector<std::string> elements() {
        const contract::ShownWindow window = world_.shownWindows().at(0);
        std::vector<std::string> lines;
        std::printf("%s\n", window.title.c_str());
        for (const AccessibleElement& element : window.elements) {
            lines.push_back(lineFor(element));
            std::printf("    %s\n", lines.back().c_str());
        }
        return lines;
    }

    contract::World world_{shippedBundle()};
    std::optional<LaunchedApplication> application_;
};

// The page of the permission, with the symbol of its state and what is offered in it.
std::vector<std::string> wizardWith(const std::string& state, const std::vector<std::string>& buttons) {
    std::vector<std::string> page = {
        "text \"STEP 2 OF 2\"",
        "text \"Grant Accessibility permission\"",
        "text \"Kestrune needs to observe window events from other apps so it can keep the Dock pinned where "
        "you want it.\"",
        "text \"macOS will show a permission dialog. Click Open System Settings in that dialog, then enable "
        "Kestrune in the Accessibility list. We never read your screen content or keystrokes.\"",
        "image, passed over",
        "text \"" + state + "\""};
    for (const std::string& title : buttons) {
        page.push_back("button \"" + title + "\"");
    }
    return page;
}

TEST_F(ReadOut, OfTheWizardIsEveryTextAndButtonButNoSymbol) {
    launch(Trust::notListed);
    EXPECT_EQ(elements(), wizardWith("Waiting for permission…", {"Request permission"}));
}

TEST_F(ReadOut, OfTheWizardIsWhatIsOfferedNext) {
    launch(Trust::notListed);
    world_.clickButton("Request permission");
    world_.runMainQueue();
    EXPECT_EQ(elements(),
              wizardWith("Waiting for permission…", {"Open System Settings", "Request permission"}));
    world_.followTrustDialog();
    world_.setTrust(Trust::granted);
    world_.letTimePass(SecondsForATick);
    EXPECT_EQ(elements(), wizardWith("Permission granted", {"Finish"}));
}

TEST_F(ReadOut, OfSettingsIsTheLabelOfASwitchOnceAndNoBox) {
    launch(Trust::granted);
    world_.statusMenuRows(); // the next one is the one after setup
    const std::vector<contract::ShownRow> rows = world_.statusMenuRows();
    const auto settings = std::find_if(
        rows.begin(), rows.end(), [](const contract::ShownRow& row) { return row.title == "Settings…"; });
    ASSERT_NE(settings, rows.end());
    world_.chooseInStatusMenu(static_cast<std::size_t>(settings - rows.begin()));
    world_.runMainQueue();
    EXPECT_THAT(elements(),
                ElementsAre("shape, passed over", "shape, passed over",
                            "text \"Launch at login\", passed over", "switch \"Launch at login\"",
                            "shape, passed over", "shape, passed over", "button \"Check for Updates…\"",
                            "shape, passed over", "button \"Report a Bug…\"", StartsWith("text \"Kestrune "),
                            StartsWith("text \"© ")));
}

} // namespace
} // namespace kestrune::scenarios
