#include "desk/live/gallery/SettingsTour.h"

#include "desk/live/gallery/SettingsPictures.h"
#include "tests/base/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(SettingsTour, MeetsTheWindowInEveryState) {
    const std::vector<SettingsShot> shots = takeSettingsTour(std::get<LiveDeskSetup>(setupOf({})));
    std::vector<std::string> names;
    for (const SettingsShot& shot : shots) {
        names.push_back(shot.name);
        EXPECT_EQ(shot.window.title, "Kestrune Settings");
        EXPECT_EQ(shot.window.isKey, shot.name != "background");
        EXPECT_EQ(shot.window.movingSwitch.has_value(), shot.name == "switch-dragged") << shot.name;
        EXPECT_EQ(shot.window.pressedElement.has_value(), shot.name == "switch-pressed" ||
                                                              shot.name == "switch-dragged" ||
                                                              shot.name == "button-pressed")
            << shot.name;
        EXPECT_EQ(shot.window.focusedElement.has_value(),
                  shot.name == "switch-focused" || shot.name == "button-focused" || shot.name == "background")
            << shot.name;
    }
    ASSERT_THAT(names, ElementsAre("in-front", "switch-pressed", "switch-dragged", "on", "button-pressed",
                                   "switch-focused", "button-focused", "background"));
    const auto isOn = [&](std::size_t shot) {
        for (const ui::Element& element : shots[shot].window.scene.elements) {
            if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
                return toggle->isOn;
            }
        }
        return false;
    };
    EXPECT_FALSE(isOn(0));
    EXPECT_FALSE(isOn(2));
    EXPECT_TRUE(isOn(3));
}

TEST(SettingsPictures, AreWrittenForEveryStateAndNextToEachOther) {
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.path() / "made" / "on the way";
    const auto error = writeSettingsPictures(folder.string(), {});
    ASSERT_FALSE(error) << error->message;
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename());
        EXPECT_GT(entry.file_size(), 20'000U) << names.back();
    }
    // Ten states, light and dark, and the sheet.
    EXPECT_EQ(names.size(), 10U * 2U + 1U);
    for (const char* const name : {"all.png", "in-front-light.png", "on-dark.png", "switch-dragged-light.png",
                                   "long-dark.png", "without-copyright-light.png", "background-dark.png"}) {
        EXPECT_THAT(names, testing::Contains(name));
    }
}

TEST(SettingsPictures, SayWhyTheyCannotBeWritten) {
    const TemporaryFolder temporary;
    const std::string file = (temporary.path() / "file").string();
    std::ofstream(file) << "in the way";
    const auto error = writeSettingsPictures(file + "/folder", {});
    ASSERT_TRUE(error);
    EXPECT_THAT(error->message, HasSubstr("expected a folder that can be written"));
}

} // namespace
} // namespace kestrune::desk
