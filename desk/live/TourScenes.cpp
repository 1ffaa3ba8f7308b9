#include "desk/live/TourScenes.h"

#include <cmath>

namespace kestrune::desk {

namespace {

constexpr sim::Duration HandStep = std::chrono::milliseconds(8);
constexpr int GlideSteps = 60;
constexpr int PushSteps = 90;

// Each takes a second.
constexpr int UnansweredEvents = 3;

// A hand keeps going this far below the edge, in points.
constexpr double PushDepth = 24;

} // namespace

TourScenes::TourScenes(LiveDesk& desk) : desk_(desk), first_(desk.host().guard().pinnedScreen()->displayID) {
    if (!bottomEdge(first_)) {
        return;
    }
    for (const sim::Display& display : desk.session().displays().connected()) {
        if (!other_ && display.displayID != first_ && bottomEdge(display.displayID)) {
            other_ = display.displayID;
        }
    }
}

const std::vector<TourScenes::Scene>& TourScenes::all() {
    static const std::vector<Scene> scenes = {
        {"two-displays", &TourScenes::showDisplays},
        {"the-dock-leaves", &TourScenes::letDockLeave},
        {"guard-on", &TourScenes::switchOn},
        {"held", &TourScenes::hold},
        {"held-while-dragging", &TourScenes::holdDrag},
        {"another-choice", &TourScenes::chooseOther},
        {"one-more-display", &TourScenes::plugIn},
        {"deeper-band", &TourScenes::deepen},
        {"pinned-display-unplugged", &TourScenes::unplugPinned},
        {"permission-revoked", &TourScenes::revoke},
        {"permission-granted", &TourScenes::grant},
        {"tap-timeout", &TourScenes::timeOut},
        {"one-display-left", &TourScenes::leaveOneDisplay},
    };
    return scenes;
}

std::string TourScenes::showDisplays() {
    glideTo(onDisplay(first_, 0.62, 0.55));
    return nameOf(first_) + " has the Dock, and nothing keeps it there.";
}

std::string TourScenes::letDockLeave() {
    push(*other_);
    return "Pushed against the bottom edge of " + nameOf(*other_) + ", the pointer pulls the Dock over.";
}

std::string TourScenes::switchOn() {
    desk_.toggleGuard();
    push(first_);
    return "The guard is on. One push brings the Dock home to " + nameOf(first_) + ".";
}

std::string TourScenes::hold() {
    push(*other_);
    return "The same push as before: the pointer is held above the edge, and the Dock stays.";
}

std::string TourScenes::holdDrag() {
    push(*other_, EventType::leftMouseDragged);
    return "Dragging a window down makes no difference.";
}

std::string TourScenes::chooseOther() {
    desk_.pin(*other_);
    push(*other_);
    return "Choose " + nameOf(*other_) + " instead, and there the Dock may go.";
}

std::string TourScenes::plugIn() {
    desk_.plugIn();
    const DisplayID added = desk_.session().displays().connected().back().displayID;
    push(added);
    return nameOf(added) + " is plugged in, and guarded from its first event on.";
}

std::string TourScenes::deepen() {
    for (int step = 0; step < 4; ++step) {
        desk_.deepenBand();
    }
    push(first_);
    return "A deeper band keeps the pointer further from the edge.";
}

std::string TourScenes::unplugPinned() {
    for (int step = 0; step < 4; ++step) {
        desk_.narrowBand();
    }
    const std::string unplugged = nameOf(*other_);
    glideTo(onDisplay(*other_, 0.5, 0.5));
    desk_.unplugUnderPointer();
    return unplugged + " is unplugged: the choice falls back to " + pinnedName() + " and is stored.";
}

std::string TourScenes::revoke() {
    desk_.togglePermission();
    for (int event = 0; event < UnansweredEvents; ++event) {
        desk_.movePointerTowards({desk_.session().pointer().x + PushDepth, desk_.session().pointer().y});
    }
    return "Without the Accessibility permission every event waits a second for the tap.";
}

std::string TourScenes::grant() {
    desk_.togglePermission();
    push(desk_.session().displays().connected().back().displayID);
    return "Granted again, the tap answers and the guard holds as before.";
}

std::string TourScenes::timeOut() {
    desk_.timeOutTap();
    return "The system gives up on a slow tap, and the guard switches it on again.";
}

std::string TourScenes::leaveOneDisplay() {
    while (desk_.session().displays().connected().size() > 1) {
        glideTo(onDisplay(desk_.session().displays().connected().back().displayID, 0.5, 0.5));
        desk_.unplugUnderPointer();
    }
    push(desk_.session().displays().connected().front().displayID);
    return "With one display left there is nothing to guard, and the pointer goes everywhere.";
}

std::optional<Point> TourScenes::bottomEdge(DisplayID number) {
    const sim::Displays& displays = desk_.session().displays();
    const Rect bounds = displays.withID(number)->bounds;
    // From the middle outwards, so that a picture shows the pointer where people look.
    for (const double fraction : {0.46, 0.3, 0.7, 0.15, 0.85, 0.02, 0.98}) {
        const Point edge{std::round(bounds.minX() + fraction * bounds.width()), bounds.maxY()};
        if (displays.containing(edge) == nullptr && bounds.contains({edge.x, bounds.minY()})) {
            return edge;
        }
    }
    return std::nullopt;
}

void TourScenes::glideTo(Point target, EventType type) {
    const Point start = desk_.session().pointer();
    for (int step = 1; step <= GlideSteps; ++step) {
        const double fraction = static_cast<double>(step) / GlideSteps;
        desk_.advance(HandStep);
        desk_.movePointerTowards(
            {start.x + (target.x - start.x) * fraction, start.y + (target.y - start.y) * fraction}, type);
    }
}

void TourScenes::push(DisplayID number, EventType type) {
    const std::optional<Point> edge = bottomEdge(number);
    if (!edge) {
        return;
    }
    const Rect bounds = desk_.session().displays().withID(number)->bounds;
    glideTo({edge->x, bounds.minY() + bounds.height() / 2}, type);
    for (int step = 0; step < PushSteps; ++step) {
        desk_.advance(HandStep);
        desk_.movePointerTowards({edge->x, desk_.session().pointer().y + PushDepth}, type);
    }
}

Point TourScenes::onDisplay(DisplayID number, double fractionX, double fractionY) {
    const Rect bounds = desk_.session().displays().withID(number)->bounds;
    return {bounds.minX() + fractionX * bounds.width(), bounds.minY() + fractionY * bounds.height()};
}

const std::string& TourScenes::nameOf(DisplayID number) {
    return desk_.session().displays().withID(number)->localizedName;
}

std::string TourScenes::pinnedName() const { return desk_.host().guard().pinnedScreen()->localizedName; }

} // namespace kestrune::desk
