#include "sim/session/Plugs.h"

#include "sim/hardware/Arrangement.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kestrune::sim {

namespace {

constexpr std::array<Size, 4> NewDisplaySizes = {{{1280, 800}, {2560, 1440}, {1080, 1920}, {1920, 1080}}};

bool areSameDisplays(const std::vector<Display>& some, const std::vector<Display>& others) {
    return std::is_permutation(
        some.begin(), some.end(), others.begin(), others.end(),
        [](const Display& one, const Display& other) { return one.displayID == other.displayID; });
}

} // namespace

std::optional<PlugChange> Plugs::unplug(Point location) {
    const auto& connected = session_.displays().connected();
    const Display* display = session_.displays().containing(location);
    if (display == nullptr) {
        return std::nullopt;
    }
    unplugged_.push_back({*display, connected});
    return PlugChange{display->localizedName,
                      withoutDisplay(connected, static_cast<std::size_t>(display - connected.data()))};
}

std::optional<PlugChange> Plugs::plugIn() {
    if (!unplugged_.empty()) {
        Unplugged latest = std::move(unplugged_.back());
        unplugged_.pop_back();
        std::string name = latest.display.localizedName;
        return PlugChange{std::move(name), arrangementWith(std::move(latest))};
    }
    const auto& connected = session_.displays().connected();
    if (connected.size() >= MostDisplays) {
        return std::nullopt;
    }
    const auto number = static_cast<DisplayID>(connected.size() + 1);
    const std::string name = "Display " + std::to_string(number);
    const Size size = NewDisplaySizes[(number - 1) % NewDisplaySizes.size()];
    return PlugChange{
        name, withDisplayAtRight(connected, makeDisplay(number, name, {0, 0, size.width, size.height}))};
}

std::vector<Display> Plugs::arrangementWith(Unplugged unplugged) {
    std::vector<Display> together = session_.displays().connected();
    together.push_back(unplugged.display);
    if (areSameDisplays(together, unplugged.arrangement)) {
        return std::move(unplugged.arrangement);
    }
    return withDisplayAtRight(session_.displays().connected(), std::move(unplugged.display));
}

} // namespace kestrune::sim
