# Mistakes in the first-run wizard.
set(WIZARD FILE Kestrune/WelcomeWindowController.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(WizardAlwaysFloats ${WIZARD}
    FROM ": WindowLevel::normal" TO ": WindowLevel::floating")
kestrune_mutant(WizardNeverFloats ${WIZARD}
    FROM "? WindowLevel::floating" TO "? WindowLevel::normal")
kestrune_mutant(WizardFloatsOnTheWrongPage ${WIZARD}
    FROM "model_->currentStep < Step::accessibility" TO "model_->currentStep >= Step::accessibility")
kestrune_mutant(GoingOnKeepsTheLevel ${WIZARD}
    FROM "    model_->currentStep = Step::accessibility;
    applyWindowLevel();
" TO "    model_->currentStep = Step::accessibility;
")
kestrune_mutant(ShowingKeepsTheLevel ${WIZARD}
    FROM "    applyWindowLevel();
    runningApplication()" TO "    runningApplication()")
kestrune_mutant(IntroductionIsNeverSkipped ${WIZARD}
    FROM "model_->currentStep == Step::intro && !model_->isAccessibilityTrusted" TO "false")
kestrune_mutant(IntroductionIsAlwaysSkipped ${WIZARD}
    FROM "model_->currentStep == Step::intro && !model_->isAccessibilityTrusted"
    TO "model_->currentStep == Step::intro")
kestrune_mutant(IntroductionIsSkippedWithThePermission ${WIZARD}
    FROM "model_->currentStep == Step::intro && !model_->isAccessibilityTrusted"
    TO "model_->currentStep == Step::intro && model_->isAccessibilityTrusted")
kestrune_mutant(StepIsWrittenAgainAtEachShow ${WIZARD}
    FROM "model_->currentStep == Step::intro && !model_->isAccessibilityTrusted"
    TO "!model_->isAccessibilityTrusted")
kestrune_mutant(ShowingDoesNotLookAtThePermission ${WIZARD}
    FROM "void WelcomeWindowController::show() {
    model_->isAccessibilityTrusted = isProcessTrusted();
" TO "void WelcomeWindowController::show() {
")
kestrune_mutant(ShowingProbesForNothing ${WIZARD}
    FROM "    if (!isProcessTrusted()) {
        registerForAccessibilityList();" TO "    if (isProcessTrusted()) {
        registerForAccessibilityList();")
kestrune_mutant(ShowingStaysOutOfTheDock ${WIZARD}
    FROM "setActivationPolicy(ActivationPolicy::regular)"
    TO "setActivationPolicy(ActivationPolicy::accessory)")
kestrune_mutant(ShowingDoesNotActivate ${WIZARD}
    FROM "    runningApplication().activateIgnoringOtherApps(true);
" TO "")
kestrune_mutant(ShowingHidesTheWindow ${WIZARD}
    FROM "window().makeKeyAndOrderFront()" TO "window().orderOut()")
kestrune_mutant(ClosingRecordsTheEnd ${WIZARD}
    FROM "void WelcomeWindowController::windowWillClose() noexcept {
" TO "void WelcomeWindowController::windowWillClose() noexcept {
    preferences_->defaults().setBool(true, Preferences::HasCompletedOnboardingKey);
")
kestrune_mutant(ClosingFinishes ${WIZARD}
    FROM "void WelcomeWindowController::windowWillClose() noexcept {
" TO "void WelcomeWindowController::windowWillClose() noexcept {
    onFinished_();
")
kestrune_mutant(ClosingStopsThePolling ${WIZARD}
    FROM "void WelcomeWindowController::windowWillClose() noexcept {
" TO "void WelcomeWindowController::windowWillClose() noexcept {
    endAccessibilityWatcher();
")
kestrune_mutant(ClosingStaysInTheDock ${WIZARD}
    FROM "void WelcomeWindowController::windowWillClose() noexcept {
    runningApplication().setActivationPolicy(ActivationPolicy::accessory);
" TO "void WelcomeWindowController::windowWillClose() noexcept {
")
kestrune_mutant(FinishingRecordsNothing ${WIZARD}
    FROM "    preferences_->defaults().setBool(true, Preferences::HasCompletedOnboardingKey);
" TO "")
kestrune_mutant(FinishingStaysInTheDock ${WIZARD}
    FROM "    window().orderOut();
    runningApplication().setActivationPolicy(ActivationPolicy::accessory);
" TO "    window().orderOut();
")
kestrune_mutant(FinishingTellsNobody ${WIZARD}
    FROM "    onFinished_();
" TO "")
kestrune_mutant(PollingWritesAtEveryTick ${WIZARD}
    FROM "if (isTrusted != model_->isAccessibilityTrusted)" TO "if (true)")
kestrune_mutant(PollingWritesNothing ${WIZARD}
    FROM "if (isTrusted != model_->isAccessibilityTrusted)" TO "if (false)")
kestrune_mutant(PollingSeesGrantsAlone ${WIZARD}
    FROM "if (isTrusted != model_->isAccessibilityTrusted)"
    TO "if (isTrusted && !model_->isAccessibilityTrusted)")
kestrune_mutant(PollingEveryOtherSecond ${WIZARD}
    FROM "PollingInterval = 1.0" TO "PollingInterval = 2.0")
kestrune_mutant(PollingLooksOnce ${WIZARD}
    FROM "Timer::scheduledTimer(PollingInterval, true" TO "Timer::scheduledTimer(PollingInterval, false")
kestrune_mutant(WizardLeavesItsTimerBehind ${WIZARD}
    FROM "WelcomeWindowController::~WelcomeWindowController() { endAccessibilityWatcher(); }"
    TO "WelcomeWindowController::~WelcomeWindowController() {}")
kestrune_mutant(KeysDoNotMakeItLook ${WIZARD}
    FROM "void WelcomeWindowController::windowDidBecomeKey() noexcept {
    model_->isAccessibilityTrusted = isProcessTrusted();
" TO "void WelcomeWindowController::windowDidBecomeKey() noexcept {
")
kestrune_mutant(RequestIsNotRemembered ${WIZARD}
    FROM "    model_->hasRequestedPermission = true;
" TO "")
kestrune_mutant(RequestDoesNotAsk ${WIZARD}
    FROM "    isProcessTrustedWithOptions({.prompt = true});
" TO "")
kestrune_mutant(RequestTakesTheAnswer ${WIZARD}
    FROM "    isProcessTrustedWithOptions({.prompt = true});
" TO "    model_->isAccessibilityTrusted = isProcessTrustedWithOptions({.prompt = true});
")
kestrune_mutant(SettingsAreNotOpened ${WIZARD}
    FROM "[] { openAccessibilityPane(); }" TO "[] {}")
kestrune_mutant(WizardIsRetainedByItsActions ${WIZARD}
    FROM "model_->finish = whileAlive(weak_from_this(), [this] { finish(); });"
    TO "model_->finish = [strong = shared_from_this()] { strong->finish(); };")
kestrune_mutant(WindowDoesNotFollowItsPage ${WIZARD}
    FROM "HostingSizingOptions::preferredContentSize" TO "HostingSizingOptions::none")
kestrune_mutant(WizardStaysWhenItHasFinished ${DELEGATE}
    FROM "    welcomeWindowController_.reset();
" TO "")
kestrune_mutant(WizardIsMadeAnewAtEachRequest ${DELEGATE}
    FROM "if (!welcomeWindowController_)" TO "if (true)")

set(PAGES FILE Kestrune/WelcomeView.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(SettingsAreOfferedBeforeTheRequest ${PAGES}
    FROM "if (hasRequestedPermission && !isTrusted)" TO "if (!isTrusted)")
kestrune_mutant(SettingsAreOfferedAfterTheGrant ${PAGES}
    FROM "if (hasRequestedPermission && !isTrusted)" TO "if (hasRequestedPermission)")
kestrune_mutant(EndIsOfferedWithoutThePermission ${PAGES}
    FROM "    if (isTrusted) {
        buttons" TO "    if (!isTrusted) {
        buttons")
kestrune_mutant(ReturnDoesNotFinish ${PAGES}
    FROM "prominent(Button(\"Finish\", onFinish)).keyboardShortcut(ui::KeyboardShortcut::defaultAction)"
    TO "prominent(Button(\"Finish\", onFinish))")
kestrune_mutant(ReturnRequests ${PAGES}
    FROM "prominent(Button(\"Request permission\", onRequestPermissions))"
    TO "prominent(Button(\"Request permission\", onRequestPermissions))
            .keyboardShortcut(ui::KeyboardShortcut::defaultAction)")
kestrune_mutant(StatusIsAlwaysWaiting ${PAGES}
    FROM "        return Text(\"Permission granted\");"
    TO "        return Text(\"Waiting for permission…\");")
kestrune_mutant(IntroductionIsNumbered ${PAGES}
    FROM "currentStep == WelcomeViewModel::Step::intro) {
" TO "currentStep == WelcomeViewModel::Step::intro) {
        parts.push_back(stepCaption());
")
kestrune_mutant(SecondPageIsNotNumbered ${PAGES}
    FROM "        parts.push_back(stepCaption());
" TO "")
