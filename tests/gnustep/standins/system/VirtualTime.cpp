// The time of GNUstep's run loop, without waiting: it stands still until the main thread waits for something,
// and then moves on by as long as that waits. So timers fire in the same order on the busiest machine.
//
// It stands in for nothing of the Mac's. GNUstep finds these functions in the program before the system's.
#include <dlfcn.h>
#include <poll.h>
#include <pthread.h>
#include <sys/time.h>

#include <atomic>
#include <ctime>

namespace kestrune::gnustep {

namespace {

constexpr long long MicrosecondsPerSecond = 1'000'000;

template <typename Function>
Function* systems(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

long long realMicroseconds() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * MicrosecondsPerSecond + now.tv_nsec / 1000;
}

std::atomic<long long>& microseconds() {
    static std::atomic<long long> now = realMicroseconds();
    return now;
}

bool isMainThread() {
    static const pthread_t mainThread = pthread_self();
    return pthread_equal(pthread_self(), mainThread) != 0;
}

// The first to ask is the main thread.
[[maybe_unused]] const bool MainThreadIsKnown = isMainThread();

} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's names are reserved.

// A look at the clock takes a microsecond, so that whoever only looks gets there as well.
extern "C" int gettimeofday(timeval* time, void* /*zone*/) noexcept {
    const long long now = ++microseconds();
    time->tv_sec = now / MicrosecondsPerSecond;
    time->tv_usec = now % MicrosecondsPerSecond;
    return 0;
}

extern "C" int poll(pollfd* files, nfds_t count, int timeout) {
    static auto* const systemPoll = systems<int(pollfd*, nfds_t, int)>("poll");
    if (timeout <= 0 || !isMainThread()) {
        return systemPoll(files, count, timeout);
    }
    const int ready = systemPoll(files, count, 0);
    if (ready == 0) {
        microseconds() += timeout * 1000LL;
    }
    return ready;
}

extern "C" int passTime(const timespec* duration, timespec* remaining) asm("nanosleep");

extern "C" int passTime(const timespec* duration, timespec* /*remaining*/) {
    microseconds() += duration->tv_sec * MicrosecondsPerSecond + duration->tv_nsec / 1000;
    return 0;
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)

} // namespace kestrune::gnustep
