#include "sim/session/Session.h"

#include "base/Fatal.h"
#include "platform/NotificationCenter.h"
#include "sim/hardware/PointerConfinement.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

Session::Session(SessionOptions options)
    : cursorFollowsEvents_(options.cursorFollowsEvents), system_(std::move(options)) {
    const auto& displays = system_.displays.connected();
    if (!displays.empty()) {
        const Rect& primary = displays.front().bounds;
        placePointer({primary.minX() + primary.width() / 2, primary.minY() + primary.height() / 2});
    }
}

Delivery Session::movePointer(double deltaX, double deltaY, EventType type) {
    const Point wanted{pointer_.x + deltaX, pointer_.y + deltaY};
    pointer_ = confinePointer(system_.displays.connected(), pointer_, wanted);
    return deliver(type, pointer_, deltaY);
}

Delivery Session::movePointerTo(Point location, EventType type) {
    return movePointer(location.x - pointer_.x, location.y - pointer_.y, type);
}

void Session::placePointer(Point location) {
    pointer_ = confinePointer(system_.displays.connected(), pointer_, location);
}

Delivery Session::post(EventType type, Point location) {
    const double deltaY = location.y - pointer_.y;
    return deliver(type, location, deltaY);
}

Delivery Session::deliver(EventType type, Point location, double deltaY) {
    if (type >= EventType::tapDisabledByTimeout) {
        fatal("A notice to a tap is no event of the pointer.");
    }
    PointerEvent event(type, location);
    waitForTaps(type);
    const TapVerdict verdict = system_.taps.deliver(event);
    const Delivery delivery{type, location, event.location, verdict.swallowed, verdict.replaced};
    if (!delivery.swallowed) {
        if (cursorFollowsEvents_ && delivery.delivered != pointer_) {
            placePointer(delivery.delivered);
        }
        system_.dock.pointerArrived(delivery.delivered, deltaY, system_.clock.now());
    }
    system_.tellOfDisabledTaps();
    return delivery;
}

// The window server waits for each active tap. It waits in vain when the application's permission is gone,
// and too long when its main thread is busy; then the tap is switched off and the event goes on without it.
void Session::waitForTaps(EventType type) {
    if (!system_.taps.waitsFor(type)) {
        return;
    }
    const Duration wait = system_.accessibility.allowsActiveTaps()
                              ? std::max(system_.mainThread.freeAt() - system_.clock.now(), Duration::zero())
                              : Duration::max();
    if (wait < TapTimeout) {
        hold(wait);
        return;
    }
    hold(TapTimeout);
    system_.taps.timeOut(type);
}

void Session::hold(Duration duration) {
    longestHold_ = std::max(longestHold_, duration);
    system_.clock.elapse(duration);
}

void Session::changeDisplays(std::vector<Display> displays) {
    system_.displays.set(std::move(displays));
    system_.dock.displaysChanged();
    placePointer(pointer_);
    const auto announce = [this] {
        system_.observers.post(ApplicationDidChangeScreenParametersNotification);
    };
    if (system_.mainThread.isFree()) {
        announce();
    } else {
        system_.mainThread.enqueue(announce);
    }
}

void Session::advance(Duration duration) {
    VirtualClock& clock = system_.clock;
    const MainThread& mainThread = system_.mainThread;
    const Duration end = clock.now() + duration;
    if (!mainThread.isFree()) {
        clock.elapse(std::min(mainThread.freeAt(), end) - clock.now());
        system_.tellOfDisabledTaps();
    }
    if (mainThread.freeAt() <= end) {
        clock.advance(end - clock.now());
        system_.tellOfDisabledTaps();
    }
}

} // namespace kestrune::sim
