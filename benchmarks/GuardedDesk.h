// A simulated Mac with several displays, the guard and the Dock, and a hand that moves the pointer.
#pragma once

#include "Kestrune/DockGuardController.h"
#include "base/Geometry.h"
#include "benchmarks/RestlessPointer.h"
#include "benchmarks/ResultHash.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kestrune::benchmarks {

// Two or three displays of different sizes, all of whose bottom edges can attract the Dock; the primary is
// the first one.
std::vector<Rect> arrangementOf(std::size_t displayCount);

enum class Guard { off, on };

// As a session, there is one at a time. The Dock starts on the primary display, which is the pinned one. An
// event comes each millisecond of the session's time.
class GuardedDesk {
public:
    GuardedDesk(std::size_t displayCount, Guard guard);
    ~GuardedDesk();

    GuardedDesk(const GuardedDesk&) = delete;
    GuardedDesk& operator=(const GuardedDesk&) = delete;

    // Lets one millisecond pass.
    void step();

    // Events that the guard delivered elsewhere than where the hardware had sent them.
    std::uint64_t held() const { return held_; }

    std::uint64_t dockMoves() { return session_.dock().moves(); }

    // Of every location delivered so far and of the Dock's moves.
    std::uint64_t hash();

private:
    sim::Session session_;
    DockGuardController controller_;
    RestlessPointer hand_;
    ResultHash hash_;
    std::uint64_t held_ = 0;
};

} // namespace kestrune::benchmarks
