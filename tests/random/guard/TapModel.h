// What the system and the guard's one tap must be doing, as a small state machine.
#pragma once

#include "sim/session/Session.h"

#include <cstddef>

namespace kestrune::simulate {

class TapModel {
public:
    void started() { running_ = true, enabled_ = true, noticePending_ = false; }
    void stopped() { running_ = enabled_ = noticePending_ = false; }
    void mainThreadStalled(sim::Duration now, sim::Duration duration);
    void mainThreadFreed(sim::Duration now);

    // The system switched the taps off and tells the guard as soon as the main thread is free.
    void switchedOff(sim::Duration now);

    struct Reply {
        bool handled;       // whether the guard was asked
        sim::Duration held; // how long the event waited for it
    };

    // An event enters the session.
    Reply eventArrived(sim::Duration now, bool tapsAllowed);

    bool isRunning() const { return running_; }
    sim::Duration mainThreadFreeAt() const { return mainThreadFreeAt_; }

    std::size_t taps() const { return running_ ? 1 : 0; }
    std::size_t enabledTaps() const { return enabled_ ? 1 : 0; }
    std::size_t sources() const { return taps(); }

    // The tap and its source are all that the application retains.
    std::int64_t liveObjects() const { return running_ ? 2 : 0; }

private:
    bool running_ = false;
    bool enabled_ = false;
    bool noticePending_ = false;
    sim::Duration mainThreadFreeAt_{0};
};

} // namespace kestrune::simulate
