#include "sim/session/Session.h"

#include "base/Fatal.h"
#include "platform/NotificationCenter.h"
#include "sim/session/PointerConfinement.h"

#include <algorithm>
#include <utility>

namespace kestrune::sim {

namespace {

// Counts on as long as the process lives, so that an object never takes a later session for its own.
std::uint64_t nextSessionNumber = 1; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

} // namespace

Session::Session(SessionOptions options)
    : number_(nextSessionNumber++),
      journal_(options.recordJournal),
      accessibility_(options.permission, [this](bool isInFront) { systemCameForward(isInFront); }),
      displays_(std::move(options.displays)),
      dock_(displays_, options.dockDwell),
      defaults_(std::move(options.defaults)),
      bundle_(std::move(options.bundle)),
      surroundings_(std::move(options.surroundings)),
      updates_(*this, options.updateFramework),
      measurer_(options.measurer),
      cursorFollowsEvents_(options.cursorFollowsEvents) {
    if (current_ != nullptr) {
        fatal("A simulated session exists already.");
    }
    current_ = this;
    if (!displays_.connected().empty()) {
        const Rect& primary = displays_.connected().front().bounds;
        placePointer({primary.minX() + primary.width() / 2, primary.minY() + primary.height() / 2});
    }
}

Session::~Session() {
    setFatalErrorReporter({}); // the application's, which would call the platform
    current_ = nullptr;
}

Session* Session::withNumber(std::uint64_t number) {
    return current_ != nullptr && current_->number_ == number ? current_ : nullptr;
}

void Session::stopWithoutSession() { fatal("A platform call needs a simulated session."); }

Delivery Session::movePointer(double deltaX, double deltaY, EventType type) {
    const Point wanted{pointer_.x + deltaX, pointer_.y + deltaY};
    pointer_ = confinePointer(displays_.connected(), pointer_, wanted);
    return deliver(type, pointer_, deltaY);
}

Delivery Session::movePointerTo(Point location, EventType type) {
    return movePointer(location.x - pointer_.x, location.y - pointer_.y, type);
}

void Session::placePointer(Point location) {
    pointer_ = confinePointer(displays_.connected(), pointer_, location);
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
    const TapVerdict verdict = taps_.deliver(event);
    const Delivery delivery{type, location, event.location, verdict.swallowed, verdict.replaced};
    if (!delivery.swallowed) {
        if (cursorFollowsEvents_ && delivery.delivered != pointer_) {
            placePointer(delivery.delivered);
        }
        dock_.pointerArrived(delivery.delivered, deltaY, clock_.now());
    }
    runPendingNotices();
    return delivery;
}

// The window server waits for each active tap. It waits in vain when the application's permission is gone,
// and too long when its main thread is busy; then the tap is switched off and the event goes on without it.
void Session::waitForTaps(EventType type) {
    if (!taps_.waitsFor(type)) {
        return;
    }
    const Duration wait = accessibility_.allowsActiveTaps()
                              ? std::max(mainThreadFreeAt_ - clock_.now(), Duration::zero())
                              : Duration::max();
    if (wait < TapTimeout) {
        hold(wait);
        return;
    }
    hold(TapTimeout);
    taps_.timeOut(type);
}

void Session::hold(Duration duration) {
    longestHold_ = std::max(longestHold_, duration);
    clock_.elapse(duration);
}

void Session::changeDisplays(std::vector<Display> displays) {
    displays_.set(std::move(displays));
    dock_.displaysChanged();
    placePointer(pointer_);
    if (clock_.now() >= mainThreadFreeAt_) {
        announceScreenParameters();
    } else {
        enqueueOnMainQueue([this] { announceScreenParameters(); });
    }
}

void Session::announceScreenParameters() {
    observers_.post(ApplicationDidChangeScreenParametersNotification);
}

void Session::startApplication() {
    if (!application_.exists) {
        application_.exists = true;
        application_.policy =
            bundle_.infoFlag("LSUIElement") ? ActivationPolicy::accessory : ActivationPolicy::regular;
    }
}

bool Session::reopenApplication() {
    if (!application_.isRunning) {
        return false;
    }
    windows_.setActive(true);
    const auto delegate = application_.delegate.lock();
    if (!delegate) {
        return true;
    }
    const bool hasVisibleWindows = !windows_.shown().empty() || !windows_.miniaturized().empty();
    journal_.record("-[", delegate->className(), " applicationShouldHandleReopen:hasVisibleWindows:] ",
                    hasVisibleWindows);
    return delegate->applicationShouldHandleReopen(hasVisibleWindows);
}

void Session::endApplication() {
    ++processNumber_;
    timers_.clear();
    menus_.close();
    observers_.clear();
    statusItems_.clear();
    windows_.clear();
    updates_.clear();
    isMainQueueKept_ = false;
    waitingForMainQueue_.clear();
    processObjects_.clear();
    taps_.clear();
    sources_.clear();
    accessibility_.processEnded();
    mainThreadFreeAt_ = clock_.now();
    application_ = {};
}

void Session::enqueueOnMainQueue(std::function<void()> task, Duration delay) {
    clock_.schedule(delay, [this, process = processNumber_, queued = std::move(task)] {
        if (process != processNumber_) {
            return;
        }
        if (isMainQueueKept_) {
            waitingForMainQueue_.push_back(queued);
        } else {
            queued();
        }
    });
}

void Session::beginModalAlert() {
    isMainQueueKept_ = true;
    timers_.leaveDefaultMode();
}

void Session::endModalAlert() {
    isMainQueueKept_ = false;
    timers_.enterDefaultMode();
    for (auto& task : std::exchange(waitingForMainQueue_, {})) {
        enqueueOnMainQueue(std::move(task));
    }
}

bool Session::openURL(const std::string& text) {
    if (refusesOpeningURLs_) {
        return false;
    }
    openedURLs_.push_back(text);
    if (text == Accessibility::PaneAddress) {
        accessibility_.showPane();
    }
    return true;
}

// Whoever puts away what was in front comes back to the application, if it has something to show.
void Session::systemCameForward(bool isInFront) {
    if (isInFront) {
        windows_.setActive(false);
    } else if (application_.policy == ActivationPolicy::regular && !windows_.shown().empty()) {
        windows_.setActive(true);
    }
}

void Session::onAnotherThread(const std::function<void()>& work) {
    isOnMainThread_ = false;
    work();
    isOnMainThread_ = true;
}

void Session::advance(Duration duration) {
    const Duration end = clock_.now() + duration;
    if (mainThreadFreeAt_ > clock_.now()) {
        clock_.elapse(std::min(mainThreadFreeAt_, end) - clock_.now());
        runPendingNotices();
    }
    if (mainThreadFreeAt_ <= end) {
        clock_.advance(end - clock_.now());
        runPendingNotices();
    }
}

void Session::stallMainThread(Duration duration) {
    mainThreadFreeAt_ = std::max(mainThreadFreeAt_, clock_.now() + duration);
}

void Session::disableTaps(EventType reason) {
    taps_.disableAll(reason);
    runPendingNotices();
}

void Session::runPendingNotices() {
    if (clock_.now() >= mainThreadFreeAt_) {
        taps_.notify();
    }
}

} // namespace kestrune::sim
