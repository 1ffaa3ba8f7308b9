// kestrune-start-up [--launches N | --untimed N]: from the entry point to the first menu of the status item,
// on the simulation. Fails when that takes five milliseconds, unless it is not to be timed.
#include "Kestrune/KestruneApp.h"
#include "benchmarks/CountArgument.h"
#include "benchmarks/Quantile.h"
#include "sim/services/StatusItemState.h"
#include "sim/session/Session.h"

#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace kestrune::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr double LongestLaunch = 5000; // microseconds

// Absent when the launch has left the user without a menu.
std::optional<double> launchTime() {
    sim::SessionOptions options;
    options.displays = {sim::makeDisplay(1, "Primary", {0, 0, 1512, 982}),
                        sim::makeDisplay(2, "Second", {1512, 0, 1920, 1080})};
    options.recordJournal = false;
    sim::Session session(std::move(options));
    const auto start = Clock::now();
    const std::shared_ptr<KestruneApp> app = runKestrune();
    const double time = Microseconds(Clock::now() - start).count();
    const auto items = session.statusItems().shown();
    const bool hasMenu = items.size() == 1 && items.front()->menu.has_value();
    session.user().endApplication();
    return hasMenu ? std::optional(time) : std::nullopt;
}

int measure(std::uint64_t launches, bool isTimed) {
    std::vector<double> times;
    while (times.size() < launches) {
        const auto time = launchTime();
        if (!time) {
            std::fputs("FAIL: the launch has left no menu\n", stderr);
            return 1;
        }
        times.push_back(*time);
    }
    const double slow = quantile(times, 0.99);
    std::printf("%zu launches to the first menu: median %.1f us, 99 %% within %.1f us\n", times.size(),
                quantile(times, 0.5), slow);
    const bool isTooSlow = isTimed && slow >= LongestLaunch;
    if (isTooSlow) {
        std::fputs("FAIL: a launch takes five milliseconds or longer\n", stderr);
    }
    return isTooSlow ? 1 : 0;
}

} // namespace

} // namespace kestrune::benchmarks

// NOLINTNEXTLINE(bugprone-exception-escape): without memory there is nothing to measure.
int main(int count, char** arguments) {
    return kestrune::benchmarks::measureAsAsked({arguments, static_cast<std::size_t>(count)}, "--launches",
                                                1000, kestrune::benchmarks::measure);
}
