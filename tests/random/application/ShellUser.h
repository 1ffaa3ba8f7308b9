// Draws what happens next in a session of the whole application and lets it happen.
//
// No two draws are arguments of one call: compilers differ in which they evaluate first, and a seed must give
// the same session with each of them.
#pragma once

#include "tests/random/application/ShellSession.h"
#include "tests/random/common/Random.h"
#include "tests/random/common/RandomArrangement.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kestrune::simulate {

class ShellUser {
public:
    explicit ShellUser(std::uint64_t seed);

    ShellSession& session() { return *session_; }

    // Whether what the application should show is kept as text after each action.
    void trace(bool trace) { tracing_ = trace; }
    std::vector<std::string> takeTrace();

    // One action; returns what it was, readable.
    std::string act();

private:
    struct Choice {
        double weight;
        std::string (ShellUser::*action)();
    };

    static const std::vector<Choice>& choices();

    // Behind a modal alert.
    static const std::vector<Choice>& choicesDuringAnAlert();

    // The application's process.
    std::string launch();
    std::string terminate();
    std::string kill();
    std::string letGoOfDelegate();
    std::string reopen();
    std::string activate();

    // The menus.
    std::string openMenu();
    std::string openMainMenu();
    std::string choose();
    std::string openAndChoose();
    std::string closeMenu();
    std::string press();

    // The windows on the screen, and what the system shows.
    std::string pressButton();
    std::string flipSwitch();
    std::string pressReturn();
    std::string pressEscape();
    std::string clickWindow();
    std::string closeWindow();
    std::string answerDialog();
    std::string closePane();
    std::string refuseActivation();
    std::string refuseOpeningURLs();

    // Login items and updates.
    std::string changeLoginItem();
    std::string changeUpdates();
    std::string checkAsScheduled();
    std::string checkInSettings();
    std::string leaveAlert();
    std::string waitForUpdates();

    // The displays.
    std::string plug();
    std::string unplug();
    std::string unplugAll();
    std::string renumber();
    std::string rearrange();
    std::string rename();
    std::string readInPassing();
    std::string changeMain();
    std::string failUUIDStrings();

    // The rest of the system.
    std::string storeSwitch();
    std::string storeChoice();
    std::string storeOnboarding();
    std::string changePermission();
    std::string refuseTaps();
    std::string disableTaps();
    std::string wait();

    ShellBeginning beginning();
    BundleFacts bundle();
    sim::UpdateFramework framework();
    std::size_t windowPlace();
    std::optional<std::size_t> placeOf(WindowKind kind) const;
    sim::Permission permission();
    StoredSwitch enabled();
    StoredChoice choice(const std::vector<sim::Display>& displays);
    StoredFlag onboarding();
    std::string changeDisplays(const std::string& what, std::vector<sim::Display> displays);

    Random random_;
    bool tame_;
    RandomArrangement arrangement_;
    bool tracing_ = false;
    std::unique_ptr<ShellSession> session_;
};

} // namespace kestrune::simulate
