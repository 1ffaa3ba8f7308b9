# Mistakes in enumerating the displays, in the fallback order and in the write-back rule.
set(GUARD FILE Kestrune/DockGuardController.cpp)

kestrune_mutant(FirstDisplayBeforeTheMainOne ${GUARD}
    FROM "screenWithUUID(mainScreenUUID())"
    TO "screensCache_.empty() ? screenWithUUID(mainScreenUUID()) : std::optional(screensCache_.front())")
kestrune_mutant(NoFirstDisplay ${GUARD}
    FROM "screensCache_.empty() ? std::nullopt : std::optional(screensCache_.front())"
    TO "std::optional<ManagedScreen>()")
kestrune_mutant(LastDisplayInsteadOfTheFirst ${GUARD}
    FROM "std::optional(screensCache_.front())" TO "std::optional(screensCache_.back())")
kestrune_mutant(WritesAChoiceThatWasNeverMade ${GUARD}
    FROM "    if (!storedUUID) {
        return;
    }
" TO "    if (!storedUUID) {
        if (pinnedScreen_ && preferences_) {
            preferences_->defaults().setObject(pinnedScreen_->uuid, Preferences::PinnedScreenUUIDKey);
        }
        return;
    }
")
kestrune_mutant(KeepsTheChoiceWithoutDisplays ${GUARD}
    FROM "preferences_->defaults().setObject(std::nullopt, Preferences::PinnedScreenUUIDKey);" TO "return;")
kestrune_mutant(WritesAChoiceThatMatches ${GUARD}
    FROM "    if (pinnedScreen_) {
        return;
    }
" TO "    if (pinnedScreen_) {
        preferences_->defaults().setObject(pinnedScreen_->uuid, Preferences::PinnedScreenUUIDKey);
        return;
    }
")
kestrune_mutant(NeverRepairsTheChoice ${GUARD}
    FROM "pinnedScreen_->uuid != *storedUUID" TO "pinnedScreen_->uuid == *storedUUID")
kestrune_mutant(ResolvesFromTheCache ${GUARD} SEEDS 300
    FROM "    pinnedScreen_ = screenWithUUID(storedUUID);"
    TO "    for (const ManagedScreen& screen : screensCache_) {
        if (storedUUID && screen.uuid == *storedUUID) {
            pinnedScreen_ = screen;
            return;
        }
    }
    pinnedScreen_.reset();")

set(SCREENS FILE Kestrune/ManagedScreen.cpp)

kestrune_mutant(FlipsAgainstTheMainDisplay ${SCREENS}
    FROM "const double primaryHeight = screens.front().frame().height();"
    TO "const double primaryHeight = Screen::mainScreen().value_or(screens.front()).frame().height();")
kestrune_mutant(FlipForgetsTheHeight ${SCREENS}
    FROM "primaryHeight - frame.origin.y - frame.height()" TO "primaryHeight - frame.origin.y")
kestrune_mutant(AcceptsNegativeNumbers ${SCREENS} SEEDS 300
    FROM "*whole >= 0 && " TO "")
kestrune_mutant(RoundsFractionalNumbers ${SCREENS} SEEDS 300
    FROM " && std::trunc(*real) == *real" TO "")
kestrune_mutant(IgnoresLetterCase ${SCREENS} SEEDS 300
    FROM "return screen.uuid == *uuid;"
    TO "return std::equal(screen.uuid.begin(), screen.uuid.end(), uuid->begin(), uuid->end(), [](char one, char other) { return (one | 0x20) == (other | 0x20); });")
