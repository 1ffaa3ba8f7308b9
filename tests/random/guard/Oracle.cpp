#include "tests/random/guard/Oracle.h"

#include <cmath>
#include <variant>

namespace kestrune::simulate {

namespace {

struct ScreenReading {
    sim::Display display;
    Rect appKitFrame;
};

std::vector<ScreenReading> readScreens(sim::Displays& system) {
    std::vector<ScreenReading> readings;
    for (const sim::Display& display : system.read()) {
        readings.push_back({display, system.appKitFrame(display.bounds)});
    }
    return readings;
}

// A long double holds every whole number of the description's without rounding.
long double numberIn(const DeviceDescriptionValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return static_cast<long double>(*whole);
    }
    const auto* real = std::get_if<double>(&value);
    return real != nullptr ? static_cast<long double>(*real) : -1;
}

std::optional<std::uint32_t> usableNumber(const sim::Display& display) {
    const long double number = display.screenNumber ? numberIn(*display.screenNumber) : -1;
    if (number >= 0 && number < 0x1p32L && std::floor(number) == number) {
        return static_cast<std::uint32_t>(number);
    }
    return std::nullopt;
}

std::string identifierOf(const sim::Displays& system, std::uint32_t number) {
    const std::optional<std::string> uuid = system.uuidOf(number);
    return uuid && !system.uuidStringsFail() ? *uuid : "display-" + std::to_string(number);
}

} // namespace

std::vector<KnownDisplay> enumerateDisplays(sim::Displays& system) {
    std::vector<KnownDisplay> known;
    for (const ScreenReading& reading : readScreens(system)) {
        const std::optional<std::uint32_t> number = usableNumber(reading.display);
        if (!number) {
            continue;
        }
        const Rect& frame = reading.appKitFrame;
        KnownDisplay display{identifierOf(system, *number), *number, reading.display.localizedName, frame};
        const std::vector<sim::Display> primaryFirst = system.read();
        if (!primaryFirst.empty()) {
            const double primaryHeight = std::fabs(primaryFirst[0].bounds.size.height);
            display.bounds.origin.y = primaryHeight - frame.origin.y - frame.size.height;
        }
        known.push_back(std::move(display));
    }
    return known;
}

std::optional<std::string> mainIdentifier(const sim::Displays& system) {
    const std::optional<sim::Display> main = system.main();
    const std::optional<std::uint32_t> number = main ? usableNumber(*main) : std::nullopt;
    return number ? std::optional(identifierOf(system, *number)) : std::nullopt;
}

namespace {

std::optional<KnownDisplay> findByEnumerating(sim::Displays& system, const std::string& identifier) {
    for (KnownDisplay& display : enumerateDisplays(system)) {
        if (display.identifier == identifier) {
            return std::move(display);
        }
    }
    return std::nullopt;
}

} // namespace

Resolution resolve(sim::Displays& system, const std::optional<std::string>& storedChoice) {
    Resolution resolution;
    resolution.displays = enumerateDisplays(system);
    if (storedChoice) {
        resolution.pinned = findByEnumerating(system, *storedChoice);
    }
    if (!resolution.pinned) {
        if (const std::optional<std::string> main = mainIdentifier(system)) {
            resolution.pinned = findByEnumerating(system, *main);
        }
    }
    if (!resolution.pinned && !resolution.displays.empty()) {
        resolution.pinned = resolution.displays[0];
    }
    std::optional<std::string> resolved;
    if (resolution.pinned) {
        resolved = resolution.pinned->identifier;
    }
    if (storedChoice && resolved != storedChoice) {
        resolution.writes = true;
        resolution.written = resolved;
    }
    return resolution;
}

Resolution expectedResolution(sim::Displays system, const std::optional<std::string>& storedChoice) {
    return resolve(system, storedChoice);
}

replay::JudgedDesk GuardModel::judged() const {
    replay::JudgedDesk desk{{}, enabled && pinned, replay::bandDepth(storedMargin)};
    for (const KnownDisplay& display : displays) {
        desk.displays.push_back({display.bounds, pinned && display.identifier == pinned->identifier});
    }
    return desk;
}

} // namespace kestrune::simulate
