// The whole application as a small state machine, worked out from its rules a second time and without its
// code: what it shows, stores, logs and keeps at each moment.
#pragma once

#include "sim/session/Session.h"
#include "tests/random/application/LoginItemModel.h"
#include "tests/random/application/MainThreadModel.h"
#include "tests/random/application/MenuModel.h"
#include "tests/random/application/SettingsModel.h"
#include "tests/random/application/ShellCounts.h"
#include "tests/random/application/UpdatesModel.h"
#include "tests/random/application/WindowsModel.h"
#include "tests/random/application/WizardModel.h"
#include "tests/random/common/StoredValue.h"
#include "tests/random/guard/Oracle.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::simulate {

// The updater's own.
constexpr std::string_view DownloadsEntry = "SUAutomaticallyUpdate";

// What every log line is written under.
constexpr const char* ApplicationSubsystem = "org.kestrune.Kestrune";

// Reads as boolForKey:.
using StoredFlag = StoredValue<bool>;

struct ShellEntries {
    StoredSwitch isEnabled = absentSwitch();
    StoredChoice choice = absentChoice();
    StoredFlag onboarding{std::nullopt, false};
    std::optional<sim::PropertyList> downloads = std::nullopt; // nobody here reads it
};

// All that a session of the application begins with.
struct ShellBeginning {
    std::vector<sim::Display> displays;
    sim::Permission permission;
    ShellEntries entries;
    Translations translations;
    BundleFacts bundle;
    sim::UpdateFramework framework;
    std::string supportAddress;
};

struct OpenMenuModel {
    sim::MenuPlace place;
    std::vector<MenuLine> statusLines; // as they were installed before the menu was opened
};

// The application's process.
struct ProcessModel {
    explicit ProcessModel(std::function<void(WindowModel&)> becameKey) : windows(std::move(becameKey)) {}

    bool hasDelegate = true;
    bool hasController = true;
    bool guardRuns = false;
    std::vector<KnownDisplay> guardDisplays;
    std::optional<KnownDisplay> guardPinned;
    std::shared_ptr<TimerModel> watcher; // null unless it polls
    std::vector<MenuLine> statusMenu;
    std::optional<OpenMenuModel> open;
    WindowsModel windows;
    std::shared_ptr<WizardModel> wizard;     // null unless it is going on
    std::shared_ptr<SettingsModel> settings; // null until the user has wanted them
    UpdatesModel updates;
    bool isRegular = false;
};

// What the system shows the user, which outlives the application.
struct DesktopModel {
    bool isDialogShown = false;
    bool isPaneShown = false;
    std::vector<std::string> openedURLs;
    bool refusesActivation = false;
    bool opensURLs = true;
};

class ShellModel {
public:
    explicit ShellModel(const ShellBeginning& beginning);

    // The application's process.
    void launch();
    void terminate();
    void kill();
    void letGoOfDelegate(bool controllerStays);
    void reopen();
    void setActive(bool isActive);

    // The user at the menus. Each answers what the session must answer.
    bool openMenu(const sim::MenuPlace& place);
    bool choose(std::size_t row);
    bool press(std::string_view key, EventModifierFlags modifiers);
    void closeMenu();

    // The user at the windows on the screen, which count from the frontmost. Those with an answer say what
    // the session must answer.
    bool pressButton(std::size_t place, std::size_t button);
    bool flipSwitch(std::size_t place);
    bool pressReturn();
    bool pressEscape();
    void clickWindow(std::size_t place);
    void closeWindow(std::size_t place);

    // The user at what the system shows.
    void openSettingsFromDialog();
    void denyInDialog();
    void closePane();
    void refuseActivation(bool refuse) { desktop_.refusesActivation = refuse; }
    void refuseOpeningURLs(bool refuse) { desktop_.opensURLs = !refuse; }

    // Login items and updates.
    void changeLoginItem(const LoginItemModel& item) { loginItem_ = item; }
    void changeUpdates(const sim::UpdateSupply& updates) { updateSupply_ = updates; }
    void checkAsScheduled();

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
    void advance(sim::Duration duration) { thread_.advance(duration); }

    // Absent while the application does not run.
    const std::optional<ProcessModel>& process() const { return process_; }

    const std::vector<sim::Display>& connected() const { return displays_.connected(); }
    const ShellEntries& entries() const { return entries_; }
    const DesktopModel& desktop() const { return desktop_; }
    const LoginItemModel& loginItem() const { return loginItem_; }
    const sim::UpdateSupply& updateSupply() const { return updateSupply_; }
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

    // The windows on the screen, the frontmost first; and the titles of a window's buttons.
    std::vector<WindowsModel::Window> shownWindows() const;
    std::vector<std::string> buttonsOf(const WindowModel& window) const;

    // Of the Settings form, outside of its buttons.
    std::vector<std::string> settingsTexts() const;

    // Nobody can do anything at other windows until it is closed.
    bool isAlertShown() const { return process_ && process_->updates.stage == UpdateStage::alert; }

    // Platform objects that the application and the system hold for it.
    std::int64_t liveObjects() const;

    const ShellCounts& counts() const { return counts_; }

    // What was there to be seen when a step was over.
    void countStep();

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
    void activate();
    void tick();
    void endWatcher(Happening how);
    void decideOnWelcome();
    void listApplication();

    // Menus.
    void toggle();
    void select(const std::string& identifier);
    bool finishTracking(const MenuLine& line, bool inMainMenu);
    bool act(const MenuLine& line, bool inMainMenu);

    // Windows.
    void becameKey(WindowModel& window);
    void pressTitled(const WindowModel& window, const std::string& title);
    bool pressKeyWindow(bool isReturn);

    // The wizard.
    void showWelcome();
    void publishTrust();
    void publishInWizard();
    void systemCameForward(bool isInFront);
    void askUser();
    void pressInWizard(const std::string& title);
    void finishWelcome();
    void tickOfWizard();
    void showPane();
    bool open(const std::string& address);

    // Settings.
    void openSettings();
    void openSettingsWindow();
    void setLaunchAtLogin(bool isOn);
    void toggleLoginItem(bool isOn);
    void pressInSettings(const std::string& title);
    void checkForUpdates();

    // Updates.
    void startUpdater();
    void beginUpdateSession();
    void endUpdateSession();
    void raiseUpdatersWindows();
    void check(bool isByUser);
    void finishCheck(bool isByUser);
    void announce();
    void showOfUpdater(std::string title, std::string className, bool asKey);
    void hideOfUpdater();
    void dismiss();

    MenuModel menus_;
    Translations translations_;
    BundleFacts bundle_;
    std::string supportAddress_;
    sim::Displays displays_;
    sim::Permission permission_;
    ShellEntries entries_;
    LoginItemModel loginItem_;
    sim::UpdateSupply updateSupply_;
    bool refusesTaps_ = false;
    MainThreadModel thread_;
    std::optional<ProcessModel> process_;
    DesktopModel desktop_;
    std::uint64_t writes_ = 0;
    std::uint64_t writesWithTap_ = 0;
    bool guardRanAtTheEnd_ = false;
    std::vector<sim::LogRecord> log_;
    ShellCounts counts_;
};

} // namespace kestrune::simulate
