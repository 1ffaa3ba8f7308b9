#include "Kestrune/SettingsViewModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SettingsModel : public ::testing::Test {
protected:
    void note(const std::string& what, bool isOn) { notes.push_back(what + (isOn ? " on" : " off")); }

    std::vector<std::string> notes;
};

TEST_F(SettingsModel, TellsNobodyOfItsInitialState) {
    for (const bool initial : {false, true}) {
        SettingsViewModel model(initial, [this](bool isOn) { note("changed to", isOn); });
        EXPECT_EQ(model.launchAtLogin, initial);
    }
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(SettingsModel, PublishesAnAssignmentBeforeItTellsOfIt) {
    SettingsViewModel model(false, nullptr);
    model.onLaunchAtLoginChanged = [&](bool isOn) {
        note("changed to", isOn);
        note("holds", model.launchAtLogin);
    };
    const ui::Observation observation = model.observe([&] { note("will change from", model.launchAtLogin); });
    model.launchAtLogin = true;
    EXPECT_THAT(notes, ElementsAre("will change from off", "changed to on", "holds on"));
}

TEST_F(SettingsModel, TellsOfTheValueThatItHasAlready) {
    SettingsViewModel model(true, [this](bool isOn) { note("changed to", isOn); });
    model.launchAtLogin = true;
    EXPECT_THAT(notes, ElementsAre("changed to on"));
}

TEST_F(SettingsModel, TellsNobodyWhoIsNotThere) {
    SettingsViewModel model(false, nullptr);
    model.launchAtLogin = true;
    EXPECT_TRUE(model.launchAtLogin);
}

TEST_F(SettingsModel, DoesNothingUntilItsActionsAreThere) {
    SettingsViewModel model(false, nullptr);
    model.checkForUpdates();
    model.reportBug();
    int calls = 0;
    model.checkForUpdates = [&] { ++calls; };
    model.reportBug = [&] { calls += 10; };
    model.checkForUpdates();
    model.reportBug();
    EXPECT_EQ(calls, 11);
}

} // namespace
} // namespace kestrune
