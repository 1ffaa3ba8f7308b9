// What the scenes about the wizard and about Settings show.

#include "desk/live/gallery/Gallery.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::Matches;

using Windows = std::map<std::string, WindowPicture>; // by the scene's name

Windows windowsOf(const Chapter& chapter) {
    Windows windows;
    for (const Story& story : chapter.stories) {
        auto setup = std::get<LiveDeskSetup>(setupOf({}));
        story.prepare(setup);
        Stage stage(setup);
        for (const Scene& scene : story.scenes) {
            const auto performed = stage.perform(scene);
            if (const auto* const missing = std::get_if<std::string>(&performed)) {
                ADD_FAILURE() << scene.name << " expected " << *missing;
                return windows;
            }
            windows[scene.name] = std::get<DeskPicture>(performed).windows.front();
        }
    }
    return windows;
}

const Windows& wizard() {
    static const Windows windows = windowsOf(wizardChapter());
    return windows;
}

const Windows& settings() {
    static const Windows windows = windowsOf(settingsChapter());
    return windows;
}

std::vector<std::string> buttonsOf(const WindowPicture& window) {
    std::vector<std::string> titles;
    for (const ui::Element& element : window.scene.elements) {
        if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
            titles.push_back(button->title);
        }
    }
    return titles;
}

TEST(WizardScenes, OfferTheButtonsOfEachState) {
    EXPECT_THAT(buttonsOf(wizard().at("intro")), ElementsAre("Get started"));
    EXPECT_THAT(buttonsOf(wizard().at("permission")), ElementsAre("Request permission"));
    EXPECT_THAT(buttonsOf(wizard().at("waiting")), ElementsAre("Open System Settings", "Request permission"));
    EXPECT_THAT(buttonsOf(wizard().at("granted")), ElementsAre("Finish"));
    EXPECT_THAT(buttonsOf(wizard().at("granted-long")), ElementsAre("Finish Finish"));
}

TEST(WizardScenes, ShowTheLookThatTheyTell) {
    EXPECT_EQ(wizard().size(), 20U);
    for (const auto& [name, window] : wizard()) {
        EXPECT_EQ(window.isKey, !Matches(EndsWith("-background"))(name)) << name;
        EXPECT_EQ(window.pressedElement.has_value(), Matches(EndsWith("-pressed"))(name)) << name;
        EXPECT_EQ(window.focusedElement.has_value(), Matches(EndsWith("-focused"))(name)) << name;
        EXPECT_EQ(window.frame.width(), 460) << name;
    }
}

TEST(SettingsScenes, ShowTheLookThatTheyTell) {
    EXPECT_EQ(settings().size(), 10U);
    for (const auto& [name, window] : settings()) {
        EXPECT_THAT(window.title, testing::StartsWith("Kestrune Settings"));
        EXPECT_EQ(window.isKey, name != "background") << name;
        EXPECT_EQ(window.movingSwitch.has_value(), name == "switch-dragged") << name;
        EXPECT_EQ(window.pressedElement.has_value(),
                  name == "switch-pressed" || name == "switch-dragged" || name == "button-pressed")
            << name;
        EXPECT_EQ(window.focusedElement.has_value(),
                  name == "switch-focused" || name == "button-focused" || name == "background")
            << name;
    }
}

TEST(SettingsScenes, SwitchTheLaunchAtLoginOn) {
    const auto isOn = [](const WindowPicture& window) {
        for (const ui::Element& element : window.scene.elements) {
            if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
                return toggle->isOn;
            }
        }
        return false;
    };
    EXPECT_FALSE(isOn(settings().at("in-front")));
    EXPECT_FALSE(isOn(settings().at("switch-dragged")));
    EXPECT_TRUE(isOn(settings().at("on")));
}

TEST(SettingsScenes, HaveNoCopyrightWhereThereIsNone) {
    EXPECT_EQ(settings().at("without-copyright").scene.elements.size() + 1,
              settings().at("in-front").scene.elements.size());
    EXPECT_EQ(settings().at("long").title, "Kestrune Settings Kestrune")
        << "whole words, at least 1.4 times as long";
}

} // namespace
} // namespace kestrune::desk
