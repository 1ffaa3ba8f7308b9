# Mistakes in Settings, the login item, updates and the mail of a bug report.
set(LOGIN_ITEM FILE Kestrune/LaunchAtLogin.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(ApprovalCountsAsOn ${LOGIN_ITEM}
    FROM "service.status() == AppServiceStatus::enabled"
    TO "service.status() != AppServiceStatus::notRegistered")
kestrune_mutant(LoginItemIsAlwaysChanged ${LOGIN_ITEM}
    FROM "    if (isEnabled(service) == isWanted) {
        return true;
    }
" TO "")
kestrune_mutant(LoginItemIsChangedTheOtherWay ${LOGIN_ITEM}
    FROM "isWanted ? service.registerAndReturnError() : service.unregisterAndReturnError()"
    TO "isWanted ? service.unregisterAndReturnError() : service.registerAndReturnError()")
kestrune_mutant(PendingLoginItemIsUnregistered ${LOGIN_ITEM}
    FROM "isEnabled(service) == isWanted)"
    TO "isEnabled(service) == isWanted && service.status() != AppServiceStatus::requiresApproval)")
kestrune_mutant(LoginItemFailsInSilence ${LOGIN_ITEM}
    FROM "        applicationLog(\"loginItem\").error(ToggleFailed, error->localizedDescription);
" TO "")
kestrune_mutant(LoginItemIsLoggedElsewhere ${LOGIN_ITEM}
    FROM "applicationLog(\"loginItem\")" TO "applicationLog(\"app\")")

set(SETTINGS_MODEL FILE Kestrune/SettingsViewModel.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(LoginSwitchTellsNobody ${SETTINGS_MODEL}
    FROM "        model_.onLaunchAtLoginChanged(isOn_);
" TO "")
kestrune_mutant(LoginSwitchTellsTheOldState ${SETTINGS_MODEL}
    FROM "    isOn_ = isOn;
    if (model_.onLaunchAtLoginChanged) {
        model_.onLaunchAtLoginChanged(isOn_);
    }" TO "    const bool before = isOn_;
    isOn_ = isOn;
    if (model_.onLaunchAtLoginChanged) {
        model_.onLaunchAtLoginChanged(before);
    }")
kestrune_mutant(LoginSwitchIsNotStored ${SETTINGS_MODEL}
    FROM "    isOn_ = isOn;
    if (model_.onLaunchAtLoginChanged) {
        model_.onLaunchAtLoginChanged(isOn_);" TO "    if (model_.onLaunchAtLoginChanged) {
        model_.onLaunchAtLoginChanged(isOn);")
kestrune_mutant(LoginSwitchPublishesOnlyChanges ${SETTINGS_MODEL}
    FROM "    isOn_ = isOn;
" TO "    if (isOn_ != isOn) {
        isOn_ = isOn;
    }
")

set(SETTINGS_VIEW FILE Kestrune/SettingsView.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(LoginSwitchFlipsTheOtherWay ${SETTINGS_VIEW}
    FROM "shown->launchAtLogin = isOn;" TO "shown->launchAtLogin = !isOn;")
kestrune_mutant(SettingsHaveTheirButtonsInTheOtherOrder ${SETTINGS_VIEW}
    FROM "maintenance.push_back(Button(\"Report a Bug…\""
    TO "maintenance.insert(maintenance.begin(), Button(\"Report a Bug…\"")
kestrune_mutant(BothButtonsReportABug ${SETTINGS_VIEW}
    FROM "shown->checkForUpdates();" TO "shown->reportBug();")
kestrune_mutant(ButtonEndsInFullStops ${SETTINGS_VIEW}
    FROM "Check for Updates…" TO "Check for Updates...")
kestrune_mutant(FooterIsNotTranslated ${SETTINGS_VIEW}
    FROM "ui::Text(\"Kestrune %@\", std::vector<std::string>(1, appVersionString()))"
    TO "ui::VerbatimText(\"Kestrune \" + appVersionString())")
kestrune_mutant(FooterHasNoCopyright ${SETTINGS_VIEW}
    FROM "    if (copyright) {" TO "    if (copyright && copyright->empty()) {")
kestrune_mutant(SettingsAreTooNarrow ${SETTINGS_VIEW}
    FROM "FormWidth = 440" TO "FormWidth = 420")

set(VERSION FILE Kestrune/AppVersion.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(VersionIsTheBuild ${VERSION}
    FROM "\"CFBundleShortVersionString\"" TO "\"CFBundleVersion\"")
kestrune_mutant(MissingBuildIsEmpty ${VERSION}
    FROM "(\"CFBundleVersion\").value_or(\"?\")" TO "(\"CFBundleVersion\").value_or(\"\")")

set(SETTINGS_WINDOW FILE Kestrune/SettingsWindowController.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(LoginSwitchIsReadOnce ${SETTINGS_WINDOW}
    FROM "    model_->launchAtLogin = isLaunchedAtLogin();
" TO "")
kestrune_mutant(SettingsBeginSwitchedOff ${SETTINGS_WINDOW}
    FROM "std::make_shared<SettingsViewModel>(isLaunchedAtLogin()"
    TO "std::make_shared<SettingsViewModel>(false")
kestrune_mutant(SettingsOpenWithoutADockIcon ${SETTINGS_WINDOW}
    FROM "    runningApplication().setActivationPolicy(ActivationPolicy::regular);
" TO "")
kestrune_mutant(SettingsStayHidden ${SETTINGS_WINDOW}
    FROM "    window().makeKeyAndOrderFront();
" TO "")
kestrune_mutant(SettingsDoNotActivate ${SETTINGS_WINDOW}
    FROM "    window().makeKeyAndOrderFront();
    runningApplication().activateIgnoringOtherApps(true);
" TO "    window().makeKeyAndOrderFront();
")
kestrune_mutant(ClosedSettingsKeepTheDockIcon ${SETTINGS_WINDOW}
    FROM "ActivationPolicy::accessory" TO "ActivationPolicy::regular")
kestrune_mutant(SettingsDoNotHearOfTheirClosing ${SETTINGS_WINDOW}
    FROM "    window().setDelegate(weak_from_this());
" TO "")
kestrune_mutant(SettingsHaveAnUntranslatedTitle ${SETTINGS_WINDOW}
    FROM "localized(\"Kestrune Settings\")" TO "\"Kestrune Settings\"")
kestrune_mutant(SettingsRetainThemselves ${SETTINGS_WINDOW}
    FROM "whileAlive(weak_from_this(), reportBug)" TO "[retained = shared_from_this()] { reportBug(); }")
kestrune_mutant(CheckDoesNotObserve ${SETTINGS_WINDOW}
    FROM "    manager->startWindowObserver();
" TO "")
kestrune_mutant(CheckDoesNotActivate ${SETTINGS_WINDOW}
    FROM "    manager->startWindowObserver();
    runningApplication().activateIgnoringOtherApps(true);
" TO "    manager->startWindowObserver();
")
kestrune_mutant(CheckIsNotMade ${SETTINGS_WINDOW}
    FROM "    manager->updater()->checkForUpdates();
" TO "")
kestrune_mutant(CheckRaisesTooEarly ${SETTINGS_WINDOW}
    FROM "UntilUpdaterShows = 300ms" TO "UntilUpdaterShows = 100ms")
kestrune_mutant(CheckRaisesNothing ${SETTINGS_WINDOW}
    FROM "            stillThere->raiseUpdaterWindows();
" TO "")

set(UPDATER FILE Kestrune/UpdaterManager.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(UpdatesAreDownloaded ${UPDATER}
    FROM "setAutomaticallyDownloadsUpdates(false)" TO "setAutomaticallyDownloadsUpdates(true)")
kestrune_mutant(FailedUpdaterIsKept ${UPDATER}
    FROM "    const std::optional<Error> error = updater.startUpdater();
" TO "    updater_ = updater;
    const std::optional<Error> error = updater.startUpdater();
")
kestrune_mutant(FailedUpdaterIsNotLogged ${UPDATER}
    FROM "        applicationLog(\"updater\").error(InitFailed, error->localizedDescription);
" TO "")
kestrune_mutant(MissingFeedIsLoggedAsNothing ${UPDATER}
    FROM "value_or(\"NOT SET\")" TO "value_or(\"\")")
kestrune_mutant(WindowsAreObservedTwice ${UPDATER}
    FROM "    stopWindowObserver();
    windowObserver_ =" TO "    windowObserver_ =")
kestrune_mutant(ObserverOutlivesTheSession ${UPDATER}
    FROM "    stopWindowObserver();
    if (savedActivationPolicy_) {" TO "    if (savedActivationPolicy_) {")
kestrune_mutant(TitlesDoNotCount ${UPDATER}
    FROM "isOfUpdatersClass(*window) || hasUpdatersTitle(*window)" TO "isOfUpdatersClass(*window)")
kestrune_mutant(TitleOfTheStatusWindowCounts ${UPDATER}
    FROM "contains(title, \"Update\")" TO "contains(title, \"Updat\")")
kestrune_mutant(ClassesDoNotCount ${UPDATER}
    FROM "isOfUpdatersClass(*window) || hasUpdatersTitle(*window)" TO "hasUpdatersTitle(*window)")
kestrune_mutant(OnlyOnePartOfAClassCounts ${UPDATER}
    FROM "contains(type, \"SPU\") || contains(type, \"Sparkle\")" TO "contains(type, \"SPU\")")
kestrune_mutant(WindowsAreRaisedByTheirTitle ${UPDATER}
    FROM "        if (isOfUpdatersClass(window)) {"
    TO "        if (isOfUpdatersClass(window) || hasUpdatersTitle(window)) {")
kestrune_mutant(UpdatersWindowsHide ${UPDATER}
    FROM "    window.setHidesOnDeactivate(false);
" TO "")
kestrune_mutant(RaisingDoesNotActivate ${UPDATER}
    FROM "        }
    }
    application.activateIgnoringOtherApps(true);
" TO "        }
    }
")
kestrune_mutant(UpdateIsShownWithoutADockIcon ${UPDATER}
    FROM "    application.setActivationPolicy(ActivationPolicy::regular);
" TO "")
kestrune_mutant(UpdateDoesNotActivate ${UPDATER}
    FROM "    application.setActivationPolicy(ActivationPolicy::regular);
    application.activateIgnoringOtherApps(true);
" TO "    application.setActivationPolicy(ActivationPolicy::regular);
")
kestrune_mutant(UpdateIsNotObserved ${UPDATER}
    FROM "    startWindowObserver();
    Application application" TO "    Application application")
kestrune_mutant(PolicyIsSavedAgain ${UPDATER}
    FROM "    if (!savedActivationPolicy_) {
        savedActivationPolicy_ = application.activationPolicy();
    }
" TO "    savedActivationPolicy_ = application.activationPolicy();
")
kestrune_mutant(PolicyIsNotForgotten ${UPDATER}
    FROM "        savedActivationPolicy_.reset();
" TO "")
kestrune_mutant(PolicyIsAlwaysAccessory ${UPDATER}
    FROM "setActivationPolicy(*savedActivationPolicy_)" TO "setActivationPolicy(ActivationPolicy::accessory)")
kestrune_mutant(SessionEndsAtOnce ${UPDATER}
    FROM "startTask([this] { endSession(); });" TO "endSession();")
# One of the two alone is enough: both tasks wait until the alert is closed.
kestrune_mutant(NothingIsRaisedAroundAnAlert ${UPDATER}
    FROM "standardUserDriverWillShowModalAlert() noexcept {
    startTask([this] { raiseUpdaterWindows(); });
}

void UpdaterManager::standardUserDriverDidShowModalAlert() noexcept {
    startTask([this] { raiseUpdaterWindows(); });
}" TO "standardUserDriverWillShowModalAlert() noexcept {}

void UpdaterManager::standardUserDriverDidShowModalAlert() noexcept {}")

set(BUG_REPORT FILE Kestrune/BugReport.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(MailHasItsPartsInTheOtherOrder ${BUG_REPORT}
    FROM "    items.push_back({\"subject\", localized(\"Kestrune bug report\")});
    items.push_back({\"body\", bugReportBody()});
" TO "    items.push_back({\"body\", bugReportBody()});
    items.push_back({\"subject\", localized(\"Kestrune bug report\")});
")
kestrune_mutant(MailIsToNobody ${BUG_REPORT}
    FROM "    components.setPath(SupportAddress);
" TO "")
kestrune_mutant(MailHasLittleRoom ${BUG_REPORT}
    FROM "\"\\n\\n\\n---\\nApp version: \"" TO "\"\\n\\n---\\nApp version: \"")
kestrune_mutant(MailAsksInEnglishOnly ${BUG_REPORT}
    FROM "localized(\"Describe what went wrong:\")" TO "\"Describe what went wrong:\"")
kestrune_mutant(MailLeavesOutThePatch ${BUG_REPORT}
    FROM "std::to_string(version.minorVersion) + \".\" +
           std::to_string(version.patchVersion)" TO "std::to_string(version.minorVersion)")
kestrune_mutant(MailEndsWithALineFeed ${BUG_REPORT}
    FROM "Locale::currentLocale().localeIdentifier();"
    TO "Locale::currentLocale().localeIdentifier() + \"\\n\";")

set(OPENERS FILE Kestrune/KestruneApp.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(UpdaterIsNotStartedAtLaunch ${OPENERS}
    FROM "    UpdaterManager::shared();
" TO "")
kestrune_mutant(SettingsAreMadeAnew ${OPENERS}
    FROM "    if (!settingsWindowController_) {
        settingsWindowController_ = SettingsWindowController::make();
    }
" TO "    settingsWindowController_ = SettingsWindowController::make();
")
kestrune_mutant(SettingsDoNotWaitForTheSetup ${OPENERS}
    FROM "    if (isSetupComplete()) {
        openSettingsWindow();" TO "    {
        openSettingsWindow();
        return;
    }
    if (isSetupComplete()) {
        openSettingsWindow();")
kestrune_mutant(WizardInsteadOfSettings ${OPENERS}
    FROM "[this] { openSettingsWindow(); }" TO "[this] { showWelcomeWindow(); }")
