# Mistakes in the decision about an event.
set(GUARD FILE Kestrune/DockGuardController.cpp)

kestrune_mutant(MaximumEdgesBelongToADisplay ${GUARD}
    FROM "return edges.contains(location);"
    TO "return edges.minX <= location.x && location.x <= edges.maxX && edges.minY <= location.y &&
            location.y <= edges.maxY;")
kestrune_mutant(LastDisplayDecides ${GUARD}
    FROM "[location](const Edges& edges) { return edges.contains(location); }"
    TO "[location, this](const Edges& edges) {
            return edges.contains(location) &&
                   std::none_of(&edges + 1, edgesCache_.data() + edgesCache_.size(),
                                [location](const Edges& later) { return later.contains(location); });
        }")
kestrune_mutant(EdgesOfOtherDisplays ${GUARD}
    FROM "edgesCache_.push_back(screen.cgFrame.edges());"
    TO "edgesCache_.insert(edgesCache_.begin(), screen.cgFrame.edges());")
kestrune_mutant(MovesX ${GUARD}
    FROM "{location.x, band.heldY()}" TO "{location.x + 0.5, band.heldY()}")
kestrune_mutant(SwallowsBlockedEvents ${GUARD}
    FROM "event->setLocation({location.x, band.heldY()});" TO "return nullptr;")
kestrune_mutant(ComparesDisplayNumbers ${GUARD} SEEDS 300
    FROM "*screen == *pinnedScreen_" TO "screen->displayID == pinnedScreen_->displayID")
kestrune_mutant(GuardsASingleDisplay ${GUARD} SEEDS 300
    FROM "screensCache_.size() < 2" TO "screensCache_.empty()")
kestrune_mutant(GuardsOnlyThreeDisplays ${GUARD}
    FROM "screensCache_.size() < 2" TO "screensCache_.size() < 3")
kestrune_mutant(MarginThatIsNoNumber ${GUARD} SEEDS 300
    FROM "margin > 0 ? margin : DefaultBlockMargin" TO "!(margin <= 0) ? margin : DefaultBlockMargin")
kestrune_mutant(MarginOffByOne ${GUARD}
    FROM "margin > 0 ? margin : DefaultBlockMargin" TO "margin > 0 ? margin + 1 : DefaultBlockMargin")
kestrune_mutant(MarginReadAsAWholeNumber ${GUARD}
    FROM "margin > 0 ? margin : DefaultBlockMargin"
    TO "margin >= 1 && margin < 10000 ? static_cast<int>(margin) : margin > 0 ? margin : DefaultBlockMargin")
kestrune_mutant(SwitchIsIgnored ${GUARD}
    FROM "!preferences_ || !preferences_->isEnabled()" TO "!preferences_")

set(PREFERENCES FILE Kestrune/Preferences.cpp)

kestrune_mutant(AbsentSwitchMeansOff ${PREFERENCES}
    FROM "return true;" TO "return false;")
