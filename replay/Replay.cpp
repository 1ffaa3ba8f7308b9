#include "replay/Replay.h"

#include <algorithm>

namespace kestrune::replay {

namespace {

Rect boundsAround(const std::vector<JudgedDisplay>& displays) {
    double left = displays.front().bounds.minX();
    double top = displays.front().bounds.minY();
    double right = displays.front().bounds.maxX();
    double bottom = displays.front().bounds.maxY();
    for (const auto& [bounds, isPinned] : displays) {
        left = std::min(left, bounds.minX());
        top = std::min(top, bounds.minY());
        right = std::max(right, bounds.maxX());
        bottom = std::max(bottom, bounds.maxY());
    }
    return {left, top, right - left, bottom - top};
}

// How much larger than the rectangle around all displays the recorded motion becomes. Motion that is lost at
// an edge shifts the pointer for good; only strokes that reach further bring it back to every other edge.
constexpr double Reach = 1.5;

// The same in both directions, so that strokes keep their human shape.
double stretchFor(Size recorded, const Rect& around) {
    return Reach * std::max(around.size.width / recorded.width, around.size.height / recorded.height);
}

} // namespace

Report play(const Recording& recording, SimulatedDesk& desk, const DeliveryObserver& observer) {
    sim::Session& session = desk.session();
    const Rect around = boundsAround(desk.judged().displays);
    const double stretch = stretchFor(recording.size, around);
    Report report;
    report.skipped = recording.skipped;

    Motion previous = recording.motions.front();
    session.placePointer(
        {around.origin.x + previous.position.x * stretch, around.origin.y + previous.position.y * stretch});
    for (const Motion& motion : recording.motions) {
        session.advance(motion.time - previous.time);
        const sim::Delivery delivery =
            session.movePointer((motion.position.x - previous.position.x) * stretch,
                                (motion.position.y - previous.position.y) * stretch, motion.type);
        previous = motion;
        if (!delivery.swallowed) {
            observer(report.events, delivery);
        }
        report.add(desk.judged(), delivery);
    }
    report.dockMoves = session.dock().moves();
    report.dockDisplay = desk.dockDisplay();
    return report;
}

} // namespace kestrune::replay
