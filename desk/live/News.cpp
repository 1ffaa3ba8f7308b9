#include "desk/live/News.h"

#include "sim/PropertyList.h"

#include <utility>
#include <vector>

namespace kestrune::desk {

namespace {

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (std::size_t index = 0; index < parts.size(); ++index) {
        if (index > 0) {
            text += index + 1 == parts.size() ? " and " : ", ";
        }
        text += parts[index];
    }
    return text;
}

} // namespace

News newsOfHeldPointer(const sim::Delivery& delivery, const std::string& display) {
    const bool drags = delivery.type != EventType::mouseMoved;
    return {"Held at " + sim::shortestText(delivery.delivered.y) + " on " + display +
                (drags ? " while dragging" : ""),
            Occurrence::held};
}

News newsOfDockMove(const std::string& display) {
    return {"The Dock moved to " + display, Occurrence::dockMoved};
}

News newsOfUnansweredEvent(bool switchedOnAgain) {
    return {std::string("The pointer stood still for a second: the tap did not answer") +
                (switchedOnAgain ? ", and the guard switched it on again" : " and is off now"),
            Occurrence::warning};
}

News newsOfPin(const std::string& display, bool hasDock) {
    return {hasDock ? display + " is pinned and has the Dock"
                    : display + " is pinned: push into its bottom edge, and the Dock comes",
            Occurrence::neutral};
}

News newsOfGuardOn(GuardReadiness readiness, const std::optional<std::string>& pinned) {
    switch (readiness) {
    case GuardReadiness::running:
        return {pinned ? "Guard on: only " + *pinned + " may have the Dock"
                       : "Guard on, but no display is connected",
                Occurrence::neutral};
    case GuardReadiness::startsSoon:
        return {"Guard on: it starts within a second", Occurrence::neutral};
    case GuardReadiness::waitsForPermission:
        break;
    }
    return {"Guard on, but it waits for the Accessibility permission", Occurrence::warning};
}

News newsOfGuardOff() {
    return {"Guard off: the Dock goes wherever the pointer pushes it", Occurrence::neutral};
}

News newsOfUnplugging(const std::string& display, const Whereabouts& before, const Whereabouts& after) {
    std::string text = display + " was unplugged";
    if (!after.primary) {
        const bool isForgotten = before.isPinStored && !after.isPinStored;
        return {text + ": no display is left" + (isForgotten ? ", and the pin is forgotten" : ""),
                Occurrence::warning};
    }
    std::vector<std::string> moved;
    if (before.pinned != after.pinned && after.pinned == after.primary) {
        moved.emplace_back("the pin");
    }
    if (before.dock != after.dock && after.dock == after.primary) {
        moved.emplace_back("the Dock");
    }
    if (!moved.empty()) {
        text += "; " + joined(moved) + " moved to " + *after.primary;
    }
    if (before.primary != after.primary) {
        text += moved.empty() ? "; " + *after.primary + " is the primary display now"
                              : ", the primary display now";
    }
    return {std::move(text), moved.empty() ? Occurrence::neutral : Occurrence::warning};
}

News newsOfPlugging(const std::string& display, bool isPrimary) {
    return {display + " was plugged in" + (isPrimary ? " as the primary display" : ""), Occurrence::neutral};
}

News newsOfRevokedPermission(bool guardIsRunning) {
    return {guardIsRunning ? "Accessibility permission revoked: the system waits a second for a tap that "
                             "never answers"
                           : "Accessibility permission revoked: the guard cannot start",
            Occurrence::warning};
}

News newsOfGrantedPermission(bool guardIsRunning, bool guardIsEnabled) {
    if (guardIsRunning) {
        return {"Accessibility permission granted: the tap answers again", Occurrence::neutral};
    }
    return {guardIsEnabled ? "Accessibility permission granted: the guard looks for it once a second"
                           : "Accessibility permission granted; the guard is off",
            Occurrence::neutral};
}

News newsOfTapTimeout(bool switchedOnAgain) {
    return {std::string("The system switched the tap off after a timeout") +
                (switchedOnAgain ? "; the guard switched it on again at once" : ""),
            Occurrence::warning};
}

News newsOfMargin(double margin) {
    return {"The guarded band is " + sim::shortestText(margin) + (margin == 1 ? " point" : " points") +
                " deep",
            Occurrence::neutral};
}

} // namespace kestrune::desk
