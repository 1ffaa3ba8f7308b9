#include "desk/live/gallery/WizardTour.h"

#include "desk/live/gallery/WizardPictures.h"
#include "tests/base/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class WizardTour : public testing::Test {
protected:
    static void SetUpTestSuite() { shots() = takeWizardTour(std::get<LiveDeskSetup>(setupOf({}))); }
    static void TearDownTestSuite() { shots().clear(); }

    static std::vector<WizardShot>& shots() {
        static std::vector<WizardShot> taken;
        return taken;
    }

    static std::vector<std::string> buttonsOf(const WizardShot& shot) {
        std::vector<std::string> titles;
        for (const ui::Element& element : shot.window.scene.elements) {
            if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
                titles.push_back(button->title);
            }
        }
        return titles;
    }

    static std::vector<WizardShot> shotsOf(const std::string& state) {
        std::vector<WizardShot> result;
        std::copy_if(shots().begin(), shots().end(), std::back_inserter(result),
                     [&](const WizardShot& shot) { return shot.state == state; });
        return result;
    }
};

TEST_F(WizardTour, MeetsEveryStateInEveryLook) {
    for (const char* const state : {"intro", "permission", "waiting", "granted"}) {
        std::vector<WizardLook> looks;
        for (const WizardShot& shot : shotsOf(state)) {
            looks.push_back(shot.look);
        }
        EXPECT_THAT(looks, ElementsAre(WizardLook::inFront, WizardLook::pressed, WizardLook::inBackground,
                                       WizardLook::focused))
            << state;
    }
    EXPECT_EQ(shots().size(), 16U);
}

TEST_F(WizardTour, OffersTheButtonsOfEachState) {
    const auto buttonsIn = [](const std::string& state) { return buttonsOf(shotsOf(state).at(0)); };
    EXPECT_THAT(buttonsIn("intro"), ElementsAre("Get started"));
    EXPECT_THAT(buttonsIn("permission"), ElementsAre("Request permission"));
    EXPECT_THAT(buttonsIn("waiting"), ElementsAre("Open System Settings", "Request permission"));
    EXPECT_THAT(buttonsIn("granted"), ElementsAre("Finish"));
}

TEST_F(WizardTour, ShowsTheLookThatItTells) {
    for (const WizardShot& shot : shots()) {
        EXPECT_EQ(shot.window.isKey, shot.look != WizardLook::inBackground) << shot.state;
        EXPECT_EQ(shot.window.pressedElement.has_value(), shot.look == WizardLook::pressed) << shot.state;
        EXPECT_EQ(shot.window.focusedElement.has_value(), shot.look == WizardLook::focused) << shot.state;
        EXPECT_EQ(shot.window.frame.width(), 460) << shot.state;
    }
}

TEST(WizardPictures, AreWrittenForEveryStateAndNextToEachOther) {
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.path() / "made" / "on the way";
    const auto error = writeWizardPictures(folder.string(), {});
    ASSERT_FALSE(error) << error->message;
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename());
        EXPECT_GT(entry.file_size(), 30'000U) << names.back();
    }
    // Four states light and dark, in four looks and with long texts, and the sheet.
    EXPECT_EQ(names.size(), 4U * 2U * 5U + 1U);
    for (const char* const name : {"all.png", "intro-light.png", "waiting-focused-dark.png",
                                   "granted-background-light.png", "permission-long-dark.png"}) {
        EXPECT_THAT(names, testing::Contains(name));
    }
}

TEST(WizardPictures, SayWhyTheyCannotBeWritten) {
    const TemporaryFolder temporary;
    const std::string file = (temporary.path() / "file").string();
    std::ofstream(file) << "in the way";
    const auto error = writeWizardPictures(file + "/folder", {});
    ASSERT_TRUE(error);
    EXPECT_THAT(error->message, HasSubstr("expected a folder that can be written"));
}

} // namespace
} // namespace kestrune::desk
