// The state of a session after each step, compared with what it must be.
#include "replay/StoredChoices.h"
#include "sim/services/MenuState.h"
#include "sim/services/StatusItemState.h"
#include "tests/random/application/ShellSession.h"
#include "tests/random/guard/GuardRecords.h"

#include <algorithm>

namespace kestrune::simulate {

namespace {

bool isIdentifier(const std::optional<RepresentedObject>& found, const std::optional<std::string>& expected) {
    if (!found || !expected) {
        return !found && !expected;
    }
    const auto* text = std::get_if<std::string>(&*found);
    return text != nullptr && *text == *expected;
}

bool isLine(const MenuItem::State& item, const MenuLine& line) {
    return item.title == line.title && (item.action ? item.action->name() : "") == line.action &&
           item.keyEquivalent == line.key && item.modifiers == line.modifiers &&
           item.isEnabled == line.isEnabled && item.isSeparator == line.isSeparator &&
           item.control == (line.isMarked ? ControlState::on : ControlState::off) &&
           isIdentifier(item.representedObject, line.identifier) && !item.submenu;
}

// What is wrong with a menu, absent when it has exactly these lines.
std::optional<std::string> difference(const Menu& menu, const std::vector<MenuLine>& lines) {
    const std::vector<MenuItem>& items = menu.state()->items;
    for (std::size_t index = 0; index < std::min(items.size(), lines.size()); ++index) {
        const MenuItem::State& item = *items[index].state();
        if (!isLine(item, lines[index])) {
            return "line " + std::to_string(index) + ", \"" + item.title + "\", is not what \"" +
                   lines[index].title + "\" had to be";
        }
    }
    return items.size() != lines.size() ? std::optional<std::string>("it has too few or too many lines")
                                        : std::nullopt;
}

bool isRow(const sim::MenuRow& row, const MenuLine& line) {
    return row.title == line.title && row.keyEquivalent == line.key && row.modifiers == line.modifiers &&
           row.isEnabled == (line.isEnabled && !line.isSeparator) && row.isSeparator == line.isSeparator &&
           row.state == (line.isMarked ? ControlState::on : ControlState::off);
}

bool areRows(const std::vector<sim::MenuRow>& rows, const std::vector<MenuLine>& lines) {
    if (rows.size() != lines.size()) {
        return false;
    }
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (!isRow(rows[index], lines[index])) {
            return false;
        }
    }
    return true;
}

bool isSameRecord(const sim::LogRecord& found, const sim::LogRecord& expected) {
    return found.level == expected.level && found.subsystem == expected.subsystem &&
           found.category == expected.category && found.message == expected.message &&
           found.format == expected.format;
}

} // namespace

void ShellSession::check() {
    require(session_.application().isRunning == isRunning(), "the process runs when it should not, or ended");
    if (const std::optional<ProcessModel>& process = model_.process()) {
        checkProcess(*process);
    } else {
        buryProcess();
        checkNothingIsLeft();
    }
    checkEntries();
    checkLog();
    require(session_.accessibility().permission() == model_.permission(),
            "the application is not listed as its attempts at taps make it");
    checkDesktop();
    checkLoginItem();
    model_.countStep();
}

void ShellSession::checkProcess(const ProcessModel& process) {
    checkGuard(process);
    checkWatcher(process);
    checkStatusItem(process);
    checkOpenMenu();
    checkWindows(process);
    checkWizard(process);
    checkSettings(process);
    checkUpdates(process);
    require(session_.menus().mainMenuTitles() == model_.mainMenuTitles(),
            "the menu bar does not show the main menu's titles");
    require(session_.application().policy ==
                (process.isRegular ? ActivationPolicy::regular : ActivationPolicy::accessory),
            "the application is in the Dock when it should not be, or not when it should");
    require(session_.application().isActive == process.windows.isActive(),
            "the application is active when it should not be, or not when it should");
    require(session_.liveObjects() == model_.liveObjects(),
            "the number of retained platform objects is wrong");
    if (app_) {
        require(app_->isSetupComplete() == model_.isSetUp(), "isSetupComplete is wrong");
    }
}

void ShellSession::checkGuard(const ProcessModel& process) {
    const std::size_t taps = process.guardRuns ? 1 : 0;
    require(guard_->isRunning() == process.guardRuns,
            process.guardRuns ? "the guard does not run" : "the guard runs");
    require(session_.taps().count() == taps && session_.taps().enabledCount() == taps &&
                session_.sources().count() == taps,
            "not exactly one enabled tap with one source while the guard runs and none otherwise");
    require(knowsDisplays(*guard_, process.guardDisplays),
            "the guard does not know the displays as they were at its last refresh");
    require(pins(*guard_, process.guardPinned), "the guard pins another display than at its last refresh");
}

void ShellSession::checkWatcher(const ProcessModel& process) {
    require(session_.timers().count() == (process.watcher ? 1U : 0U) + (process.wizard ? 1U : 0U),
            "not exactly one timer for the watcher and one for the wizard");
    if (app_) {
        require(app_->isWatchingAccessibility() == (process.watcher != nullptr),
                "accessibilityWatcher does not hold the timer exactly while it runs");
    }
}

