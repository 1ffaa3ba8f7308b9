#include "Kestrune/SettingsWindowController.h"

#include "Kestrune/BugReport.h"
#include "Kestrune/LaunchAtLogin.h"
#include "Kestrune/Localized.h"
#include "Kestrune/RunningApplication.h"
#include "Kestrune/SettingsView.h"
#include "Kestrune/UpdaterManager.h"
#include "Kestrune/WhileAlive.h"
#include "platform/Hosting.h"
#include "platform/MainActor.h"
#include "platform/Workspace.h"

#include <chrono>

namespace kestrune {

namespace {

using namespace std::chrono_literals;

// What the updater needs until its window is there.
constexpr std::chrono::milliseconds UntilUpdaterShows = 300ms;

Window makeSettingsWindow() {
    // Until the form has said how large it is.
    constexpr Rect Content(0, 0, 420, 360);
    constexpr WindowStyleMask Style =
        WindowStyleMask::titled | WindowStyleMask::closable | WindowStyleMask::miniaturizable;
    Window window(Content, Style, BackingStoreType::buffered, false);
    window.setTitle(localized("Kestrune Settings"));
    window.setReleasedWhenClosed(false);
    window.center();
    return window;
}

void checkForUpdates() {
    const std::shared_ptr<UpdaterManager> manager = UpdaterManager::shared();
    if (!manager->updater()) {
        return;
    }
    manager->startWindowObserver();
    runningApplication().activateIgnoringOtherApps(true);
    manager->updater()->checkForUpdates();
    MainActor::startTask(UntilUpdaterShows, [weakManager = std::weak_ptr(manager)] {
        runningApplication().activateIgnoringOtherApps(true);
        if (const auto stillThere = weakManager.lock()) {
            stillThere->raiseUpdaterWindows();
        }
    });
}

void reportBug() {
    const URL link = makeBugReportURL();
    Workspace::sharedWorkspace().openURL(link);
}

} // namespace

std::shared_ptr<SettingsWindowController> SettingsWindowController::make() {
    auto controller = std::make_shared<SettingsWindowController>(Construction());
    controller->installActions();
    controller->hostView();
    return controller;
}

SettingsWindowController::SettingsWindowController(Construction)
    : model_(std::make_shared<SettingsViewModel>(isLaunchedAtLogin(), setLaunchAtLogin)) {
    initWithWindow(makeSettingsWindow());
}

void SettingsWindowController::installActions() {
    model_->checkForUpdates = whileAlive(weak_from_this(), checkForUpdates);
    model_->reportBug = whileAlive(weak_from_this(), reportBug);
}

void SettingsWindowController::hostView() {
    window().setContentView(HostingView({[view = SettingsView{model_}] { return view.body(); }, model_}));
    window().setDelegate(weak_from_this());
}

void SettingsWindowController::show() {
    model_->launchAtLogin = isLaunchedAtLogin();
    runningApplication().setActivationPolicy(ActivationPolicy::regular);
    window().makeKeyAndOrderFront();
    runningApplication().activateIgnoringOtherApps(true);
}

// Also from an application that was regular before.
void SettingsWindowController::windowWillClose() noexcept {
    runningApplication().setActivationPolicy(ActivationPolicy::accessory);
}

} // namespace kestrune
