// What the user does at the wizard and at what the system shows, and what it must come to.
#include "tests/random/application/ShellModel.h"

namespace kestrune::simulate {

namespace {

constexpr sim::Duration PollingInterval = std::chrono::seconds(1);
constexpr const char* PrivacyPane =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

} // namespace

// The page is laid out anew a turn later, once for all that changes until then.
void ShellModel::publishInWizard() {
    WizardModel& wizard = *process_->wizard;
    ++wizard.publications;
    if (wizard.isLayoutPending) {
        return;
    }
    wizard.isLayoutPending = true;
    thread_.enqueue([reference = std::weak_ptr(process_->wizard)] {
        if (const auto alive = reference.lock()) {
            alive->isLayoutPending = false;
            alive->shownPage = alive->page;
        }
    });
}

void ShellModel::publishTrust() {
    publishInWizard();
    process_->wizard->page.isTrusted = isTrusted();
}

// Of the system's own, which takes the keys; afterwards they go back to whoever shows a window.
void ShellModel::systemCameForward(bool isInFront) {
    if (isInFront) {
        setActive(false);
    } else if (process_ && process_->isRegular && !process_->windows.shown().empty()) {
        setActive(true);
    }
}

void ShellModel::showWelcome() {
    counts_.add(Happening::wizardsShown);
    if (!process_->wizard) {
        const WizardPage page{true, isTrusted(), false};
        process_->wizard = std::make_shared<WizardModel>();
        process_->wizard->page = page;
        process_->wizard->shownPage = page;
        process_->wizard->window = process_->windows.add(
            {WindowKind::wizard, translated(translations_, "Welcome to Kestrune"), "NSWindow", true});
        process_->wizard->watcher = thread_.repeat(PollingInterval, [this] { tickOfWizard(); });
    }
    WizardModel& wizard = *process_->wizard;
    publishTrust();
    if (wizard.page.isIntro && !isTrusted()) {
        counts_.add(Happening::introductionsSkipped);
        publishInWizard();
        wizard.page.isIntro = false;
    }
    if (!isTrusted()) {
        listApplication();
    }
    wizard.window->isFloating = wizard.page.isIntro;
    process_->isRegular = true;
    process_->windows.makeKeyAndOrderFront(wizard.window);
    activate();
}

void ShellModel::pressInWizard(const std::string& title) {
    counts_.add(Happening::wizardButtonsPressed);
    WizardModel& wizard = *process_->wizard;
    if (title == "Get started") {
        publishInWizard();
        wizard.page.isIntro = false;
        wizard.window->isFloating = false;
    } else if (title == "Request permission") {
        counts_.add(Happening::permissionsRequested);
        publishInWizard();
        wizard.page.hasRequested = true;
        askUser();
    } else if (title == "Open System Settings") {
        if (open(PrivacyPane)) {
            showPane();
        }
    } else {
        finishWelcome();
    }
}

// Whether somebody opens it. Nobody here minds if not.
bool ShellModel::open(const std::string& address) {
    if (!desktop_.opensURLs) {
        counts_.add(Happening::addressesOpenedByNobody);
        return false;
    }
    desktop_.openedURLs.push_back(address);
    return true;
}

// Whoever has the permission is not asked.
void ShellModel::askUser() {
    if (!isTrusted()) {
        listApplication();
        desktop_.isDialogShown = true;
        systemCameForward(true);
    }
}

// The first run is over: the wizard goes, and the application with it from the Dock.
void ShellModel::finishWelcome() {
    counts_.add(Happening::wizardsFinished);
    storeOnboarding({sim::PropertyList{true}, true});
    process_->windows.orderOut(process_->wizard->window);
    process_->isRegular = false;
    process_->windows.remove(process_->wizard->window);
    process_->wizard.reset();
    startIfAllowed();
    endWatcher(Happening::watchersEndedByTheWizard);
    rebuild();
}

void ShellModel::tickOfWizard() {
    WizardModel& wizard = *process_->wizard;
    counts_.add(wizard.watcher->isLate ? Happening::lateWizardTicks : Happening::wizardTicks);
    if (wizard.page.isTrusted != isTrusted()) {
        counts_.add(Happening::wizardTicksThatFindSomethingNew);
        publishTrust();
    }
}

void ShellModel::showPane() {
    desktop_.isPaneShown = true;
    systemCameForward(true);
}

void ShellModel::openSettingsFromDialog() {
    if (desktop_.isDialogShown) {
        desktop_.isDialogShown = false;
        showPane();
    }
}

void ShellModel::denyInDialog() {
    if (desktop_.isDialogShown) {
        desktop_.isDialogShown = false;
        systemCameForward(desktop_.isPaneShown);
    }
}

void ShellModel::closePane() {
    if (desktop_.isPaneShown) {
        desktop_.isPaneShown = false;
        systemCameForward(desktop_.isDialogShown);
    }
}

} // namespace kestrune::simulate
