// Work that belongs to the main thread.
//
// Source: Swift concurrency's MainActor, whose jobs run on the main dispatch queue; dispatch/queue.h;
// Foundation, NSThread.h.
#pragma once

#include <chrono>
#include <functional>

namespace kestrune {

class MainActor {
public:
    // A task with default priority on the main actor. It runs on the main thread after whatever runs there
    // now has returned. `body` must not throw.
    static void startTask(std::function<void()> body);

    // The same, but before `body` it sleeps, on the continuous clock, which goes on while the computer
    // sleeps. Nobody can cancel it.
    static void startTask(std::chrono::milliseconds sleep, std::function<void()> body);

    // +[NSThread isMainThread]: whether the caller is where the main actor's work may be done.
    static bool isCurrent();
};

} // namespace kestrune
