#include "tests/random/guard/RandomUser.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace kestrune::simulate {

namespace {

using std::chrono::milliseconds;

constexpr std::array<sim::Duration, 4> DockDwells{milliseconds(0), milliseconds(50), milliseconds(200),
                                                  milliseconds(500)};

} // namespace

RandomUser::RandomUser(std::uint64_t seed)
    : random_(seed), tame_(random_.chance(0.5)), arrangement_(random_, tame_) {
    std::vector<sim::Display> displays = arrangement_.displays();
    const StoredEntries entries = initialEntries(displays);
    const sim::Duration dwell = random_.pick(DockDwells);
    const bool cursorFollowsEvents = random_.chance(0.7);
    session_ = std::make_unique<GuardedSession>(std::move(displays), entries, dwell, cursorFollowsEvents);
}

StoredEntries RandomUser::initialEntries(const std::vector<sim::Display>& displays) {
    const StoredMargin initialMargin = random_.chance(0.4) ? absentMargin() : margin();
    const StoredSwitch initialSwitch = random_.chance(0.7) ? absentSwitch() : enabled();
    return {initialMargin, initialSwitch, choice(displays)};
}

const std::vector<RandomUser::Choice>& RandomUser::choices() {
    static const std::vector<Choice> all{
        {14, &RandomUser::stroke},
        {14, &RandomUser::pushAtBottomEdge},
        {8, &RandomUser::creepIntoBottomEdge},
        {16, &RandomUser::postEvents},
        {2, &RandomUser::plug},
        {3, &RandomUser::unplug},
        {0.3, &RandomUser::unplugAll},
        {1, &RandomUser::renumber},
        {2, &RandomUser::rearrange},
        {3, &RandomUser::readInPassing},
        {2, &RandomUser::changeMain},
        {0.5, &RandomUser::failUUIDStrings},
        {5, &RandomUser::refreshScreens},
        {10, &RandomUser::start},
        {1.5, &RandomUser::stop},
        {4, &RandomUser::storeMargin},
        {3, &RandomUser::storeSwitch},
        {4, &RandomUser::storeChoice},
        {3, &RandomUser::pickDisplay},
        {2, &RandomUser::changePermission},
        {1, &RandomUser::refuseTaps},
        {3, &RandomUser::disableTaps},
        {3, &RandomUser::stall},
        {4, &RandomUser::wait},
    };
    return all;
}

std::string RandomUser::act() { return (this->*random_.weighted(choices()).action)(); }

std::string RandomUser::changeDisplays(std::string what, std::vector<sim::Display> displays) {
    putPrimaryAtOrigin(displays);
    session_->changeDisplays(std::move(displays));
    // The application is told of every change, mostly before anything else happens.
    if (random_.chance(0.7)) {
        session_->refreshScreens();
        what += ", then a refresh";
    }
    return what;
}

std::string RandomUser::plug() {
    std::vector<sim::Display> displays = session_->displays();
    if (displays.size() >= 16) {
        return unplug();
    }
    displays.push_back(arrangement_.another(displays));
    const Rect bounds = displays.back().bounds;
    return changeDisplays("a display of " + sim::shortestText(bounds.width()) + " x " +
                              sim::shortestText(bounds.height()) + " is plugged in",
                          std::move(displays));
}

std::string RandomUser::unplug() {
    std::vector<sim::Display> displays = session_->displays();
    if (displays.empty()) {
        return plug();
    }
    DisplayChange change = arrangement_.withoutOne(std::move(displays));
    return changeDisplays(std::move(change.what), std::move(change.displays));
}

std::string RandomUser::unplugAll() { return changeDisplays("all displays are unplugged", {}); }

std::string RandomUser::renumber() {
    return changeDisplays("the displays get other numbers", arrangement_.renumbered(session_->displays()));
}

std::string RandomUser::rearrange() {
    DisplayChange change = arrangement_.movedAround(session_->displays());
    return changeDisplays(std::move(change.what), std::move(change.displays));
}

std::string RandomUser::readInPassing() {
    std::deque<std::vector<sim::Display>> reads = arrangement_.readingsInPassing(session_->displays());
    std::string what = "the next " + std::to_string(reads.size()) + " readings are empty or partial";
    session_->scriptReads(std::move(reads));
    if (random_.chance(0.8)) {
        session_->refreshScreens();
        return what + ", then a refresh";
    }
    return what;
}

