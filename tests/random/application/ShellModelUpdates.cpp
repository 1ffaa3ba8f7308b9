// What the update framework does and shows, and what the application must make of it.
#include "sim/services/Updates.h"
#include "tests/random/application/ShellModel.h"

#include <utility>

namespace kestrune::simulate {

void ShellModel::startUpdater() {
    if (updateSupply_.framework != sim::UpdateFramework::working) {
        counts_.add(Happening::updatersNotStarted);
        const std::string reason = updateSupply_.framework == sim::UpdateFramework::missing
                                       ? std::string(MissingUpdateFramework)
                                       : std::string(sim::Updates::StartFailure);
        log_.push_back({sim::LogLevel::error, ApplicationSubsystem, "updater",
                        "Sparkle init failed: " + reason, "Sparkle init failed: %{public}s"});
        return;
    }
    counts_.add(Happening::updatersStarted);
    process_->updates.hasUpdater = true;
    countWrite();
    entries_.downloads = sim::PropertyList{false};
    log_.push_back({sim::LogLevel::info, ApplicationSubsystem, "updater",
                    "Sparkle initialized \xE2\x80\x94 feed: " + textIn(bundle_.feed).value_or("NOT SET"),
                    "Sparkle initialized \xE2\x80\x94 feed: %{public}s"});
}

void ShellModel::checkAsScheduled() {
    if (process_ && process_->updates.hasUpdater) {
        counts_.add(Happening::checksOnSchedule);
        check(false);
    }
}

// What is shown already comes forward when the user asks for it.
void ShellModel::check(bool isByUser) {
    UpdatesModel& updates = process_->updates;
    if (updates.stage == UpdateStage::update && isByUser) {
        announce();
        process_->windows.makeKeyAndOrderFront(updates.window);
    }
    if (updates.stage != UpdateStage::idle) {
        counts_.add(Happening::checksDuringASession);
        return;
    }
    updates.stage = UpdateStage::checking;
    ++updates.session;
    if (isByUser) {
        showOfUpdater("Updating Kestrune", updateSupply_.windowClass, true);
    }
    thread_.enqueue(
        [this, isByUser, session = updates.session] {
            if (process_->updates.stage == UpdateStage::checking && process_->updates.session == session) {
                finishCheck(isByUser);
            }
        },
        sim::Updates::CheckDuration);
}

void ShellModel::finishCheck(bool isByUser) {
    UpdatesModel& updates = process_->updates;
    hideOfUpdater();
    if (textIn(bundle_.feed) && updateSupply_.feed == sim::UpdateFeed::newVersion) {
        counts_.add(Happening::updatesFound);
        updates.stage = UpdateStage::update;
        announce();
        showOfUpdater("Software Update", updateSupply_.windowClass, isByUser);
    } else if (isByUser) {
        counts_.add(Happening::alertsShown);
        updates.stage = UpdateStage::alert;
        thread_.enqueue([this] { raiseUpdatersWindows(); });
        showOfUpdater("", "_NSAlertPanel", true);
        thread_.beginAlert();
    } else {
        updates.stage = UpdateStage::idle;
    }
}

// The framework tells of what it does while it does it; the application answers a turn later.
void ShellModel::announce() {
    thread_.enqueue([this] { beginUpdateSession(); });
}

void ShellModel::beginUpdateSession() {
    UpdatesModel& updates = process_->updates;
    counts_.add(updates.savedIsRegular ? Happening::sessionsAnnouncedAgain
                : process_->isRegular  ? Happening::sessionsAnnouncedWhileRegular
                                       : Happening::sessionsAnnounced);
    updates.isObserving = true;
    if (!updates.savedIsRegular) {
        updates.savedIsRegular = process_->isRegular;
    }
    process_->isRegular = true;
    activate();
}

void ShellModel::endUpdateSession() {
    UpdatesModel& updates = process_->updates;
    updates.isObserving = false;
    if (updates.savedIsRegular) {
        counts_.add(*updates.savedIsRegular == process_->isRegular ? Happening::policiesKept
                                                                   : Happening::policiesRestored);
        const bool hasWindows = !process_->windows.shown().empty();
        if (*updates.savedIsRegular != hasWindows) {
            counts_.add(hasWindows ? Happening::accessoriesWithWindows : Happening::regularWithoutWindows);
        }
        process_->isRegular = *updates.savedIsRegular;
        updates.savedIsRegular.reset();
    }
}

void ShellModel::raiseUpdatersWindows() {
    for (const WindowsModel::Window& window : process_->windows.all()) {
        if (isOfUpdatersClass(*window)) {
            counts_.add(Happening::windowsRaised);
            if (window->hides) {
                counts_.add(Happening::windowsKeptFromHiding);
            }
            window->isFloating = true;
            window->hides = false;
        }
    }
    activate();
}

void ShellModel::showOfUpdater(std::string title, std::string className, bool asKey) {
    WindowsModel& windows = process_->windows;
    const bool hides = updateSupply_.windowsHide && className == updateSupply_.windowClass;
    process_->updates.window =
        windows.add({WindowKind::updates, std::move(title), std::move(className), false, hides});
    if (asKey) {
        windows.makeKeyAndOrderFront(process_->updates.window);
    } else {
        windows.orderFront(process_->updates.window);
    }
}

void ShellModel::hideOfUpdater() {
    if (const WindowsModel::Window window = std::exchange(process_->updates.window, nullptr)) {
        process_->windows.orderOut(window);
        process_->windows.remove(window);
    }
}

void ShellModel::dismiss() {
    UpdatesModel& updates = process_->updates;
    counts_.add(Happening::updatesDismissed);
    const UpdateStage stage = std::exchange(updates.stage, UpdateStage::idle);
    hideOfUpdater();
    if (stage == UpdateStage::alert) {
        thread_.endAlert();
        thread_.enqueue([this] { raiseUpdatersWindows(); });
    }
    thread_.enqueue([this] { endUpdateSession(); });
}

} // namespace kestrune::simulate
