// The wizard, and the user at what the system shows beside it.
#include "sim/services/WindowState.h"
#include "tests/random/application/ShellSession.h"
#include "tests/ui/SceneParts.h"

#include <algorithm>

namespace kestrune::simulate {

namespace {

bool shows(const ui::Scene& scene, const std::string& text) {
    const std::vector<std::string> texts = ui::shownTexts(scene);
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

} // namespace

void ShellSession::openSettingsFromDialog() {
    if (session_.accessibility().isDialogShown()) {
        session_.user().openSettingsFromDialog();
    }
    model_.openSettingsFromDialog();
    check();
}

void ShellSession::denyInDialog() {
    if (session_.accessibility().isDialogShown()) {
        session_.user().denyInDialog();
    }
    model_.denyInDialog();
    check();
}

void ShellSession::closePane() {
    if (session_.accessibility().isPaneShown()) {
        session_.user().closePane();
    }
    model_.closePane();
    check();
}

void ShellSession::refuseActivation(bool refuse) {
    session_.faults().refuseActivation(refuse);
    model_.refuseActivation(refuse);
}

void ShellSession::refuseOpeningURLs(bool refuse) {
    session_.faults().refuseOpeningURLs(refuse);
    model_.refuseOpeningURLs(refuse);
}

void ShellSession::checkDesktop() {
    const DesktopModel& desktop = model_.desktop();
    require(session_.accessibility().isDialogShown() == desktop.isDialogShown,
            "the user was asked for the permission by nobody's wish, or not asked");
    require(session_.accessibility().isPaneShown() == desktop.isPaneShown,
            "the user was led to System Settings by nobody's wish, or not led there");
    require(session_.openedURLs() == desktop.openedURLs, "other URLs were opened than should have been");
}

void ShellSession::checkWizard(const ProcessModel& process) {
    const auto controller = app_ ? app_->welcomeWindowController() : nullptr;
    require(!app_ || (controller != nullptr) == (process.wizard != nullptr),
            "the wizard is kept although it has finished, or gone although it has not");
    observeWizard();
    if (process.wizard && controller) {
        checkWizardsModel(*process.wizard, *controller);
    }
}

// Counted from the moment at which the wizard is there, with what its making has published before.
void ShellSession::observeWizard() {
    const auto wizard = app_ ? app_->welcomeWindowController() : nullptr;
    const auto model = wizard ? wizard->model() : nullptr;
    if (model == observedWizard_.lock()) {
        return;
    }
    observedWizard_ = model;
    wizardsObservation_ = {};
    if (model && model_.process() && model_.process()->wizard) {
        wizardsPublications_ = model_.process()->wizard->publications;
        wizardsObservation_ = model->observe([this] { ++wizardsPublications_; });
    }
}

void ShellSession::checkWizardsModel(const WizardModel& expected, const WelcomeWindowController& controller) {
    const WelcomeViewModel& model = *controller.model();
    const WizardPage page{model.currentStep == WelcomeViewModel::Step::intro, model.isAccessibilityTrusted,
                          model.hasRequestedPermission};
    require(page == expected.page, "the wizard knows another step or permission than it should");
    require(wizardsPublications_ == expected.publications,
            "the wizard told its view of changes too often or too rarely");
    require(controller.isWatchingAccessibility(), "the wizard has stopped looking for the permission");
}

void ShellSession::checkWizardsPage(const WizardModel& expected, const Window::State& window) {
    const ui::Scene& scene = sim::Windows::sceneOf(window);
    const std::string status = expected.shownPage.status();
    require(status.empty() || shows(scene, status), "the wizard tells something else of the permission");
    require(shows(scene, "STEP 2 OF 2") == !expected.shownPage.isIntro, "the wizard shows the wrong page");
}

} // namespace kestrune::simulate