std::string RandomUser::changeMain() {
    const std::optional<std::size_t> index = arrangement_.main(session_->displays().size(), 0.2);
    session_->setMain(index);
    return index ? "the display at place " + std::to_string(*index) + " becomes the main one"
                 : "no display is the main one";
}

std::string RandomUser::failUUIDStrings() {
    const bool fail = random_.chance(0.4);
    session_->setUUIDStringsFail(fail);
    return fail ? "the system makes no UUID strings" : "the system makes UUID strings";
}

std::string RandomUser::refreshScreens() {
    session_->refreshScreens();
    return "a refresh";
}

std::string RandomUser::start() {
    session_->start();
    return "the guard is started if it may be";
}

std::string RandomUser::stop() {
    session_->stop();
    if (random_.chance(0.3)) {
        session_->stop();
        return "the guard is stopped twice";
    }
    return "the guard is stopped";
}

StoredMargin RandomUser::margin() {
    if (random_.chance(0.4)) {
        return marginOf(random_.chance(0.5) ? random_.whole(1, 120) / 4.0 : random_.real(0, 60));
    }
    return random_.pick(remarkableMargins());
}

std::string RandomUser::storeMargin() {
    const StoredMargin value = margin();
    session_->store(value);
    return "the margin is stored: " + textOf(value.stored ? &*value.stored : nullptr);
}

StoredSwitch RandomUser::enabled() { return randomSwitch(random_, 0.6); }

std::string RandomUser::storeSwitch() {
    const StoredSwitch value = enabled();
    session_->store(value);
    return "the switch is stored: " + textOf(value.stored ? &*value.stored : nullptr);
}

StoredChoice RandomUser::choice(const std::vector<sim::Display>& displays) {
    if (displays.empty() || random_.chance(0.4)) {
        return random_.pick(remarkableChoices());
    }
    const sim::Display& display = random_.pick(displays);
    std::string identifier = display.uuid.value_or("display-" + std::to_string(display.displayID));
    if (random_.chance(0.2)) {
        for (char& character : identifier) {
            const bool upper = character >= 'A' && character <= 'Z';
            character = upper ? static_cast<char>(character - 'A' + 'a') : character;
        }
    }
    return choiceOf(std::move(identifier));
}

std::string RandomUser::storeChoice() {
    const StoredChoice value = choice(session_->displays());
    session_->store(value);
    return "the choice is stored from outside: " + textOf(value.stored ? &*value.stored : nullptr);
}

std::string RandomUser::pickDisplay() {
    const std::vector<KnownDisplay>& known = session_->expected().displays;
    if (known.empty()) {
        return refreshScreens();
    }
    const KnownDisplay& display = random_.pick(known);
    std::string what = "the user picks " + display.name;
    session_->store(choiceOf(display.identifier));
    session_->refreshScreens();
    return what;
}

std::string RandomUser::changePermission() {
    static constexpr std::array<std::pair<sim::Permission, const char*>, 5> Permissions{
        {{sim::Permission::notListed, "not listed"},
         {sim::Permission::switchedOff, "switched off"},
         {sim::Permission::granted, "granted"},
         {sim::Permission::rowDeleted, "row deleted"},
         {sim::Permission::stale, "stale"}}};
    const auto& [permission, name] = random_.chance(0.75) ? Permissions[2] : random_.pick(Permissions);
    session_->setPermission(permission);
    return std::string("the permission is ") + name;
}

std::string RandomUser::refuseTaps() {
    const bool refuse = random_.chance(0.4);
    session_->refuseTapCreation(refuse);
    return refuse ? "the system refuses taps" : "the system allows taps";
}

std::string RandomUser::disableTaps() {
    const EventType reason =
        random_.chance(0.5) ? EventType::tapDisabledByTimeout : EventType::tapDisabledByUserInput;
    const int times = random_.chance(0.2) ? random_.whole(5, 40) : 1;
    for (int time = 0; time < times; ++time) {
        session_->disableTaps(reason);
        if (random_.chance(0.3)) {
            postEvent();
        }
    }
    return "the system switches the taps off, times " + std::to_string(times);
}

std::string RandomUser::stall() {
    const milliseconds duration(random_.chance(0.7) ? random_.whole(1, 999) : random_.whole(1000, 4000));
    session_->stallMainThread(duration);
    return "the main thread is busy for " + std::to_string(duration.count()) + " ms";
}

std::string RandomUser::wait() {
    const milliseconds duration(random_.whole(1, 3000));
    session_->advance(duration);
    return std::to_string(duration.count()) + " ms pass";
}

} // namespace kestrune::simulate
