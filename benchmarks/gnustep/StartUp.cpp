// kestrune-start-up-on-gnustep [--launches N | --untimed N]: what a launch takes on GNUstep, the
// application's and an empty one's in turns, on the X server that the environment names. Exit status 1 when a
// launch leaves no menu or, unless it is not to be timed, when the application's takes too long beside the
// empty one's.
#include "Kestrune/KestruneApp.h"
#include "base/Fatal.h"
#include "benchmarks/CountArgument.h"
#include "benchmarks/Quantile.h"
#include "benchmarks/gnustep/EmptyApplication.h"
#include "mac/objc/Pool.h"
#include "platform/MainActor.h"
#include "platform/NotificationCenter.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/process/Session.h"
#include "tests/gnustep/standins/appkit/StatusItems.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <vector>

// The arguments as Foundation is to know them; it takes those of a command for documents to open.
// NOLINTNEXTLINE(readability-identifier-naming): the name is GNUstep's.
extern "C" void GSInitializeProcess(int count, char** arguments, char** environment);

namespace kestrune::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr double LargestRatio = 1.10;

void runApplication() { static_cast<void>(runKestrune()); }

struct Launched {
    const char* name;
    void (*run)();
    bool hasMenu;
};
constexpr Launched Applications[] = {
    {"without a menu", runBareApplication, false},
    {"empty", runEmptyApplication, true},
    {"Kestrune", runApplication, true},
};
constexpr std::size_t Empty = 1;
constexpr std::size_t Kestrune = 2;
using Times = std::array<std::vector<double>, std::size(Applications)>; // milliseconds

bool hasMenu() { return gnustep::statusItemCount() == 1 && gnustep::menuOfStatusItem(0) != nullptr; }

// From the entry point until the launch and what it has put off are done. The session around it is there
// before.
[[noreturn]] void launch(const Launched& application, int result) {
    char name[] = "Kestrune";
    char* arguments[] = {name, nullptr};
    GSInitializeProcess(1, arguments, environ);
    gnustep::enterPrivateHome();
    const mac::Pool pool;
    gnustep::beginSession(gnustep::privateHome(), true);
    Clock::time_point start;
    const auto end = [&] {
        const double time = Milliseconds(Clock::now() - start).count();
        const bool isTold =
            hasMenu() == application.hasMenu && write(result, &time, sizeof time) == sizeof time;
        std::exit(isTold ? EXIT_SUCCESS : EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe): the only thread
    };
    NotificationCenter::defaultCenter().addObserver(
        NotificationName("NSApplicationDidFinishLaunchingNotification"), OperationQueue::mainQueue(),
        [&end](const Notification&) { MainActor::startTask(end); });
    start = Clock::now();
    application.run();
    fatal("The application has come back from its launch.");
}

// In a process of its own, which ends with it. Absent when it did not leave the menu that it should.
std::optional<double> timeOf(const Launched& application) {
    int ends[2];
    if (pipe(ends) != 0) {
        fatal("There is no pipe to a launch.");
    }
    const pid_t process = fork();
    if (process == 0) {
        launch(application, ends[1]);
    }
    close(ends[1]);
    double time = 0;
    const bool isTold = read(ends[0], &time, sizeof time) == sizeof time;
    close(ends[0]);
    waitpid(process, nullptr, 0);
    return isTold ? std::optional(time) : std::nullopt;
}

std::optional<Times> timesOf(std::uint64_t launches) {
    Times times;
    for (std::uint64_t round = 0; round < launches; ++round) {
        for (std::size_t turn = 0; turn < times.size(); ++turn) {
            const std::size_t next = (round + turn) % times.size();
            const auto time = timeOf(Applications[next]);
            if (!time) {
                return std::nullopt;
            }
            times[next].push_back(*time);
        }
    }
    return times;
}

int measure(std::uint64_t launches, bool isTimed) {
    const auto times = timesOf(launches);
    if (!times) {
        std::fputs("FAIL: a launch has not come to its menu\n", stderr);
        return 1;
    }
    std::printf("%ju launches of each, in turns\n", std::uintmax_t{launches});
    for (std::size_t index = 0; index < times->size(); ++index) {
        std::printf("%-14s median %6.1f ms, quickest %6.1f ms\n", Applications[index].name,
                    quantile((*times)[index], 0.5), quantile((*times)[index], 0));
    }
    const double ratio = quantile((*times)[Kestrune], 0.5) / quantile((*times)[Empty], 0.5);
    std::printf("Kestrune's median is %.3f times the empty one's\n", ratio);
    const bool isTooSlow = isTimed && ratio > LargestRatio;
    if (isTooSlow) {
        std::fprintf(stderr, "FAIL: a launch on GNUstep takes %.3f times an empty one, over %.2f\n", ratio,
                     LargestRatio);
    }
    return isTooSlow ? 1 : 0;
}

} // namespace

} // namespace kestrune::benchmarks

// NOLINTNEXTLINE(bugprone-exception-escape): without memory there is nothing to measure.
int main(int count, char** arguments) {
    return kestrune::benchmarks::measureAsAsked({arguments, static_cast<std::size_t>(count)}, "--launches",
                                                100, kestrune::benchmarks::measure);
}
