#include "tests/random/application/ShellModel.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace kestrune::simulate {

namespace {

constexpr sim::Duration WatcherInterval = std::chrono::seconds(1);

sim::LogRecord refusedStart() {
    const std::string text = "Failed to create event tap. Accessibility permission required.";
    return {sim::LogLevel::error, ApplicationSubsystem, "dockGuard", text, text};
}

sim::LogRecord skippedWizard() {
    const std::string text = "scheduleWelcomeDecision: skipping wizard, already onboarded";
    return {sim::LogLevel::debug, ApplicationSubsystem, "app", text, text};
}

} // namespace

ShellModel::ShellModel(const ShellBeginning& beginning)
    : menus_(beginning.translations),
      translations_(beginning.translations),
      bundle_(beginning.bundle),
      supportAddress_(beginning.supportAddress),
      displays_(beginning.displays),
      permission_(beginning.permission),
      entries_(beginning.entries) {
    updateSupply_.framework = beginning.framework;
}

bool ShellModel::isTrusted() const {
    return permission_ == sim::Permission::granted || permission_ == sim::Permission::rowDeleted;
}

// Whoever asks for a tap in vain gets a row in the list.
void ShellModel::listApplication() {
    if (permission_ == sim::Permission::notListed) {
        permission_ = sim::Permission::switchedOff;
    }
}

void ShellModel::launch() {
    process_.emplace([this](WindowModel& window) { becameKey(window); });
    counts_.add(Happening::launches);
    startUpdater();
    rebuild(); // by the controller's construction
    startIfAllowed();
    rebuild();
    if (!isTrusted()) {
        counts_.add(Happening::launchesWithoutPermission);
        listApplication();
        process_->watcher = thread_.repeat(WatcherInterval, [this] { tick(); });
    }
    thread_.enqueue([this] { decideOnWelcome(); });
}

void ShellModel::terminate() {
    counts_.add(Happening::otherTerminations);
    quit();
}

void ShellModel::quit() {
    if (process_->hasDelegate) {
        stop();
    }
    endProcess();
}

void ShellModel::kill() {
    counts_.add(Happening::kills);
    endProcess();
}

void ShellModel::endProcess() {
    guardRanAtTheEnd_ = process_->guardRuns;
    process_.reset();
    thread_.clear();
    // What it still had after its row was removed goes with it.
    if (permission_ == sim::Permission::rowDeleted) {
        permission_ = sim::Permission::notListed;
    }
}

void ShellModel::letGoOfDelegate(bool controllerStays) {
    counts_.add(Happening::delegatesLetGo);
    process_->hasDelegate = false;
    process_->hasController = controllerStays;
    if (process_->wizard) {
        process_->windows.remove(process_->wizard->window);
        process_->wizard.reset();
    }
    if (process_->settings) {
        process_->windows.remove(process_->settings->window);
        process_->settings.reset();
    }
}

void ShellModel::reopen() {
    setActive(true);
    if (process_ && process_->hasDelegate) {
        openSettings();
    }
}

void ShellModel::openSettings() {
    if (isSetUp()) {
        openSettingsWindow();
    } else {
        showWelcome();
    }
}

// The system takes its time, and may refuse.
void ShellModel::activate() {
    thread_.enqueue([this] {
        if (!desktop_.refusesActivation) {
            setActive(true);
        }
    });
}

void ShellModel::refresh() {
    counts_.add(Happening::refreshes);
    Resolution resolution = resolve(displays_, entries_.choice.reading);
    if (resolution.writes) {
        counts_.add(Happening::writeBacks);
        store(resolution.written ? choiceOf(*resolution.written) : absentChoice());
    }
    process_->guardDisplays = std::move(resolution.displays);
    process_->guardPinned = std::move(resolution.pinned);
}

void ShellModel::start() {
    if (refusesTaps_ || permission_ != sim::Permission::granted) {
        counts_.add(Happening::refusedStarts);
        log_.push_back(refusedStart());
        listApplication();
        return;
    }
    counts_.add(Happening::starts);
    if (process_->open) {
        counts_.add(Happening::startsWhileAMenuIsOpen);
    }
    process_->guardRuns = true;
}

void ShellModel::startIfAllowed() {
    if (entries_.isEnabled.reading && !process_->guardRuns && isTrusted()) {
        refresh();
        start();
    }
}

void ShellModel::stop() {
    if (process_->guardRuns) {
        counts_.add(Happening::stops);
        process_->guardRuns = false;
    }
}

