// The user at the wizard and at what the system shows beside it.
#include "sim/WindowState.h"
#include "tests/shell/ShellSession.h"
#include "tests/ui/SceneParts.h"

#include <algorithm>

namespace kestrune::simulate {

namespace {

bool shows(const ui::Scene& scene, const std::string& text) {
    const std::vector<std::string> texts = ui::shownTexts(scene);
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

} // namespace

std::shared_ptr<Window::State> ShellSession::shownWindow() {
    const auto windows = session_.windows().shown();
    return windows.empty() ? nullptr : windows.front();
}

void ShellSession::pressWizardButton(std::size_t index) {
    require(model_.pressWizardButton(index) == pressButtonOfWindow(index),
            "the wizard has not the buttons that it should have");
    check();
}

bool ShellSession::pressButtonOfWindow(std::size_t index) {
    const auto window = shownWindow();
    const std::vector<std::size_t> buttons =
        window ? ui::placesOf<ui::ButtonElement>(sim::Windows::sceneOf(*window)) : std::vector<std::size_t>();
    if (index >= buttons.size()) {
        return false;
    }
    session_.windows().click(window);
    session_.windows().pressButton(window, buttons[index]);
    return true;
}

void ShellSession::pressReturn() {
    const bool isPressed = session_.windows().press(ui::KeyboardShortcut::defaultAction);
    require(model_.pressReturn() == isPressed, "Return pressed a button that it should not press, or none");
    check();
}

void ShellSession::clickWizard() {
    if (const auto window = shownWindow()) {
        session_.windows().click(window);
    }
    model_.clickWizard();
    check();
}

void ShellSession::closeWizard() {
    if (const auto window = shownWindow()) {
        session_.windows().closeByUser(window);
    }
    model_.closeWizard();
    check();
}

void ShellSession::openSettingsFromDialog() {
    if (session_.accessibility().isDialogShown()) {
        session_.accessibility().openSettingsFromDialog();
    }
    model_.openSettingsFromDialog();
    check();
}

void ShellSession::denyInDialog() {
    if (session_.accessibility().isDialogShown()) {
        session_.accessibility().denyInDialog();
    }
    model_.denyInDialog();
    check();
}

void ShellSession::closePane() {
    if (session_.accessibility().isPaneShown()) {
        session_.accessibility().closePane();
    }
    model_.closePane();
    check();
}

void ShellSession::refuseActivation(bool refuse) {
    session_.refuseActivation(refuse);
    model_.refuseActivation(refuse);
}

void ShellSession::checkDesktop() {
    const DesktopModel& desktop = model_.desktop();
    require(session_.accessibility().isDialogShown() == desktop.isDialogShown,
            "the user was asked for the permission by nobody's wish, or not asked");
    require(session_.accessibility().isPaneShown() == desktop.isPaneShown,
            "the user was led to System Settings by nobody's wish, or not led there");
    require(session_.openedURLs().size() == desktop.openedURLs, "another number of URLs was opened");
}

void ShellSession::checkWizard(const ProcessModel& process) {
    require(!app_ || (app_->welcomeWindowController() != nullptr) == process.wizard.has_value(),
            "the wizard is kept although it has finished, or gone although it has not");
    observePublications();
    const bool isVisible = process.wizard && process.wizard->isVisible;
    require(session_.windows().shown().size() == (isVisible ? 1U : 0U),
            isVisible ? "the wizard is not to be seen" : "a window is to be seen");
    require((session_.windows().keyWindow() != nullptr) == (isVisible && process.isActive),
            "the wizard has the keys when it should not, or not when it should");
    if (process.wizard && app_ && app_->welcomeWindowController()) {
        checkWizardsModel(*process.wizard, *app_->welcomeWindowController());
    }
    if (const auto window = shownWindow(); window && isVisible) {
        checkWizardsWindow(*process.wizard, *window);
    }
}

// Counted from the moment at which the wizard is there, with what its making has published before.
void ShellSession::observePublications() {
    const auto wizard = app_ ? app_->welcomeWindowController() : nullptr;
    const auto model = wizard ? wizard->model() : nullptr;
    if (model == observedModel_.lock()) {
        return;
    }
    observedModel_ = model;
    observation_ = {};
    if (model && model_.process() && model_.process()->wizard) {
        publications_ = model_.process()->wizard->publications;
        observation_ = model->observe([this] { ++publications_; });
    }
}

void ShellSession::checkWizardsModel(const WizardModel& expected, const WelcomeWindowController& controller) {
    const WelcomeViewModel& model = *controller.model();
    const WizardPage page{model.currentStep == WelcomeViewModel::Step::intro, model.isAccessibilityTrusted,
                          model.hasRequestedPermission};
    require(page == expected.page, "the wizard knows another step or permission than it should");
    require(publications_ == expected.publications,
            "the wizard told its view of changes too often or too rarely");
    require(controller.isWatchingAccessibility(), "the wizard has stopped looking for the permission");
}

void ShellSession::checkWizardsWindow(const WizardModel& expected, const Window::State& window) {
    require((window.level == WindowLevel::floating) == expected.isFloating,
            "the wizard is on the wrong level");
    const ui::Scene& scene = sim::Windows::sceneOf(window);
    require(ui::buttonTitles(scene) == expected.shownPage.buttons(), "the wizard shows the wrong buttons");
    const std::string status = expected.shownPage.status();
    require(status.empty() || shows(scene, status), "the wizard tells something else of the permission");
    require(shows(scene, "STEP 2 OF 2") == !expected.shownPage.isIntro, "the wizard shows the wrong page");
    require(window.contentRect().size == scene.size, "the window is not as large as the wizard's page");
}

} // namespace kestrune::simulate
