#include "platform/Window.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/HostedView.h"
#include "sim/services/WindowState.h"
#include "sim/services/Windows.h"

namespace kestrune {

namespace {

std::string_view nameOf(WindowLevel level) {
    return level == WindowLevel::floating ? "NSFloatingWindowLevel" : "NSNormalWindowLevel";
}

} // namespace

Window::Window(const Rect& contentRect, WindowStyleMask styleMask, BackingStoreType backing, bool defer)
    : state_(std::make_shared<State>()) {
    sim::recordCall("-[NSWindow initWithContentRect:styleMask:backing:defer:] ", contentRect.origin, " ",
                    contentRect.size.width, " x ", contentRect.size.height, ", ",
                    static_cast<std::uintptr_t>(styleMask), ", ", static_cast<std::uintptr_t>(backing), ", ",
                    defer);
    state_->styleMask = styleMask;
    state_->frame = contentRect;
    state_->frame.size.height += state_->titleBarHeight();
    sim::current<sim::Windows>().add(state_);
}

std::string Window::className() const {
    sim::recordCall("object_getClassName");
    return state_->className;
}

std::string Window::title() const {
    sim::recordCall("-[NSWindow title]");
    return state_->title;
}

void Window::setTitle(std::string_view title) {
    sim::recordCall("-[NSWindow setTitle:] ", title);
    state_->title = title;
}

void Window::setReleasedWhenClosed(bool released) {
    sim::recordCall("-[NSWindow setReleasedWhenClosed:] ", released);
    state_->isReleasedWhenClosed = released;
}

void Window::setLevel(WindowLevel level) {
    sim::recordCall("-[NSWindow setLevel:] ", nameOf(level));
    state_->level = level;
}

void Window::setHidesOnDeactivate(bool hides) {
    sim::recordCall("-[NSWindow setHidesOnDeactivate:] ", hides);
    state_->hidesOnDeactivate = hides;
}

void Window::setCollectionBehavior(WindowCollectionBehavior behavior) {
    sim::recordCall("-[NSWindow setCollectionBehavior:] ", static_cast<std::uintptr_t>(behavior));
    state_->collectionBehavior = behavior;
}

void Window::center() {
    sim::recordCall("-[NSWindow center]");
    sim::current<sim::Windows>().center(*state_);
}

void Window::setContentViewController(const HostingController& controller) {
    sim::recordCall("-[NSWindow setContentViewController:]");
    state_->content = controller.state()->view;
    state_->content->enter(state_);
}

void Window::setContentView(const HostingView& view) {
    sim::recordCall("-[NSWindow setContentView:]");
    state_->content = view.state()->view;
    state_->content->enter(state_);
}

void Window::setDelegate(const std::weak_ptr<WindowDelegate>& delegate) {
    const auto object = delegate.lock();
    sim::recordCall("-[NSWindow setDelegate:] ", object ? object->className() : "nil");
    state_->delegate = delegate;
}

void Window::makeKeyAndOrderFront() {
    sim::recordCall("-[NSWindow makeKeyAndOrderFront:]");
    sim::current<sim::Windows>().makeKeyAndOrderFront(state_);
}

void Window::orderOut() {
    sim::recordCall("-[NSWindow orderOut:]");
    sim::current<sim::Windows>().orderOut(state_);
}

} // namespace kestrune
