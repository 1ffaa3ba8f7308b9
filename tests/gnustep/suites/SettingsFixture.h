// The whole application on GNUstep and a user of its Settings window.
#pragma once

#include "tests/gnustep/suites/ApplicationFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kestrune::gnustep {

inline constexpr double SecondsForTheUpdater = 0.6; // twice what the application waits

class SettingsFixture : public ApplicationFixture {
protected:
    void openSettings() {
        menu(); // the next one is the one after setup
        choose("Settings…");
        world_.runMainQueue();
    }

    void launchAndOpen() {
        launch();
        openSettings();
    }

    // The frontmost window.
    contract::ShownWindow window() { return world_.shownWindows().at(0); }

    std::vector<std::string> titles() {
        std::vector<std::string> titles;
        for (const contract::ShownWindow& window : world_.shownWindows()) {
            titles.push_back(window.title);
        }
        return titles;
    }

    WindowLevel levelOf(const std::string& title) {
        const auto windows = world_.shownWindows();
        const auto found =
            std::find_if(windows.begin(), windows.end(),
                         [&](const contract::ShownWindow& window) { return window.title == title; });
        EXPECT_NE(found, windows.end()) << title;
        return found != windows.end() ? found->level : WindowLevel::normal;
    }

    std::vector<contract::LoggedMessage> logged(const std::string& category) const {
        std::vector<contract::LoggedMessage> messages;
        for (const contract::LoggedMessage& message : world_.loggedMessages()) {
            if (message.category == category) {
                messages.push_back(message);
            }
        }
        return messages;
    }

    // The one argument stands at the format's end.
    static contract::LoggedMessage message(contract::LoggedMessage::Level level, const std::string& category,
                                           const std::string& beginning, const std::string& argument) {
        return {level, "org.kestrune.Kestrune", category, beginning + argument, beginning + "%{public}s"};
    }
};

} // namespace kestrune::gnustep
