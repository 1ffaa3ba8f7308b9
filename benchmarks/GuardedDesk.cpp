#include "benchmarks/GuardedDesk.h"

#include "Kestrune/Preferences.h"
#include "base/Fatal.h"
#include "platform/UserDefaults.h"
#include "replay/StoredChoices.h"
#include "sim/hardware/Display.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>

namespace kestrune::benchmarks {

namespace {

constexpr std::uint64_t Seed = 20'240'229;

sim::SessionOptions optionsFor(std::size_t displayCount) {
    sim::SessionOptions options;
    options.recordJournal = false;
    options.displays.clear();
    DisplayID number = 0;
    for (const Rect& bounds : arrangementOf(displayCount)) {
        options.displays.push_back(sim::makeDisplay(++number, "Display", bounds));
    }
    replay::store({.isEnabled = true, .pinnedScreenUUID = options.displays.front().uuid}, options.defaults);
    return options;
}

} // namespace

std::vector<Rect> arrangementOf(std::size_t displayCount) {
    static constexpr std::array Bounds{Rect{0, 0, 1512, 982}, Rect{1512, -98.5, 1920, 1080.5},
                                       Rect{-1080, -400, 1080, 1920}};
    if (displayCount > Bounds.size()) {
        fatal("There is no arrangement of that many displays.");
    }
    return {Bounds.begin(), Bounds.begin() + static_cast<std::ptrdiff_t>(displayCount)};
}

GuardedDesk::GuardedDesk(std::size_t displayCount, Guard guard)
    : session_(optionsFor(displayCount)), hand_(arrangementOf(displayCount), Seed) {
    if (guard == Guard::off) {
        return;
    }
    controller_.setPreferences(std::make_shared<Preferences>(UserDefaults::standardUserDefaults()));
    controller_.refreshScreens();
    controller_.start();
    if (!controller_.isRunning()) {
        fatal("The guard did not start.");
    }
}

GuardedDesk::~GuardedDesk() { controller_.stop(); }

void GuardedDesk::step() {
    const Point movement = hand_.nextMovement(session_.pointer());
    const sim::Delivery delivery = session_.movePointer(movement.x, movement.y);
    held_ += delivery.delivered != delivery.sent ? 1U : 0U;
    hash_.add(delivery.delivered);
    session_.advance(std::chrono::milliseconds(1));
}

std::uint64_t GuardedDesk::hash() {
    ResultHash complete = hash_;
    complete.add(session_.dock().moves());
    return complete.value();
}

} // namespace kestrune::benchmarks
