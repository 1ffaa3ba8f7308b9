# Mistakes in where the blocked band begins and where a pointer is held.
set(BAND FILE Kestrune/BlockedBand.h COMPILES Kestrune/DockGuardController.cpp)

kestrune_mutant(EdgeInsetZero ${BAND}
    FROM "EdgeInset = 1.0" TO "EdgeInset = 0.0")
kestrune_mutant(EdgeInsetTwo ${BAND}
    FROM "EdgeInset = 1.0" TO "EdgeInset = 2.0")
kestrune_mutant(ThresholdAPointTooLow ${BAND}
    FROM "cgFrame.maxY() - EdgeInset - margin" TO "cgFrame.maxY() - margin")
kestrune_mutant(ThresholdRoundedOtherwise ${BAND} SEEDS 500
    FROM "cgFrame.maxY() - EdgeInset - margin" TO "cgFrame.maxY() - (EdgeInset + margin)")
kestrune_mutant(LimitAtTheTopEdge ${BAND}
    FROM "cgFrame.minY() + EdgeInset" TO "cgFrame.minY()")
kestrune_mutant(NoLimit ${BAND}
    FROM "threshold_ <= limit_ ? limit_ : threshold_" TO "threshold_")
kestrune_mutant(BlocksOnlyTheLastPoint ${BAND}
    FROM "threshold_ < y" TO "threshold_ + 1 < y")
