// Notifications inside the process.
//
// Source: Foundation, NSNotification.h, NSOperation.h; AppKit, NSApplication.h, NSWindow.h.
#pragma once

#include "platform/Window.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace kestrune {

// The text must have static storage.
class NotificationName {
public:
    constexpr explicit NotificationName(std::string_view name) : name_(name) {}

    constexpr std::string_view name() const { return name_; }

private:
    std::string_view name_;
};

// Posted by AppKit on the main thread when displays were connected, disconnected or rearranged. Several may
// come for one change, and the list of displays may be empty or partial meanwhile.
inline constexpr NotificationName ApplicationDidChangeScreenParametersNotification{
    "NSApplicationDidChangeScreenParametersNotification"};

// Posted by AppKit on the main thread when a window receives the keys from now on. Its object is the window.
inline constexpr NotificationName WindowDidBecomeKeyNotification{"NSWindowDidBecomeKeyNotification"};

// An NSNotification, borrowed for the time of the block that gets it.
class Notification {
public:
    // object, if it is an NSWindow.
    std::optional<Window> objectAsWindow() const;

    struct State;
    explicit Notification(const State& state) : state_(state) {}

private:
    const State& state_;
};

class OperationQueue {
public:
    // NSOperationQueue.mainQueue: runs on the main thread, also while a menu is tracked or an alert is modal.
    static OperationQueue mainQueue();

private:
    OperationQueue() = default;
};

// The token of an observation, retained. The center retains it too, so the observation outlives this.
class NotificationObserver {
public:
    struct State;
    explicit NotificationObserver(std::shared_ptr<State> state) : state_(std::move(state)) {}
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

class NotificationCenter {
public:
    // NSNotificationCenter.defaultCenter.
    static NotificationCenter defaultCenter();

    // addObserverForName:object:queue:usingBlock: with object nil: from every sender. `block` runs on
    // `queue`, inline when the notification is posted from there, and must not throw.
    NotificationObserver addObserver(const NotificationName& name, const OperationQueue& queue,
                                     std::function<void(const Notification&)> block);

    // removeObserver:. The block is not run any more, and gone once it is not running.
    void removeObserver(const NotificationObserver& observer);

private:
    NotificationCenter() = default;
};

} // namespace kestrune
