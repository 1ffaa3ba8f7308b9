#include "Kestrune/DockGuardController.h"

#include "Kestrune/ApplicationLog.h"
#include "Kestrune/BlockedBand.h"

#include <algorithm>
#include <utility>

namespace kestrune {

namespace {

constexpr EventMask PointerMotion =
    eventMaskBit(EventType::mouseMoved) | eventMaskBit(EventType::leftMouseDragged) |
    eventMaskBit(EventType::rightMouseDragged) | eventMaskBit(EventType::otherMouseDragged);
static_assert(PointerMotion == 0x080000E0);

constexpr LogMessage TapRefused =
    LogMessage::of<"Failed to create event tap. Accessibility permission required.">();

} // namespace

void DockGuardController::setPreferences(std::shared_ptr<Preferences> preferences) {
    preferences_ = std::move(preferences);
}

void DockGuardController::refreshScreens() {
    screensCache_ = allScreens();
    edgesCache_.clear();
    for (const ManagedScreen& screen : screensCache_) {
        edgesCache_.push_back(screen.cgFrame.edges());
    }
    const std::optional<std::string> storedUUID =
        preferences_ ? preferences_->defaults().stringForKey(Preferences::PinnedScreenUUIDKey) : std::nullopt;
    pinnedScreen_ = screenWithUUID(storedUUID);
    if (pinnedScreen_) {
        return;
    }
    pinnedScreen_ = fallbackScreen();
    if (!storedUUID) {
        return;
    }
    if (!pinnedScreen_) {
        preferences_->defaults().setObject(std::nullopt, Preferences::PinnedScreenUUIDKey);
    } else if (pinnedScreen_->uuid != *storedUUID) {
        preferences_->defaults().setObject(pinnedScreen_->uuid, Preferences::PinnedScreenUUIDKey);
    }
}

std::optional<ManagedScreen> DockGuardController::fallbackScreen() const {
    if (std::optional<ManagedScreen> mainScreen = screenWithUUID(mainScreenUUID())) {
        return mainScreen;
    }
    return screensCache_.empty() ? std::nullopt : std::optional(screensCache_.front());
}

void DockGuardController::start() {
    std::optional<EventTap> tap =
        EventTap::create(EventTapLocation::session, EventTapPlacement::headInsert,
                         EventTapOptions::defaultTap, PointerMotion, eventTapCallback, this);
    if (!tap) {
        log().error(TapRefused);
        return;
    }
    RunLoopSource source = tap->createRunLoopSource(0);
    RunLoop::current().addSource(source, RunLoopMode::commonModes);
    tap->enable(true);
    removeTap();
    eventTap_ = std::move(tap);
    runLoopSource_ = std::move(source);
    isRunning_ = true;
}

void DockGuardController::stop() {
    if (!isRunning_) {
        return;
    }
    removeTap();
    isRunning_ = false;
}

void DockGuardController::removeTap() {
    if (eventTap_) {
        eventTap_->enable(false);
    }
    if (runLoopSource_) {
        RunLoop::current().removeSource(*runLoopSource_, RunLoopMode::commonModes);
    }
    eventTap_.reset();
    runLoopSource_.reset();
}

Event* DockGuardController::eventTapCallback(EventTapProxy*, EventType type, Event* event,
                                             void* userInfo) noexcept {
    if (userInfo == nullptr) {
        return event;
    }
    auto* controller = static_cast<DockGuardController*>(userInfo);
    if (type == EventType::tapDisabledByTimeout || type == EventType::tapDisabledByUserInput) {
        if (controller->eventTap_) {
            controller->eventTap_->enable(true);
        }
        return event;
    }
    return controller->handleEvent(event);
}

Event* DockGuardController::handleEvent(Event* event) {
    if (!preferences_ || !preferences_->isEnabled()) {
        return event;
    }
    if (screensCache_.size() < 2) {
        return event;
    }
    // A refresh that finds displays pins one of them, so that no test can take this branch.
    if (!pinnedScreen_) { // GCOVR_EXCL_BR_LINE
        return event;     // GCOVR_EXCL_LINE
    }
    const Point location = event->location();
    const ManagedScreen* screen = screenAt(location);
    if (screen == nullptr || *screen == *pinnedScreen_) {
        return event;
    }
    const BlockedBand band(screen->cgFrame, blockMargin());
    if (band.blocks(location.y)) {
        event->setLocation({location.x, band.heldY()});
    }
    return event;
}

const ManagedScreen* DockGuardController::screenAt(Point location) const {
    const auto match = std::find_if(edgesCache_.begin(), edgesCache_.end(),
                                    [location](const Edges& edges) { return edges.contains(location); });
    return match == edgesCache_.end() ? nullptr
                                      : &screensCache_[static_cast<std::size_t>(match - edgesCache_.begin())];
}

double DockGuardController::blockMargin() const {
    const double margin = preferences_->defaults().doubleForKey(Preferences::BlockMarginKey);
    // Written so that a margin that is not a number takes the default too.
    return margin > 0 ? margin : DefaultBlockMargin;
}

const Log& DockGuardController::log() {
    if (!log_) {
        log_ = applicationLog("dockGuard");
    }
    return *log_;
}

} // namespace kestrune
