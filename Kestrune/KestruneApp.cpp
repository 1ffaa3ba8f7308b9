#include "Kestrune/KestruneApp.h"

#include "Kestrune/AccessibilityList.h"
#include "Kestrune/ApplicationLog.h"
#include "Kestrune/FatalErrors.h"
#include "Kestrune/MainMenu.h"
#include "Kestrune/RunningApplication.h"
#include "Kestrune/UpdaterManager.h"
#include "Kestrune/WhileAlive.h"
#include "base/Fatal.h"
#include "platform/AccessibilityTrust.h"
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"

#include <utility>

namespace kestrune {

namespace {

constexpr double WatcherInterval = 1.0; // seconds

constexpr LogMessage SkippingWizard =
    LogMessage::of<"scheduleWelcomeDecision: skipping wizard, already onboarded">();

constexpr Selector MenuOpenSettings{"menuOpenSettings"};

constexpr ActionMethod MainMenuActions[] = {action<&KestruneApp::menuOpenSettings>(MenuOpenSettings)};

void requireMainActor(const char* message) {
    if (!MainActor::isCurrent()) {
        fatal(message);
    }
}

} // namespace

std::shared_ptr<KestruneApp> runKestrune() {
    reportFatalErrors();
    Application application = Application::sharedApplication();
    std::shared_ptr<KestruneApp> delegate = KestruneApp::make();
    application.setDelegate(delegate);
    application.setActivationPolicy(ActivationPolicy::accessory);
    application.run();
    return delegate;
}

std::shared_ptr<KestruneApp> KestruneApp::make() { return std::make_shared<KestruneApp>(Construction()); }

KestruneApp::KestruneApp(Construction)
    : preferences_(std::make_shared<Preferences>(UserDefaults::standardUserDefaults())),
      dockGuard_(std::make_shared<DockGuardController>()) {
    init();
}

std::span<const ActionMethod> KestruneApp::actionMethods() const { return MainMenuActions; }

void KestruneApp::applicationDidFinishLaunching() noexcept {
    installMainMenu();
    UpdaterManager::shared();
    menuBarController_ = makeMenuBarController();
    dockGuard_->setPreferences(preferences_);
    startGuardIfAllowed();
    rebuildMenu();
    menuBarController_->setOnAccessibilityGranted(
        whileAlive(weak_from_this(), [this] { accessibilityGranted(); }));
    if (!isProcessTrusted()) {
        registerForAccessibilityList();
        startAccessibilityWatcher();
    }
    scheduleWelcomeDecision();
    observeScreenParameters();
}

// Nothing is left for AppKit to do, whether a window is to be seen or not.
bool KestruneApp::applicationShouldHandleReopen(bool /*hasVisibleWindows*/) noexcept {
    menuOpenSettings();
    return false;
}

void KestruneApp::applicationWillTerminate() noexcept { dockGuard_->stop(); }

void KestruneApp::installMainMenu() {
    const Menu mainMenu = buildMainMenu(weak_from_this(), MenuOpenSettings);
    runningApplication().setMainMenu(mainMenu);
}

std::shared_ptr<MenuBarController> KestruneApp::makeMenuBarController() {
    MenuBarController::Openers openers;
    openers.openSettings = whileAlive(weak_from_this(), [this] { openSettingsWindow(); });
    openers.openWelcome = whileAlive(weak_from_this(), [this] { showWelcomeWindow(); });
    return MenuBarController::make(preferences_, dockGuard_, std::move(openers));
}

void KestruneApp::menuOpenSettings() {
    if (isSetupComplete()) {
        openSettingsWindow();
    } else {
        showWelcomeWindow();
    }
}

void KestruneApp::openSettingsWindow() {
    if (!settingsWindowController_) {
        settingsWindowController_ = SettingsWindowController::make();
    }
    settingsWindowController_->show();
}

void KestruneApp::showWelcomeWindow() {
    if (!welcomeWindowController_) {
        welcomeWindowController_ = WelcomeWindowController::make(
            preferences_, whileAlive(weak_from_this(), [this] { welcomeFinished(); }));
    }
    welcomeWindowController_->show();
}

bool KestruneApp::isSetupComplete() const {
    return preferences_->defaults().boolForKey(Preferences::HasCompletedOnboardingKey) && isProcessTrusted();
}

void KestruneApp::startGuardIfAllowed() {
    if (!preferences_->isEnabled() || dockGuard_->isRunning() || !isProcessTrusted()) {
        return;
    }
    dockGuard_->refreshScreens();
    dockGuard_->start();
}

void KestruneApp::startAccessibilityWatcher() {
    endAccessibilityWatcher();
    accessibilityWatcher_ =
        Timer::scheduledTimer(WatcherInterval, true, [weakThis = weak_from_this()](Timer& watcher) {
            requireMainActor("The Accessibility watcher has left the main thread.");
            if (const auto self = weakThis.lock()) {
                self->checkAccessibility(watcher);
            } else {
                watcher.invalidate();
            }
        });
}

void KestruneApp::checkAccessibility(Timer& watcher) {
    if (!isProcessTrusted()) {
        return;
    }
    watcher.invalidate();
    accessibilityWatcher_.reset();
    startGuardIfAllowed();
    rebuildMenu();
}

void KestruneApp::endAccessibilityWatcher() {
    if (accessibilityWatcher_) {
        accessibilityWatcher_->invalidate();
    }
    accessibilityWatcher_.reset();
}

void KestruneApp::accessibilityGranted() {
    startGuardIfAllowed();
    endAccessibilityWatcher();
}

void KestruneApp::welcomeFinished() {
    welcomeWindowController_.reset();
    startGuardIfAllowed();
    endAccessibilityWatcher();
    rebuildMenu();
}

void KestruneApp::scheduleWelcomeDecision() {
    MainActor::startTask(whileAlive(weak_from_this(), [this] { decideOnWelcome(); }));
}

// Whoever holds the permission already has no use for the wizard; whoever lost it sees the wizard again at
// every launch, whatever was completed before.
void KestruneApp::decideOnWelcome() {
    if (!isProcessTrusted()) {
        showWelcomeWindow();
        return;
    }
    preferences_->defaults().setBool(true, Preferences::HasCompletedOnboardingKey);
    applicationLog("app").debug(SkippingWizard);
}

void KestruneApp::observeScreenParameters() {
    // The token is dropped: the displays are followed as long as the process lives.
    NotificationCenter::defaultCenter().addObserver(
        ApplicationDidChangeScreenParametersNotification, OperationQueue::mainQueue(),
        [follow = whileAlive(weak_from_this(), [this] { screenParametersChanged(); })](const Notification&) {
            requireMainActor("A change of displays was announced outside the main thread.");
            follow();
        });
}

void KestruneApp::screenParametersChanged() {
    dockGuard_->refreshScreens();
    rebuildMenu();
}

void KestruneApp::rebuildMenu() {
    if (menuBarController_) {
        menuBarController_->rebuildMenu();
    }
}

} // namespace kestrune
