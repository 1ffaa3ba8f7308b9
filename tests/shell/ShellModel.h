// The whole application as a small state machine, worked out from its rules a second time and without its
// code: what it shows, stores, logs and keeps at each moment.
#pragma once

#include "sim/Session.h"
#include "tests/shell/MenuModel.h"
#include "tests/shell/ShellCounts.h"
#include "tests/shell/WizardModel.h"
#include "tests/simulate/Oracle.h"
#include "tests/simulate/StoredValue.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::simulate {

constexpr std::string_view OnboardingEntry = "hasCompletedOnboarding";

// Reads as boolForKey:.
using StoredFlag = StoredValue<bool>;

struct ShellEntries {
    StoredSwitch isEnabled = absentSwitch();
    StoredChoice choice = absentChoice();
    StoredFlag onboarding{std::nullopt, false};
};

// All that a session of the application begins with.
struct ShellBeginning {
    std::vector<sim::Display> displays;
    sim::Permission permission;
    ShellEntries entries;
    Translations translations;
};

struct OpenMenuModel {
    sim::MenuPlace place;
    std::vector<MenuLine> statusLines; // as they were installed before the menu was opened
};

// The application's process.
struct ProcessModel {
    bool hasDelegate = true;
    bool hasController = true;
    bool decisionPending = true;
    bool guardRuns = false;
    std::vector<KnownDisplay> guardDisplays = {};
    std::optional<KnownDisplay> guardPinned = std::nullopt;
    std::optional<WatcherModel> watcher = std::nullopt;
    std::vector<MenuLine> statusMenu = {};
    std::optional<OpenMenuModel> open = std::nullopt;
    std::optional<WizardModel> wizard = std::nullopt;
    bool activationPending = false;
    bool isActive = false;
    bool isRegular = false;
};

// What the system shows the user, which outlives the application.
struct DesktopModel {
    bool isDialogShown = false;
    bool isPaneShown = false;
    std::size_t openedURLs = 0;
    bool refusesActivation = false;
};

class ShellModel {
public:
    explicit ShellModel(const ShellBeginning& beginning);

    // The application's process.
    void launch();
    void terminate();
    void kill();
    void letGoOfDelegate(bool controllerStays);
    void openSettings();
    void setActive(bool isActive);

    // The user at the menus. Each answers what the session must answer.
    bool openMenu(const sim::MenuPlace& place);
    bool choose(std::size_t row);
    bool press(std::string_view key, EventModifierFlags modifiers);
    void closeMenu();

    // The user at the wizard and at what the system shows. The first two answer what the session must answer.
    bool pressWizardButton(std::size_t index);
    bool pressReturn();
    void clickWizard();
    void closeWizard();
    void openSettingsFromDialog();
    void denyInDialog();
    void closePane();
    void refuseActivation(bool refuse) { desktop_.refusesActivation = refuse; }

    // Everything around the application. Displays change with or, for a moment, without the announcement.
    void changeDisplays(std::vector<sim::Display> displays, bool announced);
    void scriptReads(std::deque<std::vector<sim::Display>> reads);
    void setMain(std::optional<std::size_t> index) { displays_.setMain(index); }
    void setUUIDStringsFail(bool fail) { displays_.setUUIDStringsFail(fail); }
    void store(const StoredSwitch& isEnabled);
    void store(const StoredChoice& choice);
    void storeOnboarding(const StoredFlag& completed);
    void setPermission(sim::Permission permission) { permission_ = permission; }
    void refuseTapCreation(bool refuse) { refusesTaps_ = refuse; }
    void advance(sim::Duration duration);

    // Absent while the application does not run.
    const std::optional<ProcessModel>& process() const { return process_; }

    const std::vector<sim::Display>& connected() const { return displays_.connected(); }
    const ShellEntries& entries() const { return entries_; }
    const DesktopModel& desktop() const { return desktop_; }
    sim::Permission permission() const { return permission_; }
    bool isSetUp() const { return isTrusted() && entries_.onboarding.reading; }

    // Of defaults entries, by anybody, and how many of them while the guard's tap stood.
    std::uint64_t writes() const { return writes_; }
    std::uint64_t writesWithTap() const { return writesWithTap_; }

    // Whether the guard was still running when the last process ended: only a kill leaves it so.
    bool guardRanAtTheEnd() const { return guardRanAtTheEnd_; }

    const std::vector<sim::LogRecord>& log() const { return log_; }

    // The lines of the open menu, none while none is open.
    std::vector<MenuLine> openLines() const;

    // The menu bar's titles while the application shows them.
    std::vector<std::string> mainMenuTitles() const;

    // Platform objects that the application and the system hold for it.
    std::int64_t liveObjects() const;

    const ShellCounts& counts() const { return counts_; }

private:
    bool isTrusted() const;
    void quit();
    void endProcess();
    void countWrite();
    void refresh();
    void start();
    void startIfAllowed();
    void stop();
    void rebuild();
    void countMark(const StatusMenuFacts& facts);
    void runMainQueue();
    void runTimersUntil(sim::Duration end);
    WatcherModel* nextDue();
    void tick();
    void reschedule(WatcherModel& watcher) const;
    bool hasKeys() const;
    bool isWizardVisible() const;
    void tellNewKeyWindow(bool hadKeys);
    void publishTrust();
    void systemCameForward(bool isInFront);
    void showWelcome();
    void askUser();
    void pressTitled(const std::string& title);
    void finishWelcome();
    void tickOfWizard();
    void showPage();
    void showPane();
    void endWatcher(Happening how);
    void decideOnWelcome();
    void toggle();
    void select(const std::string& identifier);
    bool finishTracking(const MenuLine& line, bool inMainMenu);
    bool act(const MenuLine& line, bool inMainMenu);
    void leaveTracking();
    void listApplication();

    MenuModel menus_;
    sim::Displays displays_;
    sim::Permission permission_;
    ShellEntries entries_;
    bool refusesTaps_ = false;
    sim::Duration now_{0};
    std::optional<ProcessModel> process_;
    DesktopModel desktop_;
    std::uint64_t writes_ = 0;
    std::uint64_t writesWithTap_ = 0;
    bool guardRanAtTheEnd_ = false;
    std::vector<sim::LogRecord> log_;
    ShellCounts counts_;
};

} // namespace kestrune::simulate
