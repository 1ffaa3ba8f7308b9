// What a death test sees of a process that aborts: standard error alone, so whatever else is to be looked at
// is written there.
#pragma once

#include <csignal>
#include <functional>
#include <utility>

namespace kestrune {

// Does `work` when the process aborts, before whatever else was to be done then.
inline void beforeAborting(std::function<void()> work) {
    static std::function<void()> kept;
    static void (*next)(int);
    kept = std::move(work);
    next = std::signal(SIGABRT, [](int number) {
        kept();
        if (next != SIG_DFL) {
            next(number);
        }
    });
}

} // namespace kestrune
