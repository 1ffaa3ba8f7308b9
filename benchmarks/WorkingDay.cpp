// A working day at a simulated Mac: kestrune-working-day [--events N].
//
// 8 hours at a thousand events a second, with the guard and the Dock. Prints one line and fails when the Dock
// moved, when the day took too long, or when the motion is too tame to prove anything.
#include "benchmarks/CountArgument.h"
#include "benchmarks/GuardedDesk.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>
#include <span>
#include <string_view>

namespace {

using kestrune::benchmarks::Guard;
using kestrune::benchmarks::GuardedDesk;

constexpr std::uint64_t EventsOfADay = 8ULL * 60 * 60 * 1000;
constexpr double LimitSeconds = 15; // of one core
constexpr std::size_t DisplayCount = 3;

// Long enough for the Dock to be pulled away many times.
constexpr std::uint64_t EventsWithoutGuard = 20'000;

std::uint64_t dockMovesWithoutGuard() {
    GuardedDesk desk(DisplayCount, Guard::off);
    for (std::uint64_t event = 0; event < EventsWithoutGuard; ++event) {
        desk.step();
    }
    return desk.dockMoves();
}

double secondsOfCPU() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

// Whether the day went well.
bool spend(std::uint64_t events) {
    GuardedDesk desk(DisplayCount, Guard::on);
    const auto wallStart = std::chrono::steady_clock::now();
    const double cpuStart = secondsOfCPU();
    for (std::uint64_t event = 0; event < events; ++event) {
        desk.step();
    }
    const double cpu = secondsOfCPU() - cpuStart;
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - wallStart;

    std::printf("working day: events=%llu held=%llu dockMoves=%llu wallSeconds=%.3f cpuSeconds=%.3f "
                "eventsPerCPUSecond=%.0f hash=%016llx\n",
                static_cast<unsigned long long>(events), static_cast<unsigned long long>(desk.held()),
                static_cast<unsigned long long>(desk.dockMoves()), wall.count(), cpu,
                static_cast<double>(events) / cpu, static_cast<unsigned long long>(desk.hash()));
    if (desk.dockMoves() > 0) {
        std::fputs("FAIL: the Dock left the pinned display\n", stderr);
    }
    if (desk.held() == 0) {
        std::fputs("FAIL: the guard held no event\n", stderr);
    }
    if (cpu >= LimitSeconds) {
        std::fprintf(stderr, "FAIL: the day took %.1f s of one core; the limit is %.0f s\n", cpu,
                     LimitSeconds);
    }
    return desk.dockMoves() == 0 && desk.held() > 0 && cpu < LimitSeconds;
}

} // namespace

int main(int count, char** arguments) {
    const std::optional<std::uint64_t> events = kestrune::benchmarks::countFrom(
        std::span(arguments, static_cast<std::size_t>(count)).subspan(1), "--events", EventsOfADay);
    if (!events) {
        std::fputs("usage: kestrune-working-day [--events N], N above 0\n", stderr);
        return 2;
    }
    if (dockMovesWithoutGuard() == 0) {
        std::fputs("FAIL: the Dock stays put even without the guard, so the motion proves nothing\n", stderr);
        return 1;
    }
    return spend(*events) ? 0 : 1;
}