void ShellSession::checkStatusItem(const ProcessModel& process) {
    const auto items = session_.statusItems().shown();
    require(items.size() == (process.hasController ? 1U : 0U),
            "not exactly one status item as long as the controller lives");
    if (!process.hasController || items.size() != 1) {
        return;
    }
    if (!items[0]->menu) {
        violate("the status item has no menu");
    } else if (const auto wrong = difference(*items[0]->menu, process.statusMenu)) {
        violate("the installed menu is not that of the last rebuild: " + *wrong);
    }
}

void ShellSession::checkOpenMenu() {
    const std::optional<OpenMenuModel>& open = model_.process()->open;
    const std::optional<sim::MenuPlace> place = open ? std::optional(open->place) : std::nullopt;
    require(session_.menus().place() == place, "another menu is open than the user opened");
    if (open) {
        require(areRows(session_.menus().rows(), model_.openLines()),
                "the open menu is not the one that was there when it was opened");
    }
}

void ShellSession::checkEntries() {
    const sim::DefaultsDomain& defaults = session_.defaults();
    const ShellEntries& entries = model_.entries();
    require(writes_ == model_.writes(), "the stored entries were not written as often as they should be");
    require(writesWithTap_ == model_.writesWithTap(),
            "an entry was written before the tap was made that had to be written after it, or the other way "
            "round");
    require(holdsExactly(defaults.find(replay::entries::IsEnabled), entries.isEnabled.stored),
            "the stored switch is not what the last writer had to leave");
    require(holdsExactly(defaults.find(replay::entries::PinnedScreenUUID), entries.choice.stored),
            "the stored choice is not what the last writer had to leave");
    require(holdsExactly(defaults.find(replay::entries::HasCompletedOnboarding), entries.onboarding.stored),
            "hasCompletedOnboarding is not what the last writer had to leave");
    require(holdsExactly(defaults.find(DownloadsEntry), entries.downloads),
            "updates are downloaded of themselves, or it was never said that they are not");
    const std::size_t expected = (entries.isEnabled.stored ? 1U : 0U) + (entries.choice.stored ? 1U : 0U) +
                                 (entries.onboarding.stored ? 1U : 0U) + (entries.downloads ? 1U : 0U);
    require(defaults.entries().size() == expected, "an entry was stored that nobody should store");
}

void ShellSession::checkLog() {
    const std::vector<sim::LogRecord>& records = session_.logRecords();
    require(records.size() == model_.log().size(), "not exactly the log lines that had to be written");
    for (; checkedRecords_ < std::min(records.size(), model_.log().size()); ++checkedRecords_) {
        require(isSameRecord(records[checkedRecords_], model_.log()[checkedRecords_]),
                "a log line is not the one that had to be written");
    }
}

// The memory goes with the process.
void ShellSession::buryProcess() {
    require(!guard_ || guard_->isRunning() == model_.guardRanAtTheEnd(),
            "the guard was not stopped exactly when the process was told to terminate");
    app_.reset();
    controller_.reset();
    guard_.reset();
}

void ShellSession::checkNothingIsLeft() {
    require(session_.taps().count() == 0 && session_.sources().count() == 0,
            "the process is gone and left a tap behind");
    require(session_.timers().count() == 0, "the process is gone and left a timer behind");
    require(session_.observers().count() == 0, "the process is gone and left an observer behind");
    require(session_.statusItems().shown().empty(), "the process is gone and left a status item behind");
    require(!session_.menus().place(), "the process is gone and left a menu open");
    require(session_.windows().all().empty(), "the process is gone and left a window behind");
    require(!session_.updates().isShowingUpdate() && !session_.updates().isShowingAlert(),
            "the process is gone and left an update or an alert behind");
    require(session_.liveObjects() == 0, "the process is gone and left platform objects behind");
}

std::vector<std::string> ShellSession::description() const {
    const std::optional<ProcessModel>& process = model_.process();
    if (!process) {
        return {"not running"};
    }
    std::vector<std::string> lines{std::string(process->guardRuns ? "guard runs" : "guard stopped") +
                                   (process->watcher ? ", permission polled" : "") +
                                   (process->hasDelegate ? "" : ", delegate gone") +
                                   (process->open ? ", a menu is open" : "")};
    for (const WindowsModel::Window& window : process->windows.shown()) {
        lines.push_back("[" + window->title + "]" + (window->isFloating ? " floats" : "") +
                        (window == process->windows.key() ? ", has the keys" : ""));
    }
    for (const MenuLine& line : process->statusMenu) {
        lines.push_back((line.isMarked ? "* " : "  ") + (line.isSeparator ? "----" : line.title) +
                        (line.isEnabled ? "" : " (disabled)"));
    }
    return lines;
}

} // namespace kestrune::simulate
