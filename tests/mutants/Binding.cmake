# Mistakes in the binding to the platform, beside its views.
set(CONTRACT DRIVER contract_tests_gnustep_driver kestrune_contract kestrune_harness kestrune_standins)
set(SELF_CHECK DRIVER selfcheck_tests_gnustep_driver kestrune_harness kestrune_standins)
set(APPLICATION DRIVER application_tests_gnustep_driver kestrune_kestrune kestrune_harness kestrune_standins)
set(VIEWS DRIVER window_tests_gnustep_driver kestrune_harness kestrune_standins)

kestrune_mutant(MissingImageIsThere FILE mac/Image.cpp ${CONTRACT}
    TEST ImageContract.IsAbsentWhenTheBundleHasNoneOfThatName
    FROM "image == nullptr" TO "false")

set(SLEEP FILE mac/MainActor.cpp ${CONTRACT})
kestrune_mutant(SleepEndsAtOnce ${SLEEP} TEST SleepingTaskContract.WorksWhenItHasSleptAndNotBefore
    FROM "delay.count()" TO "0")

set(ENCODING FILE mac/vocabulary/TypeEncoding.cpp ${SELF_CHECK} TEST TypeEncoding.GivesEveryScalarOneLetter)
kestrune_mutant(LongStaysLong ${ENCODING} FROM "return \"q\";" TO "return \"l\";")
kestrune_mutant(UnsignedLongIsSigned ${ENCODING} FROM "return \"Q\";" TO "return \"q\";")
kestrune_mutant(CharacterIsNoTruthValue ${ENCODING} FROM "return \"B\";" TO "return \"c\";")
kestrune_mutant(UnsignedCharacterIsNoTruthValue ${ENCODING} FROM "        case 'C':
" TO "")

set(WINDOW_IS_KEPT HostedViewOnGNUstep.KeepsAWindowThatItsOwnButtonLetsGoOfUntilTheTurnIsOver)
kestrune_mutant(NothingIsKeptForThisTurn FILE mac/objc/Lifetime.cpp ${VIEWS} TEST ${WINDOW_IS_KEPT}
    FROM "    foundation.object.performSelector(object, foundation.object.self.selector(), nullptr, 0);
" TO "")
kestrune_mutant(WindowIsNotKeptForThisTurn FILE mac/hosting/HostedView.cpp ${VIEWS} TEST ${WINDOW_IS_KEPT}
    FROM "    keepForThisTurn(appKit.view.window(view));
" TO "")
kestrune_mutant(RemovedViewIsNotKeptForThisTurn FILE mac/hosting/SceneView.cpp ${VIEWS}
    TEST HostedViewOnGNUstep.KeepsAViewThatGoesUntilItsTurnIsOver
    FROM "keepForThisTurn(view->view());" TO "")

kestrune_mutant(WhatIsMissingIsNamedEachTime FILE mac/vocabulary/Missing.cpp ${APPLICATION}
    TEST WhatIsMissing.GivesZeroAndIsNamedOnceAsAMethod
    FROM "logged.insert(text).second" TO "true")
kestrune_mutant(MissingClassIsNotNamed FILE mac/vocabulary/Message.cpp ${APPLICATION}
    TEST WhatIsMissing.IsNilAndNamedOnceAsAClass
    FROM "        logMissingClass(name());
" TO "")
kestrune_mutant(MissingMethodIsSent FILE mac/vocabulary/Message.cpp ${APPLICATION}
    TEST WhatIsMissing.GivesZeroAndIsNamedOnceAsAMethod
    FROM "        return false;
" TO "        return true;
")
kestrune_mutant(ForwardersAreNotAsked FILE mac/vocabulary/Message.cpp ${APPLICATION}
    TEST WhatIsMissing.IsNotWhatTheReceiverForwards
    FROM " && !answersFor(receiver, selector())" TO "")
kestrune_mutant(MissingSuperclassMakesARootClass FILE mac/objc/RuntimeClass.cpp ${APPLICATION}
    TEST WhatIsMissing.LeavesItsSubclassWithoutInstances
    FROM "superclass != nullptr ? objc_allocateClassPair(superclass, name, 0) : nullptr"
    TO "objc_allocateClassPair(superclass, name, 0)")
kestrune_mutant(MenusDelegateIsNone FILE mac/ObjectClass.cpp ${APPLICATION}
    TEST ProtocolsOnGNUstep.AreAdoptedByEveryDelegate
    FROM "        adopt(type, appKit.menuDelegate);
" TO "")
kestrune_mutant(WindowsDelegateIsAMenus FILE mac/ObjectClass.cpp ${APPLICATION}
    TEST ProtocolsOnGNUstep.AreAdoptedByTheWizards
    FROM "adopt(type, appKit.windowDelegate)" TO "adopt(type, appKit.menuDelegate)")
kestrune_mutant(NoWindowIsEverThereWhenItIsOpenedAgain FILE mac/ObjectClass.cpp ${CONTRACT}
    TEST ReopeningContract.AsksTheDelegateAndTellsItWhetherAWindowIsThere
    FROM "hasVisibleWindows != 0" TO "false")
kestrune_mutant(TheSystemAlwaysGoesOnWhenItIsOpenedAgain FILE mac/ObjectClass.cpp ${CONTRACT}
    TEST ReopeningContract.AsksTheDelegateAndTellsItWhetherAWindowIsThere
    FROM "!delegate || delegate->" TO "!delegate || !delegate->")

set(LOG FILE mac/Log.cpp ${CONTRACT})
kestrune_mutant(SubsystemIsTheCategory ${LOG} TEST LogContract.KeepsAnErrorWithItsSubsystemAndCategory
    FROM "os_log_create(std::string(subsystem).c_str(), std::string(category).c_str())"
    TO "os_log_create(std::string(category).c_str(), std::string(subsystem).c_str())")
kestrune_mutant(ArgumentDoesNotEnd ${LOG} TEST LogContract.FillsATextIntoAFormatAndKeepsThat
    FROM "argument(text.c_str())" TO "argument(publicString.data())")
kestrune_mutant(ErrorIsForDebugging ${LOG} TEST LogContract.KeepsAnErrorWithItsSubsystemAndCategory
    FROM "write(state_->log, ErrorType, _os_log_error_impl, message)"
    TO "write(state_->log, DebugType, _os_log_debug_impl, message)")
