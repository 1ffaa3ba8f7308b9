// Events of a guarded session, and what they must come to.
#include "tests/random/guard/GuardedSession.h"
#include "tests/random/guard/Invariants.h"

#include <algorithm>

namespace kestrune::simulate {

namespace {

bool isOnLastPoint(const replay::JudgedDisplay* display, Point point) {
    return display != nullptr && point.y >= display->bounds.origin.y + display->bounds.size.height - 1;
}

// Whether the hardware can put the pointer there. Without displays it stays wherever it was, and so it does
// beside an empty display, which has no place for it.
bool isReachable(Point point, const std::vector<sim::Display>& displays) {
    const auto isEmpty = [](const sim::Display& display) { return display.bounds.isEmpty(); };
    const auto holds = [point](const sim::Display& display) { return display.bounds.contains(point); };
    return displays.empty() || std::any_of(displays.begin(), displays.end(), isEmpty) ||
           std::any_of(displays.begin(), displays.end(), holds);
}

} // namespace

struct GuardedSession::BeforeEvent {
    sim::Duration time;
    TapModel::Reply reply;
    std::uint64_t dockMoves;
    std::uint64_t writes;
};

void GuardedSession::move(double deltaX, double deltaY, EventType type) {
    const BeforeEvent before = beforeEvent();
    const sim::Delivery delivery = session_.movePointer(deltaX, deltaY, type);
    require(isReachable(delivery.sent, displays()), "the hardware moved the pointer off the displays");
    afterEvent(before, delivery);
}

void GuardedSession::post(EventType type, Point location) {
    const BeforeEvent before = beforeEvent();
    const sim::Delivery delivery = session_.post(type, location);
    require(identical(delivery.sent, location), "a posted event entered the session somewhere else");
    afterEvent(before, delivery);
}

GuardedSession::BeforeEvent GuardedSession::beforeEvent() {
    const sim::Duration now = session_.clock().now();
    const std::size_t enabledBefore = tap_.enabledTaps();
    const TapModel::Reply reply = tap_.eventArrived(now, session_.accessibility().allowsActiveTaps());
    counts_.switchedOff += enabledBefore != 0 && !reply.handled ? 1 : 0;
    return {now, reply, session_.dock().moves(), writes_};
}

void GuardedSession::afterEvent(const BeforeEvent& before, const sim::Delivery& delivery) {
    const bool handled = before.reply.handled;
    if (tracing_) {
        trace_.push_back(textOf(delivery.sent) + " -> " + textOf(delivery.delivered) +
                         (handled ? "" : " without the guard"));
    }
    if (std::optional<std::string> wrong = violationOf(expected_, handled, delivery)) {
        violate(*std::move(wrong));
    }
    require(session_.clock().now() == before.time + before.reply.held,
            "an event was not held up as long as the guard takes to reply");
    require(session_.taps().enabledCount() == tap_.enabledTaps(),
            "the tap is not switched on and off as its notices say");
    require(writes_ == before.writes, "an event wrote to the defaults");
    checkDock(before, handled);
    countEvent(delivery, handled);
}

void GuardedSession::checkDock(const BeforeEvent& before, bool handled) {
    if (session_.dock().moves() == before.dockMoves) {
        return;
    }
    ++counts_.dockMoves;
    const std::optional<DisplayID> now = session_.dock().display();
    const sim::Display* target = now ? session_.displays().withID(*now) : nullptr;
    if (target == nullptr) {
        violate("the Dock moved to a display that is not connected");
    } else if (handled && guardKeepsDockFrom(*target, expected_, session_.displays().connected())) {
        violate("the Dock moved to " + target->localizedName + ", which the guard holds the pointer off");
    }
}

void GuardedSession::countEvent(const sim::Delivery& delivery, bool handled) {
    ++counts_.events;
    counts_.handled += handled ? 1 : 0;
    if (identical(delivery.sent, delivery.delivered)) {
        return;
    }
    ++counts_.moved;
    const replay::JudgedDesk desk = expected_.judged();
    const bool wasOnLastPoint = isOnLastPoint(displayUnder(desk, delivery.sent), delivery.sent);
    counts_.pushedOff += wasOnLastPoint ? 1 : 0;
}

} // namespace kestrune::simulate
