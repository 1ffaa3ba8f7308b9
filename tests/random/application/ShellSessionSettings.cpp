// Settings, the login item and updates.
#include "platform/NotificationCenter.h"
#include "sim/services/WindowState.h"
#include "tests/random/application/ShellSession.h"
#include "tests/ui/SceneParts.h"

namespace kestrune::simulate {

namespace {

constexpr double FormWidth = 440;

} // namespace

void ShellSession::changeLoginItem(const LoginItemModel& item) {
    session_.user().setLoginItem(item.status);
    session_.user().requireLoginItemApproval(item.requiresApproval);
    session_.faults().refuseLoginItem(item.refusal);
    model_.changeLoginItem(item);
    check();
}

void ShellSession::changeUpdates(const sim::UpdateSupply& updates) {
    session_.updateSupply() = updates;
    model_.changeUpdates(updates);
    check();
}

void ShellSession::checkAsScheduled() {
    session_.checkForUpdatesAsScheduled();
    model_.checkAsScheduled();
    check();
}

void ShellSession::checkSettings(const ProcessModel& process) {
    const auto controller = app_ ? app_->settingsWindowController() : nullptr;
    require((controller != nullptr) == (process.settings != nullptr),
            "there is a Settings window although nobody wanted one, or it was not kept");
    observeSettings();
    if (!controller || !process.settings) {
        return;
    }
    require(controller->model()->launchAtLogin == process.settings->isOn,
            "Settings know another state of the login item than they should");
    require(settingsPublications_ == process.settings->publications,
            "Settings told their view of changes too often or too rarely");
}

// One for the life of the delegate. Counted from the moment at which it is there.
void ShellSession::observeSettings() {
    const auto controller = app_ ? app_->settingsWindowController() : nullptr;
    const auto& expected = model_.process()->settings;
    if (!controller || !expected) {
        return;
    }
    if (expected == expectedSettings_.lock()) {
        require(controller->model() == observedSettings_.lock(), "Settings were made a second time");
        return;
    }
    expectedSettings_ = expected;
    observedSettings_ = controller->model();
    settingsPublications_ = expected->publications;
    settingsObservation_ = controller->model()->observe([this] { ++settingsPublications_; });
}

void ShellSession::checkSettingsForm(const SettingsModel& expected, const Window::State& window) {
    const ui::Scene& scene = sim::Windows::sceneOf(window);
    const auto switches = ui::elementsOf<ui::ToggleElement>(scene);
    require(switches.size() == 1 && switches.front().isOn == expected.isShownOn,
            "the switch of Settings does not stand as it should");
    require(ui::shownTexts(scene) == model_.settingsTexts(), "Settings say something else than they should");
    require(scene.size.width == FormWidth, "Settings are not as wide as they should be");
}

void ShellSession::checkUpdates(const ProcessModel& process) {
    const std::size_t windowObservers = process.updates.isObserving ? 1 : 0;
    require(session_.observers().count(WindowDidBecomeKeyNotification) == windowObservers,
            "windows are observed when they should not be, more than once, or not when they should");
    require(session_.observers().count(ApplicationDidChangeScreenParametersNotification) == 1 &&
                session_.observers().count() == 1 + windowObservers,
            "not exactly one observer of the displays while the process runs");
    require(session_.updates().isShowingUpdate() == (process.updates.stage == UpdateStage::update) &&
                session_.updates().isShowingAlert() == (process.updates.stage == UpdateStage::alert),
            "the updater shows something else than it should");
}

void ShellSession::checkLoginItem() {
    require(session_.loginItem().status() == model_.loginItem().status,
            "the application is among the login items when it should not be, or not when it should");
}

} // namespace kestrune::simulate
