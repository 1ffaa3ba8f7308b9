# Mistakes in the application's delegate and in its menus.
set(DELEGATE FILE Kestrune/KestruneApp.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(StartsInTheDock ${DELEGATE}
    FROM "ActivationPolicy::accessory" TO "ActivationPolicy::regular")
kestrune_mutant(ReopeningOpensNothing ${DELEGATE}
    FROM "    menuOpenSettings();
    return false;" TO "    return false;")
kestrune_mutant(ReopeningOpensSettingsBeforeTheSetup ${DELEGATE}
    FROM "    menuOpenSettings();
    return false;" TO "    openSettingsWindow();
    return false;")
kestrune_mutant(StartsWhileSwitchedOff ${DELEGATE}
    FROM "!preferences_->isEnabled() || dockGuard_->isRunning()" TO "dockGuard_->isRunning()")
kestrune_mutant(StartsWhileRunning ${DELEGATE}
    FROM "!preferences_->isEnabled() || dockGuard_->isRunning()" TO "!preferences_->isEnabled()")
kestrune_mutant(StartsWithoutPermission ${DELEGATE}
    FROM "dockGuard_->isRunning() || !isProcessTrusted()" TO "dockGuard_->isRunning()")
kestrune_mutant(StartsBeforeItRefreshes ${DELEGATE}
    FROM "    dockGuard_->refreshScreens();
    dockGuard_->start();
" TO "    dockGuard_->start();
    dockGuard_->refreshScreens();
")
kestrune_mutant(StartsWithoutRefreshing ${DELEGATE}
    FROM "    dockGuard_->refreshScreens();
    dockGuard_->start();
" TO "    dockGuard_->start();
")
kestrune_mutant(LaunchDoesNotRebuild ${DELEGATE}
    FROM "    rebuildMenu();
    menuBarController_->setOnAccessibilityGranted" TO "    menuBarController_->setOnAccessibilityGranted")
kestrune_mutant(LaunchDoesNotAskForAPlaceInTheList ${DELEGATE}
    FROM "        registerForAccessibilityList();
" TO "")
kestrune_mutant(AlwaysPolls ${DELEGATE}
    FROM "    if (!isProcessTrusted()) {
        registerForAccessibilityList();" TO "    {
        registerForAccessibilityList();")
kestrune_mutant(PollsEveryOtherSecond ${DELEGATE}
    FROM "WatcherInterval = 1.0" TO "WatcherInterval = 2.0")
kestrune_mutant(PollsOnce ${DELEGATE}
    FROM "Timer::scheduledTimer(WatcherInterval, true" TO "Timer::scheduledTimer(WatcherInterval, false")
kestrune_mutant(TickKeepsTheTimer ${DELEGATE}
    FROM "    watcher.invalidate();
    accessibilityWatcher_.reset();" TO "    accessibilityWatcher_.reset();")
kestrune_mutant(TickKeepsTheField ${DELEGATE}
    FROM "    watcher.invalidate();
    accessibilityWatcher_.reset();" TO "    watcher.invalidate();")
kestrune_mutant(TickNeedsNoPermission ${DELEGATE}
    FROM "        return;
    }
    watcher.invalidate();" TO "    }
    watcher.invalidate();")
kestrune_mutant(TickDoesNotStart ${DELEGATE}
    FROM "    accessibilityWatcher_.reset();
    startGuardIfAllowed();
" TO "    accessibilityWatcher_.reset();
")
kestrune_mutant(TickDoesNotRebuild ${DELEGATE}
    FROM "    accessibilityWatcher_.reset();
    startGuardIfAllowed();
    rebuildMenu();
" TO "    accessibilityWatcher_.reset();
    startGuardIfAllowed();
")
kestrune_mutant(EndOfTheWatcherKeepsTheTimer ${DELEGATE}
    FROM "        accessibilityWatcher_->invalidate();
    }
    accessibilityWatcher_.reset();" TO "    }
    accessibilityWatcher_.reset();")
kestrune_mutant(EndOfTheWatcherKeepsTheField ${DELEGATE}
    FROM "        accessibilityWatcher_->invalidate();
    }
    accessibilityWatcher_.reset();" TO "        accessibilityWatcher_->invalidate();
    }")
kestrune_mutant(MenuDoesNotEndTheWatcher ${DELEGATE}
    FROM "    startGuardIfAllowed();
    endAccessibilityWatcher();
}" TO "    startGuardIfAllowed();
}")
kestrune_mutant(WizardDoesNotEndTheWatcher ${DELEGATE}
    FROM "    endAccessibilityWatcher();
    rebuildMenu();" TO "    rebuildMenu();")
kestrune_mutant(WizardDoesNotStart ${DELEGATE}
    FROM "    welcomeWindowController_.reset();
    startGuardIfAllowed();" TO "    welcomeWindowController_.reset();")
kestrune_mutant(WizardDoesNotRebuild ${DELEGATE}
    FROM "    endAccessibilityWatcher();
    rebuildMenu();" TO "    endAccessibilityWatcher();")
kestrune_mutant(FollowsDisplaysOnlyWhileRunning ${DELEGATE}
    FROM "    dockGuard_->refreshScreens();
    rebuildMenu();" TO "    if (dockGuard_->isRunning()) {
        dockGuard_->refreshScreens();
    }
    rebuildMenu();")
kestrune_mutant(FollowsDisplaysWithTheOldMenu ${DELEGATE}
    FROM "    dockGuard_->refreshScreens();
    rebuildMenu();" TO "    dockGuard_->refreshScreens();")
kestrune_mutant(DecisionReadsWhatWasCompleted ${DELEGATE}
    FROM "    if (!isProcessTrusted()) {
        showWelcomeWindow();" TO "    if (!isSetupComplete()) {
        showWelcomeWindow();")
kestrune_mutant(DecisionWritesNothing ${DELEGATE}
    FROM "    preferences_->defaults().setBool(true, Preferences::HasCompletedOnboardingKey);
" TO "")
kestrune_mutant(DecisionLogsAnError ${DELEGATE}
    FROM "applicationLog(\"app\").debug(" TO "applicationLog(\"app\").error(")
kestrune_mutant(GuardHasNoPreferences ${DELEGATE}
    FROM "    dockGuard_->setPreferences(preferences_);
" TO "")
kestrune_mutant(TerminationLeavesTheGuard ${DELEGATE}
    FROM "applicationWillTerminate() noexcept { dockGuard_->stop(); }"
    TO "applicationWillTerminate() noexcept {}")
kestrune_mutant(MenuRetainsTheDelegate ${DELEGATE}
    FROM "whileAlive(weak_from_this(), [this] { accessibilityGranted(); })"
    TO "[retained = shared_from_this()] { retained->accessibilityGranted(); }")
kestrune_mutant(DecisionRetainsTheDelegate ${DELEGATE}
    FROM "whileAlive(weak_from_this(), [this] { decideOnWelcome(); })"
    TO "[retained = shared_from_this()] { retained->decideOnWelcome(); }")
kestrune_mutant(TimerRetainsTheDelegate ${DELEGATE}
    FROM "[weakThis = weak_from_this()](Timer& watcher)"
    TO "[weakThis = weak_from_this(), retained = shared_from_this()](Timer& watcher)")
kestrune_mutant(TimerOutlivesTheDelegate ${DELEGATE}
    FROM "            } else {
                watcher.invalidate();
            }" TO "            }")
kestrune_mutant(ObserverRetainsTheDelegate ${DELEGATE}
    FROM "[follow = whileAlive(weak_from_this(), [this] { screenParametersChanged(); })]"
    TO "[follow = whileAlive(weak_from_this(), [this] { screenParametersChanged(); }),
         retained = shared_from_this()]")

set(MENU FILE Kestrune/MenuBarController.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(SetupNeedsOnlyThePermission ${MENU}
    FROM "isProcessTrusted() && preferences_->defaults().boolForKey(Preferences::HasCompletedOnboardingKey)"
    TO "isProcessTrusted()")
kestrune_mutant(SetupNeedsOnlyTheWizard ${MENU}
    FROM "return isProcessTrusted() && preferences_" TO "return preferences_")
kestrune_mutant(SetupNeedsEither ${MENU}
    FROM "return isProcessTrusted() && preferences_" TO "return isProcessTrusted() || preferences_")
kestrune_mutant(MarksTheMainDisplayBeforeTheChoice ${MENU}
    FROM "    if (std::optional<std::string> stored =" TO "    if (mainUUID) {
        return mainUUID;
    }
    if (std::optional<std::string> stored =")
kestrune_mutant(MarksTheFirstDisplayBeforeTheMainOne ${MENU}
    FROM "if (mainUUID || screens.empty())" TO "if (screens.empty())")
kestrune_mutant(MarksNoFirstDisplay ${MENU}
    FROM "return screens.front().uuid;" TO "return std::nullopt;")
kestrune_mutant(MarksWhatTheGuardPins ${MENU}
    FROM "preferences_->defaults().stringForKey(Preferences::PinnedScreenUUIDKey)"
    TO "dockGuard_->pinnedScreen() ? std::optional(dockGuard_->pinnedScreen()->uuid) : std::nullopt")
kestrune_mutant(MarkedDisplayIsCalledMain ${MENU}
    FROM "titleOf(screen, mainUUID == screen.uuid)" TO "titleOf(screen, markedUUID == screen.uuid)")
kestrune_mutant(MainIsNotTranslated ${MENU}
    FROM "localized(\"Main\")" TO "std::string(\"Main\")")
kestrune_mutant(SizesAreRounded ${MENU}
    FROM "static_cast<std::int64_t>(length)" TO "static_cast<std::int64_t>(length + 0.5)")
kestrune_mutant(HeightBeforeWidth ${MENU}
    FROM "wholePoints(screen.cgFrame.width()) + \"\\u00D7\" +
                        wholePoints(screen.cgFrame.height())"
    TO "wholePoints(screen.cgFrame.height()) + \"\\u00D7\" +
                        wholePoints(screen.cgFrame.width())")
kestrune_mutant(ItemsStandForNames ${MENU}
    FROM "item.setRepresentedObject(screen.uuid)" TO "item.setRepresentedObject(screen.localizedName)")
kestrune_mutant(DisplaysCanBeChosenBeforeSetup ${MENU}
    FROM "item.setEnabled(setupComplete)" TO "item.setEnabled(true)")
kestrune_mutant(ItemsAreEnabledAutomatically ${MENU}
    FROM "    menu.setAutoenablesItems(false);
" TO "")
kestrune_mutant(HeadingIsEnabled ${MENU}
    FROM "    heading.setEnabled(false);
" TO "")
kestrune_mutant(NoSeparatorAfterTheDisplays ${MENU}
    FROM "    menu.addItem(MenuItem::separatorItem());
    MenuItem toggle" TO "    MenuItem toggle")
kestrune_mutant(SwitchTitlesSwapped ${MENU}
    FROM "preferences_->isEnabled() ? \"Disable\" : \"Enable\""
    TO "preferences_->isEnabled() ? \"Enable\" : \"Disable\"")
kestrune_mutant(SwitchWorksBeforeSetup ${MENU}
    FROM "setupComplete ? ToggleEnabled : ShowWelcome" TO "ToggleEnabled")
kestrune_mutant(SettingsBeforeSetup ${MENU}
    FROM "setupComplete ? ShowSettings : ShowWelcome" TO "ShowSettings")
kestrune_mutant(OpeningDoesNotRebuild ${MENU}
    FROM "        onAccessibilityGranted_();
    }
    rebuildMenu();" TO "        onAccessibilityGranted_();
    }")
kestrune_mutant(OpeningNeedsNoPermission ${MENU}
    FROM "isProcessTrusted() && !dockGuard_->isRunning() && onAccessibilityGranted_"
    TO "!dockGuard_->isRunning() && onAccessibilityGranted_")
kestrune_mutant(OpeningNeverFindsThePermission ${MENU}
    FROM "        onAccessibilityGranted_();
" TO "")
kestrune_mutant(SwitchKeepsItsValue ${MENU}
    FROM "setBool(!preferences_->isEnabled()" TO "setBool(preferences_->isEnabled()")
kestrune_mutant(SwitchDoesNotStop ${MENU}
    FROM "        dockGuard_->stop();
" TO "")
kestrune_mutant(SwitchNeedsNoPermission ${MENU}
    FROM "!dockGuard_->isRunning() && isProcessTrusted())" TO "!dockGuard_->isRunning())")
kestrune_mutant(SwitchStartsWithoutRefreshing ${MENU}
    FROM "        dockGuard_->refreshScreens();
        dockGuard_->start();" TO "        dockGuard_->start();")
kestrune_mutant(ChoiceDoesNotRefresh ${MENU}
    FROM "    dockGuard_->refreshScreens();
    rebuildMenu();" TO "    rebuildMenu();")
kestrune_mutant(ChoiceDoesNotRebuild ${MENU}
    FROM "    dockGuard_->refreshScreens();
    rebuildMenu();" TO "    dockGuard_->refreshScreens();")
kestrune_mutant(ChoiceRestartsTheTap ${MENU}
    FROM "    dockGuard_->refreshScreens();
    rebuildMenu();" TO "    dockGuard_->refreshScreens();
    if (dockGuard_->isRunning()) {
        dockGuard_->stop();
        dockGuard_->start();
    }
    rebuildMenu();")

kestrune_mutant(QuitDoesNotQuit ${MENU}
    FROM "runningApplication().terminate();" TO "")

set(MAIN_MENU FILE Kestrune/MainMenu.cpp DRIVER kestrune_shell_driver SEEDS 400)

kestrune_mutant(RedoOnTheKeyOfUndo ${MAIN_MENU}
    FROM "EventModifierFlags::shift | EventModifierFlags::command" TO "EventModifierFlags::command")
kestrune_mutant(EditIsTranslated ${MAIN_MENU}
    FROM "Menu menu(\"Edit\")" TO "Menu menu(localized(\"Edit\"))")
