#include "platform/Window.h"

#include "sim/HostedView.h"
#include "sim/Session.h"
#include "sim/WindowState.h"

namespace kestrune {

namespace {

template <typename... Parts>
void record(const Parts&... parts) {
    sim::Session::current().journal().record(parts...);
}

std::string_view nameOf(WindowLevel level) {
    return level == WindowLevel::floating ? "NSFloatingWindowLevel" : "NSNormalWindowLevel";
}

} // namespace

Rect Window::State::contentRect() const {
    return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height - titleBarHeight()};
}

void Window::State::setContentSize(Size size) {
    const double top = frame.maxY();
    frame.size = {size.width, size.height + titleBarHeight()};
    frame.origin.y = top - frame.size.height;
}

Window::Window(const Rect& contentRect, WindowStyleMask styleMask, BackingStoreType backing, bool defer)
    : state_(std::make_shared<State>()) {
    record("-[NSWindow initWithContentRect:styleMask:backing:defer:] ", contentRect.origin, " ",
           contentRect.size.width, " x ", contentRect.size.height, ", ",
           static_cast<std::uintptr_t>(styleMask), ", ", static_cast<std::uintptr_t>(backing), ", ", defer);
    state_->styleMask = styleMask;
    state_->frame = contentRect;
    state_->frame.size.height += state_->titleBarHeight();
}

void Window::setTitle(std::string_view title) {
    record("-[NSWindow setTitle:] ", title);
    state_->title = title;
}

void Window::setReleasedWhenClosed(bool released) {
    record("-[NSWindow setReleasedWhenClosed:] ", released);
    state_->isReleasedWhenClosed = released;
}

void Window::setLevel(WindowLevel level) {
    record("-[NSWindow setLevel:] ", nameOf(level));
    state_->level = level;
}

void Window::setHidesOnDeactivate(bool hides) {
    record("-[NSWindow setHidesOnDeactivate:] ", hides);
    state_->hidesOnDeactivate = hides;
}

void Window::setCollectionBehavior(WindowCollectionBehavior behavior) {
    record("-[NSWindow setCollectionBehavior:] ", static_cast<std::uintptr_t>(behavior));
    state_->collectionBehavior = behavior;
}

void Window::center() {
    record("-[NSWindow center]");
    sim::Session::current().windows().center(*state_);
}

void Window::setContentViewController(const HostingController& controller) {
    record("-[NSWindow setContentViewController:]");
    state_->content = controller.state()->view;
    state_->content->enter(state_);
}

void Window::setContentView(const HostingView& view) {
    record("-[NSWindow setContentView:]");
    state_->content = view.state()->view;
    state_->content->enter(state_);
}

void Window::setDelegate(const std::weak_ptr<WindowDelegate>& delegate) {
    const auto object = delegate.lock();
    record("-[NSWindow setDelegate:] ", object ? object->className() : "nil");
    state_->delegate = delegate;
}

void Window::makeKeyAndOrderFront() {
    record("-[NSWindow makeKeyAndOrderFront:]");
    sim::Session::current().windows().makeKeyAndOrderFront(state_);
}

void Window::orderOut() {
    record("-[NSWindow orderOut:]");
    sim::Session::current().windows().orderOut(state_);
}

} // namespace kestrune
