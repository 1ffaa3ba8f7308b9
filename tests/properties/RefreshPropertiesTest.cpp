#include "Kestrune/ManagedScreen.h"
#include "sim/session/Session.h"
#include "tests/properties/Generators.h"
#include "tests/random/guard/GuardedSession.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace kestrune::simulate {

namespace {

using Displays = std::vector<sim::Display>;

// Part of the displays, as the system's list may read while they change.
Displays partOf(const Displays& displays, const std::vector<bool>& kept) {
    Displays part;
    for (std::size_t index = 0; index < displays.size(); ++index) {
        if (index < kept.size() && kept[index]) {
            part.push_back(displays[index]);
        }
    }
    return part;
}

rc::Gen<std::deque<Displays>> passingReads(const Displays& displays) {
    return rc::gen::resize(
        8, rc::gen::container<std::deque<Displays>>(
               rc::gen::map(rc::gen::arbitrary<std::vector<bool>>(),
                            [displays](const std::vector<bool>& kept) { return partOf(displays, kept); })));
}

} // namespace

// The session compares cache, pinned display, stored choice and the number of writes with the oracle.
RC_GTEST_PROP(RefreshProperties, ResolvesAndWritesBackAsTheRuleSays, ()) {
    const Displays displays = arrange(*anyPlans(), 1);
    GuardedSession session(displays, {absentMargin(), absentSwitch(), *anyChoices(displays)},
                           sim::Dock::DefaultDwell, true);
    const rc::Maybe<std::size_t> main = *rc::gen::maybe(rc::gen::inRange<std::size_t>(0, 12));
    session.setMain(main ? std::optional(*main) : std::nullopt);
    session.setUUIDStringsFail(*rc::gen::weightedElement<bool>({{7, false}, {1, true}}));
    session.refreshScreens();
    RC_CLASSIFY(session.counts().writeBacks > 0U, "repaired the choice");
    RC_ASSERT(session.violation() == std::nullopt);
}

RC_GTEST_PROP(RefreshProperties, CopesWithEmptyAndPartialReadings, ()) {
    const Displays displays = arrange(*anyPlans(), 1);
    GuardedSession session(displays, {absentMargin(), absentSwitch(), *anyChoices(displays)},
                           sim::Dock::DefaultDwell, true);
    session.scriptReads(*passingReads(displays));
    session.refreshScreens();
    session.refreshScreens();
    RC_ASSERT(session.violation() == std::nullopt);
}

RC_GTEST_PROP(RefreshProperties, ASecondRefreshRepairsNothingMore, ()) {
    const Displays displays = arrange(*anyPlans(), 1);
    GuardedSession session(displays, {absentMargin(), absentSwitch(), *anyChoices(displays)},
                           sim::Dock::DefaultDwell, true);
    session.refreshScreens();
    const std::uint64_t repaired = session.counts().writeBacks;
    session.refreshScreens();
    RC_ASSERT(session.violation() == std::nullopt);
    RC_ASSERT(session.counts().writeBacks == repaired);
}

RC_GTEST_PROP(RefreshProperties, AChoiceThatWasNeverMadeIsNeverWritten, ()) {
    const Displays displays = arrange(*anyPlans(), 1);
    GuardedSession session(displays, {}, sim::Dock::DefaultDwell, true);
    session.refreshScreens();
    session.changeDisplays(arrange(*anyPlans(), 100));
    session.refreshScreens();
    RC_ASSERT(session.violation() == std::nullopt);
    RC_ASSERT(session.counts().writeBacks == 0U);
}

RC_GTEST_PROP(RefreshProperties, FramesOnTheGridComeBackFromTheFlipUnchanged, ()) {
    sim::SessionOptions options;
    options.displays = arrange(*tamePlans(), 1);
    sim::Session session(options);
    const std::vector<ManagedScreen> screens = allScreens();
    RC_ASSERT(screens.size() == options.displays.size());
    for (std::size_t index = 0; index < screens.size(); ++index) {
        RC_ASSERT(screens[index].cgFrame == options.displays[index].bounds);
        RC_ASSERT(screens[index].displayID == options.displays[index].displayID);
    }
}

} // namespace kestrune::simulate
