// What the user does at the Settings window, and what it must come to.
#include "tests/random/application/ShellModel.h"

namespace kestrune::simulate {

namespace {

constexpr sim::Duration RaisingDelay = std::chrono::milliseconds(300);

} // namespace

std::vector<std::string> ShellModel::settingsTexts() const {
    return simulate::settingsTexts(bundle_, translations_);
}

void ShellModel::openSettingsWindow() {
    counts_.add(process_->settings ? Happening::settingsShownAgain : Happening::settingsMade);
    if (!process_->settings) {
        process_->settings = std::make_shared<SettingsModel>();
        process_->settings->isOn = loginItem_.isEnabled();
        process_->settings->isShownOn = loginItem_.isEnabled();
        process_->settings->window =
            process_->windows.add({WindowKind::settings, translated(translations_, "Kestrune Settings")});
    }
    if (process_->settings->isOn != loginItem_.isEnabled()) {
        counts_.add(Happening::switchesCorrected);
    }
    setLaunchAtLogin(loginItem_.isEnabled());
    process_->isRegular = true;
    process_->windows.makeKeyAndOrderFront(process_->settings->window);
    activate();
}

// By the user or by the window's showing: the form is laid out anew, and the system is asked if it has it
// otherwise.
void ShellModel::setLaunchAtLogin(bool isOn) {
    SettingsModel& settings = *process_->settings;
    ++settings.publications;
    settings.isOn = isOn;
    if (!settings.isLayoutPending) {
        settings.isLayoutPending = true;
        thread_.enqueue([reference = std::weak_ptr(process_->settings)] {
            if (const auto alive = reference.lock()) {
                alive->isLayoutPending = false;
                alive->isShownOn = alive->isOn;
            }
        });
    }
    toggleLoginItem(isOn);
}

// Only an enabled item counts as on.
void ShellModel::toggleLoginItem(bool isOn) {
    if (isOn == loginItem_.isEnabled()) {
        return;
    }
    if (loginItem_.refusal) {
        counts_.add(Happening::loginItemsRefused);
        log_.push_back({sim::LogLevel::error, ApplicationSubsystem, "loginItem",
                        "LoginItem toggle failed: " + *loginItem_.refusal,
                        "LoginItem toggle failed: %{public}s"});
    } else if (!isOn) {
        counts_.add(Happening::loginItemsUnregistered);
        loginItem_.status = AppServiceStatus::notRegistered;
    } else if (loginItem_.status == AppServiceStatus::requiresApproval) {
        counts_.add(Happening::loginItemsStillWaiting);
    } else if (loginItem_.requiresApproval) {
        counts_.add(Happening::loginItemsWithoutApproval);
        loginItem_.status = AppServiceStatus::requiresApproval;
    } else {
        counts_.add(Happening::loginItemsRegistered);
        loginItem_.status = AppServiceStatus::enabled;
    }
}

bool ShellModel::flipSwitch(std::size_t place) {
    const auto windows = shownWindows();
    if (place >= windows.size() || windows[place]->kind != WindowKind::settings) {
        return false;
    }
    counts_.add(Happening::switchesFlipped);
    clickWindow(place);
    setLaunchAtLogin(!process_->settings->isShownOn);
    return true;
}

void ShellModel::pressInSettings(const std::string& title) {
    if (title == translated(translations_, "Report a Bug\xE2\x80\xA6")) {
        counts_.add(Happening::bugsReported);
        open(bugReportLink(bundle_, translations_, supportAddress_));
    } else {
        checkForUpdates();
    }
}

void ShellModel::checkForUpdates() {
    if (!process_->updates.hasUpdater) {
        counts_.add(Happening::checksWithoutUpdater);
        return;
    }
    counts_.add(Happening::checksByTheUser);
    process_->updates.isObserving = true;
    activate();
    check(true);
    // The task that waits begins a turn later.
    thread_.enqueue([this] {
        thread_.enqueue(
            [this] {
                counts_.add(Happening::raisesAfterAWait);
                activate();
                raiseUpdatersWindows();
            },
            RaisingDelay);
    });
}

} // namespace kestrune::simulate
