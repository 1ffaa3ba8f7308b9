// What just happened on the desk, as one plain sentence.
#pragma once

#include "desk/paint/DeskPicture.h"
#include "sim/Session.h"

#include <optional>
#include <string>

namespace kestrune::desk {

struct News {
    std::string text; // without a full stop
    Occurrence kind = Occurrence::neutral;
};

// The names of the displays that matter, before or after something happened; absent where there is none.
struct Whereabouts {
    std::optional<std::string> primary;
    std::optional<std::string> pinned;
    std::optional<std::string> dock;
    bool isPinStored = false;
};

// Where the guard stands when it wants to act.
enum class GuardReadiness { running, startsSoon, waitsForPermission };

News newsOfHeldPointer(const sim::Delivery& delivery, const std::string& display);
News newsOfDockMove(const std::string& display);

// `switchedOnAgain`: whether the guard had its tap back after the system had given up waiting.
News newsOfUnansweredEvent(bool switchedOnAgain);

News newsOfPin(const std::string& display, bool hasDock);

// `pinned` is the display that keeps the Dock.
News newsOfGuardOn(GuardReadiness readiness, const std::optional<std::string>& pinned);
News newsOfGuardOff();

News newsOfUnplugging(const std::string& display, const Whereabouts& before, const Whereabouts& after);
News newsOfPlugging(const std::string& display, bool isPrimary);

News newsOfRevokedPermission(bool guardIsRunning);
News newsOfGrantedPermission(bool guardIsRunning, bool guardIsEnabled);

News newsOfTapTimeout(bool switchedOnAgain);
News newsOfMargin(double margin);

} // namespace kestrune::desk
