# Mistakes in the life of the event tap.
set(GUARD FILE Kestrune/DockGuardController.cpp)

kestrune_mutant(StaysOffAfterATimeout ${GUARD}
    FROM "type == EventType::tapDisabledByTimeout || type == EventType::tapDisabledByUserInput"
    TO "type == EventType::tapDisabledByUserInput")
kestrune_mutant(StaysOffAfterUserInput ${GUARD}
    FROM "controller->eventTap_->enable(true);"
    TO "controller->eventTap_->enable(type != EventType::tapDisabledByUserInput);")
kestrune_mutant(StopLeavesTheSource ${GUARD}
    FROM "        RunLoop::current().removeSource(*runLoopSource_, RunLoopMode::commonModes);
" TO "")
kestrune_mutant(StopKeepsTheTap ${GUARD}
    FROM "    eventTap_.reset();
    runLoopSource_.reset();
" TO "")
kestrune_mutant(StopStaysRunning ${GUARD}
    FROM "    isRunning_ = false;
" TO "")
kestrune_mutant(RefusedStartCountsAsRunning ${GUARD}
    FROM "    if (!tap) {
" TO "    if (!tap) {
        isRunning_ = true;
")
kestrune_mutant(RefusedStartLogsTwice ${GUARD}
    FROM "    if (!tap) {
" TO "    if (!tap) {
        log().error(TapRefused);
")
kestrune_mutant(ListensOnly ${GUARD}
    FROM "EventTapOptions::defaultTap" TO "EventTapOptions::listenOnly")
kestrune_mutant(MissesDrags ${GUARD}
    FROM "EventTapOptions::defaultTap, PointerMotion"
    TO "EventTapOptions::defaultTap, eventMaskBit(EventType::mouseMoved)")
