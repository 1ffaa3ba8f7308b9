// What the user does at the wizard, and what it must come to.
#include "tests/shell/ShellModel.h"

namespace kestrune::simulate {

namespace {

constexpr sim::Duration PollingInterval = std::chrono::seconds(1);

} // namespace

bool ShellModel::hasKeys() const {
    return process_ && process_->isActive && process_->wizard && process_->wizard->isVisible;
}

// The window with the keys looks at the permission, whatever it knew.
void ShellModel::tellNewKeyWindow(bool hadKeys) {
    if (!hadKeys && hasKeys()) {
        counts_.add(Happening::windowsBecomeKey);
        publishTrust();
    }
}

void ShellModel::publishTrust() {
    ++process_->wizard->publications;
    process_->wizard->page.isTrusted = isTrusted();
}

void ShellModel::setActive(bool isActive) {
    if (process_) {
        const bool hadKeys = hasKeys();
        process_->isActive = isActive;
        tellNewKeyWindow(hadKeys);
    }
}

// Of the system's own, which takes the keys; afterwards they go back to whoever shows a window.
void ShellModel::systemCameForward(bool isInFront) {
    if (isInFront) {
        setActive(false);
    } else if (process_ && process_->isRegular && process_->wizard && process_->wizard->isVisible) {
        setActive(true);
    }
}

void ShellModel::showWelcome() {
    counts_.add(Happening::wizardsShown);
    if (!process_->wizard) {
        const WizardPage page{true, isTrusted(), false};
        process_->wizard = WizardModel{.page = page, .shownPage = page, .watcher = {now_ + PollingInterval}};
    }
    WizardModel& wizard = *process_->wizard;
    publishTrust();
    if (wizard.page.isIntro && !isTrusted()) {
        counts_.add(Happening::introductionsSkipped);
        ++wizard.publications;
        wizard.page.isIntro = false;
    }
    if (!isTrusted()) {
        listApplication();
    }
    wizard.isFloating = wizard.page.isIntro;
    process_->isRegular = true;
    const bool hadKeys = hasKeys();
    wizard.isVisible = true;
    tellNewKeyWindow(hadKeys);
    process_->activationPending = true;
}

bool ShellModel::isWizardVisible() const {
    return process_ && process_->wizard && process_->wizard->isVisible;
}

bool ShellModel::pressWizardButton(std::size_t index) {
    if (!isWizardVisible() || index >= process_->wizard->shownPage.buttons().size()) {
        return false;
    }
    clickWizard();
    pressTitled(process_->wizard->shownPage.buttons()[index]);
    return true;
}

bool ShellModel::pressReturn() {
    if (!hasKeys() || process_->wizard->shownPage.defaultButton().empty()) {
        return false;
    }
    pressTitled(process_->wizard->shownPage.defaultButton());
    return true;
}

void ShellModel::pressTitled(const std::string& title) {
    counts_.add(Happening::wizardButtonsPressed);
    WizardModel& wizard = *process_->wizard;
    if (title == "Get started") {
        ++wizard.publications;
        wizard.page.isIntro = false;
        wizard.isFloating = false;
    } else if (title == "Request permission") {
        counts_.add(Happening::permissionsRequested);
        ++wizard.publications;
        wizard.page.hasRequested = true;
        askUser();
    } else if (title == "Open System Settings") {
        ++desktop_.openedURLs;
        showPane();
    } else {
        finishWelcome();
    }
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
    process_->isRegular = false;
    process_->wizard.reset();
    startIfAllowed();
    endWatcher(Happening::watchersEndedByTheWizard);
    rebuild();
}

void ShellModel::closeWizard() {
    if (isWizardVisible()) {
        counts_.add(Happening::wizardsClosed);
        process_->isRegular = false;
        process_->wizard->isVisible = false;
    }
}

void ShellModel::clickWizard() {
    if (isWizardVisible()) {
        setActive(true);
    }
}

void ShellModel::tickOfWizard() {
    WizardModel& wizard = *process_->wizard;
    counts_.add(wizard.watcher.missed ? Happening::lateWizardTicks : Happening::wizardTicks);
    reschedule(wizard.watcher);
    if (wizard.page.isTrusted != isTrusted()) {
        counts_.add(Happening::wizardTicksThatFindSomethingNew);
        publishTrust();
    }
}

// What waited for the main thread to be free.
void ShellModel::runMainQueue() {
    if (process_ && process_->decisionPending) {
        decideOnWelcome();
    }
    if (process_ && process_->activationPending) {
        process_->activationPending = false;
        if (!desktop_.refusesActivation) {
            setActive(true);
        }
    }
    showPage();
}

void ShellModel::showPage() {
    if (process_ && process_->wizard) {
        process_->wizard->shownPage = process_->wizard->page;
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
