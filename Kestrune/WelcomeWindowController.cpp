#include "Kestrune/WelcomeWindowController.h"

#include "Kestrune/AccessibilityList.h"
#include "Kestrune/AccessibilityPane.h"
#include "Kestrune/Localized.h"
#include "Kestrune/RunningApplication.h"
#include "Kestrune/WelcomeView.h"
#include "Kestrune/WhileAlive.h"
#include "platform/AccessibilityTrust.h"
#include "platform/Hosting.h"

#include <utility>

namespace kestrune {

namespace {

using Step = WelcomeViewModel::Step;

constexpr double PollingInterval = 1.0; // seconds
constexpr double ContentWidth = 460;    // points
constexpr double InitialHeight = 200;   // until the view has said how high it is

Window makeWindow() {
    constexpr Rect Content(0, 0, ContentWidth, InitialHeight);
    constexpr WindowStyleMask Style = WindowStyleMask::titled | WindowStyleMask::closable;
    Window window(Content, Style, BackingStoreType::buffered, false);
    window.setTitle(localized("Welcome to Kestrune"));
    window.setReleasedWhenClosed(false);
    window.setLevel(WindowLevel::floating);
    window.setHidesOnDeactivate(false);
    window.setCollectionBehavior(WindowCollectionBehavior::canJoinAllSpaces |
                                 WindowCollectionBehavior::fullScreenAuxiliary);
    window.center();
    return window;
}

} // namespace

std::shared_ptr<WelcomeWindowController>
WelcomeWindowController::make(std::shared_ptr<Preferences> preferences, std::function<void()> onFinished) {
    auto controller = std::make_shared<WelcomeWindowController>(Construction(), std::move(preferences),
                                                                std::move(onFinished));
    controller->installActions();
    controller->hostView();
    controller->startAccessibilityWatcher();
    return controller;
}

WelcomeWindowController::WelcomeWindowController(Construction, std::shared_ptr<Preferences> preferences,
                                                 std::function<void()> onFinished)
    : model_(std::make_shared<WelcomeViewModel>(Step::intro, isProcessTrusted())),
      preferences_(std::move(preferences)),
      onFinished_(std::move(onFinished)) {
    initWithWindow(makeWindow());
}

WelcomeWindowController::~WelcomeWindowController() { endAccessibilityWatcher(); }

void WelcomeWindowController::installActions() {
    model_->advanceFromIntro = whileAlive(weak_from_this(), [this] { advanceFromIntro(); });
    model_->requestPermissions = whileAlive(weak_from_this(), [this] { requestPermissions(); });
    model_->openAccessibilitySettings = whileAlive(weak_from_this(), [] { openAccessibilityPane(); });
    model_->finish = whileAlive(weak_from_this(), [this] { finish(); });
}

void WelcomeWindowController::hostView() {
    HostingController hosting({[view = WelcomeView{model_, ContentWidth}] { return view.body(); }, model_});
    hosting.setSizingOptions(HostingSizingOptions::preferredContentSize);
    window().setContentViewController(hosting);
    window().setDelegate(weak_from_this());
}

void WelcomeWindowController::startAccessibilityWatcher() {
    endAccessibilityWatcher();
    const auto check = whileAlive(weak_from_this(), [this] { checkAccessibility(); });
    accessibilityWatcher_ = Timer::scheduledTimer(PollingInterval, true, [check](Timer&) { check(); });
}

void WelcomeWindowController::endAccessibilityWatcher() {
    if (auto watcher = std::exchange(accessibilityWatcher_, std::nullopt)) {
        watcher->invalidate();
    }
}

// Writes only what is new, so that the view is not laid out again every second.
void WelcomeWindowController::checkAccessibility() {
    const bool isTrusted = isProcessTrusted();
    if (isTrusted != model_->isAccessibilityTrusted) {
        model_->isAccessibilityTrusted = isTrusted;
    }
}

void WelcomeWindowController::advanceFromIntro() {
    model_->currentStep = Step::accessibility;
    applyWindowLevel();
}

// The system answers through a dialog of its own, some time later: the timer sees what came of it.
void WelcomeWindowController::requestPermissions() {
    model_->hasRequestedPermission = true;
    isProcessTrustedWithOptions({.prompt = true});
}

void WelcomeWindowController::applyWindowLevel() {
    window().setLevel(model_->currentStep < Step::accessibility ? WindowLevel::floating
                                                                : WindowLevel::normal);
}

void WelcomeWindowController::show() {
    model_->isAccessibilityTrusted = isProcessTrusted();
    if (model_->currentStep == Step::intro && !model_->isAccessibilityTrusted) {
        model_->currentStep = Step::accessibility;
    }
    if (!isProcessTrusted()) {
        registerForAccessibilityList();
    }
    applyWindowLevel();
    runningApplication().setActivationPolicy(ActivationPolicy::regular);
    window().makeKeyAndOrderFront();
    runningApplication().activateIgnoringOtherApps(true);
}

void WelcomeWindowController::finish() {
    preferences_->defaults().setBool(true, Preferences::HasCompletedOnboardingKey);
    endAccessibilityWatcher();
    window().orderOut();
    runningApplication().setActivationPolicy(ActivationPolicy::accessory);
    onFinished_();
}

void WelcomeWindowController::windowDidBecomeKey() noexcept {
    model_->isAccessibilityTrusted = isProcessTrusted();
}

void WelcomeWindowController::windowWillClose() noexcept {
    runningApplication().setActivationPolicy(ActivationPolicy::accessory);
}

} // namespace kestrune