void ShellModel::rebuild() {
    counts_.add(isSetUp() ? Happening::rebuildsAfterSetup : Happening::rebuildsBeforeSetup);
    const StatusMenuFacts facts{enumerateDisplays(displays_), mainIdentifier(displays_),
                                entries_.choice.reading, entries_.isEnabled.reading, isSetUp()};
    countMark(facts);
    process_->statusMenu = menus_.statusMenu(facts);
}

void ShellModel::countMark(const StatusMenuFacts& facts) {
    if (facts.displays.empty()) {
        counts_.add(Happening::menusWithoutDisplays);
    } else if (facts.storedChoice) {
        const bool isKnown =
            std::any_of(facts.displays.begin(), facts.displays.end(), [&](const KnownDisplay& display) {
                return display.identifier == *facts.storedChoice;
            });
        counts_.add(isKnown ? Happening::markedByTheChoice : Happening::unmarkedByAStaleChoice);
    } else {
        counts_.add(facts.mainIdentifier ? Happening::markedAsTheMainDisplay
                                         : Happening::markedAsTheFirstDisplay);
    }
}

void ShellModel::endWatcher(Happening how) {
    if (process_->watcher) {
        counts_.add(how);
        process_->watcher.reset();
    }
}

void ShellModel::tick() {
    counts_.add(process_->watcher->isLate ? Happening::lateTicks : Happening::ticksWithoutPermission);
    if (!process_->hasDelegate) {
        endWatcher(Happening::watchersEndedWithoutTheDelegate);
        return;
    }
    if (!isTrusted()) {
        return;
    }
    endWatcher(Happening::watchersEndedByATick);
    startIfAllowed();
    rebuild();
}

void ShellModel::decideOnWelcome() {
    if (!process_->hasDelegate) {
        counts_.add(Happening::decisionsWithoutTheDelegate);
        return;
    }
    if (!isTrusted()) {
        counts_.add(Happening::decisionsWithoutPermission);
        showWelcome();
        return;
    }
    counts_.add(Happening::decisionsWithPermission);
    storeOnboarding({sim::PropertyList{true}, true});
    log_.push_back(skippedWizard());
}

void ShellModel::changeDisplays(std::vector<sim::Display> displays, bool announced) {
    displays_.set(std::move(displays));
    if (!announced || !process_ || !process_->hasDelegate) {
        return;
    }
    counts_.add(Happening::displayChangesFollowed);
    if (!process_->guardRuns) {
        counts_.add(Happening::displayChangesWhileStopped);
    }
    refresh();
    rebuild();
}

void ShellModel::scriptReads(std::deque<std::vector<sim::Display>> reads) {
    displays_.scriptReads(std::move(reads));
}

void ShellModel::countWrite() {
    ++writes_;
    writesWithTap_ += process_ && process_->guardRuns ? 1U : 0U;
}

void ShellModel::store(const StoredSwitch& isEnabled) {
    countWrite();
    entries_.isEnabled = isEnabled;
}

void ShellModel::store(const StoredChoice& choice) {
    countWrite();
    entries_.choice = choice;
}

void ShellModel::storeOnboarding(const StoredFlag& completed) {
    countWrite();
    entries_.onboarding = completed;
}

std::int64_t ShellModel::liveObjects() const {
    if (!process_) {
        return 0;
    }
    std::size_t count = MenuModel::MainMenuObjects;
    if (process_->hasDelegate) {
        count += 1;
    }
    if (process_->hasController) {
        count += 1 + 1 + 1 + process_->statusMenu.size(); // itself, the status item, the menu and its items
    }
    if (process_->open && !process_->open->statusLines.empty()) {
        count += 1 + process_->open->statusLines.size();
    }
    if (process_->watcher) {
        count += 1;
    }
    if (process_->wizard) {
        count += 1 + 1 + 1 + 1; // its controller, the window, what the window hosts, and the timer
    }
    if (process_->settings) {
        count += 1 + 1 + 1; // their controller, the window and what it hosts
    }
    count += 1; // the manager of updates
    if (process_->updates.hasUpdater) {
        count += 1 + 1; // the updater and its user driver
    }
    if (process_->updates.window) {
        count += 1 + 1; // the window and what it hosts
    }
    if (process_->guardRuns) {
        count += 2; // the tap and its source
    }
    return static_cast<std::int64_t>(count);
}

} // namespace kestrune::simulate
