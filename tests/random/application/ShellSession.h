// A simulated session with the real application in it: carries out whatever is asked, and checks after each
// step that what is shown, stored, logged and kept is what the rules make of it.
#pragma once

#include "Kestrune/KestruneApp.h"
#include "sim/session/Session.h"
#include "tests/random/application/ShellModel.h"
#include "tests/random/common/Verdict.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::simulate {

class ShellSession : public Verdict {
public:
    explicit ShellSession(const ShellBeginning& beginning);

    // The application's process. Nothing happens unless it runs, or, to launch it, unless it does not.
    void launch();
    void terminate();
    void kill();
    void reopen();
    void setActive(bool isActive);

    // The delegate goes while the process lives; the menu bar controller may be held by somebody else.
    void letGoOfDelegate(bool controllerStays);

    // The user at the menus.
    void openMenu(const sim::MenuPlace& place);
    void choose(std::size_t row);
    void press(std::string_view key, EventModifierFlags modifiers);
    void closeMenu();

    // The user at the windows on the screen, which count from the frontmost.
    void pressButton(std::size_t place, std::size_t button);
    void flipSwitch(std::size_t place);
    void pressReturn();
    void pressEscape();
    void clickWindow(std::size_t place);
    void closeWindow(std::size_t place);

    // Login items and updates.
    void changeLoginItem(const LoginItemModel& item);
    void changeUpdates(const sim::UpdateSupply& updates);
    void checkAsScheduled();

    // The user at what the system shows.
    void openSettingsFromDialog();
    void denyInDialog();
    void closePane();
    void refuseActivation(bool refuse);
    void refuseOpeningURLs(bool refuse);

    // Everything around the application.
    void changeDisplays(const std::vector<sim::Display>& displays, bool announced);
    void scriptReads(const std::deque<std::vector<sim::Display>>& reads);
    void setMain(std::optional<std::size_t> index);
    void setUUIDStringsFail(bool fail);
    void store(const StoredSwitch& isEnabled);
    void store(const StoredChoice& choice);
    void storeOnboarding(const StoredFlag& completed);
    void setPermission(sim::Permission permission);
    void refuseTapCreation(bool refuse);
    void disableTaps(EventType reason);
    void advance(sim::Duration duration);

    // The process is killed if it still runs; nothing may be left behind.
    void finish();

    const ShellModel& model() const { return model_; }
    const ShellCounts& counts() const { return model_.counts(); }

    // What the application should show and do now, one line each.
    std::vector<std::string> description() const;

private:
    static sim::SessionOptions options(const ShellBeginning& beginning);

    bool isRunning() const { return model_.process().has_value(); }
    void check();
    void checkProcess(const ProcessModel& process);
    void checkGuard(const ProcessModel& process);
    void checkWatcher(const ProcessModel& process);
    void checkStatusItem(const ProcessModel& process);
    void checkOpenMenu();
    void checkDesktop();
    void checkWindows(const ProcessModel& process);
    void checkKeyWindow(const ProcessModel& process);
    void checkContent(const ProcessModel& process, const WindowModel& expected, const Window::State& window);
    void checkWizard(const ProcessModel& process);
    void checkWizardsModel(const WizardModel& expected, const WelcomeWindowController& controller);
    void checkWizardsPage(const WizardModel& expected, const Window::State& window);
    void checkSettings(const ProcessModel& process);
    void checkSettingsForm(const SettingsModel& expected, const Window::State& window);
    void checkUpdates(const ProcessModel& process);
    void checkLoginItem();
    void observeWizard();
    void observeSettings();
    std::shared_ptr<Window::State> shownWindow(std::size_t place);
    void checkEntries();
    void checkLog();
    void buryProcess();
    void checkNothingIsLeft();

    sim::Session session_;
    ShellModel model_;
    std::shared_ptr<KestruneApp> app_;
    std::shared_ptr<DockGuardController> guard_; // outlives the delegate, because its tap holds it unretained
    std::shared_ptr<MenuBarController> controller_;
    std::uint64_t writes_ = 0; // of defaults entries, by anybody
    std::uint64_t writesWithTap_ = 0;
    std::size_t checkedRecords_ = 0;
    std::weak_ptr<WelcomeViewModel> observedWizard_;
    ui::Observation wizardsObservation_;
    std::uint64_t wizardsPublications_ = 0;
    std::weak_ptr<SettingsViewModel> observedSettings_;
    std::weak_ptr<SettingsModel> expectedSettings_; // for which they were first observed
    ui::Observation settingsObservation_;
    std::uint64_t settingsPublications_ = 0;
};

} // namespace kestrune::simulate
