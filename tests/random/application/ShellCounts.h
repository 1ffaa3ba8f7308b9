// What happened in simulated sessions of the whole application, so that a run shows that it did not test
// emptiness.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace kestrune::simulate {

enum class Happening : std::size_t {
    launches,
    launchesWithoutPermission,
    quitsFromTheStatusMenu,
    quitsFromTheMainMenu,
    otherTerminations,
    kills,
    delegatesLetGo,
    menusOpened,
    mainMenusOpened,
    linesChosen,
    chosenForADelegateThatIsGone,
    displaysSelected,
    switchesOff,
    switchesOn,
    rebuildsBeforeSetup,
    rebuildsAfterSetup,
    markedByTheChoice,
    markedAsTheMainDisplay,
    markedAsTheFirstDisplay,
    unmarkedByAStaleChoice,
    menusWithoutDisplays,
    displayChangesFollowed,
    displayChangesWhileStopped,
    refreshes,
    writeBacks,
    starts,
    startsWhileAMenuIsOpen,
    refusedStarts,
    stops,
    permissionsFoundByTheMenu,
    ticksWithoutPermission,
    lateTicks,
    watchersEndedByATick,
    watchersEndedByTheMenu,
    watchersEndedByTheWizard,
    watchersEndedWithoutTheDelegate,
    decisionsWithPermission,
    decisionsWithoutPermission,
    decisionsWithoutTheDelegate,
    wizardsShown,
    introductionsSkipped,
    wizardButtonsPressed,
    permissionsRequested,
    windowsBecomeKey,
    wizardTicks,
    lateWizardTicks,
    wizardTicksThatFindSomethingNew,
    wizardsClosed,
    wizardsFinished,
    settingsMade,
    settingsShownAgain,
    settingsClosed,
    windowsClosedBesideOthers,
    switchesFlipped,
    switchesCorrected,
    loginItemsRegistered,
    loginItemsWithoutApproval,
    loginItemsStillWaiting,
    loginItemsUnregistered,
    loginItemsRefused,
    bugsReported,
    addressesOpenedByNobody,
    updatersStarted,
    updatersNotStarted,
    checksByTheUser,
    checksWithoutUpdater,
    checksOnSchedule,
    checksDuringASession,
    raisesAfterAWait,
    updatesFound,
    alertsShown,
    updatesDismissed,
    sessionsAnnounced,
    sessionsAnnouncedWhileRegular,
    sessionsAnnouncedAgain,
    policiesRestored,
    policiesKept,
    accessoriesWithWindows,
    regularWithoutWindows,
    updatersWindowsFloated,
    otherWindowsFloated,
    windowsRaised,
    windowsKeptFromHiding,
    stepsWithSeveralWindows,
    stepsWithAnAlert,
    total
};

class ShellCounts {
public:
    void add(Happening happening) { ++numbers_[static_cast<std::size_t>(happening)]; }

    ShellCounts& operator+=(const ShellCounts& other);

    // Every number with what it counts.
    void print() const;

private:
    std::array<std::uint64_t, static_cast<std::size_t>(Happening::total)> numbers_{};
};

} // namespace kestrune::simulate
