// What goes wrong at the simulated Mac when a test wants it to.
//
// Those of the displays are with them: sim::Displays.
#pragma once

#include "platform/Event.h"
#include "sim/session/System.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace kestrune::sim {

class Faults {
public:
    // `system` must outlive this.
    explicit Faults(System& system) : system_(system) {}

    // The main thread is busy for that long. Events wait for it, at most until the tap times out.
    void stallMainThread(Duration duration) { system_.mainThread.stall(duration); }

    // What `work` makes the application do happens on another thread.
    void onAnotherThread(const std::function<void()>& work) { system_.mainThread.workElsewhere(work); }

    // The system switches the taps off and, unless the main thread is busy, tells the application at once.
    void disableTaps(EventType reason);

    // A grant is in force, but the process does not read as trusted yet.
    void delayTrust(bool delay) { system_.faults.delaysTrust = delay; }

    // CGEventTapCreate refuses although the permission is there.
    void refuseTapCreation(bool refuse) { system_.faults.refusesTapCreation = refuse; }

    // The system does not let the application activate itself.
    void refuseActivation(bool refuse) { system_.faults.refusesActivation = refuse; }

    // No application is responsible for any URL.
    void refuseOpeningURLs(bool refuse) { system_.faults.refusesOpeningURLs = refuse; }

    // No text is a URL.
    void refuseURLs(bool refuse) { system_.faults.refusesURLs = refuse; }

    // The system makes status items without a button.
    void withholdStatusButtons(bool withhold) { system_.faults.withholdsStatusButtons = withhold; }

    // The system refuses to register and to unregister the login item, with that description; absent: it does
    // not.
    void refuseLoginItem(std::optional<std::string> description) {
        system_.faults.loginItemRefusal = std::move(description);
    }

private:
    System& system_;
};

} // namespace kestrune::sim
