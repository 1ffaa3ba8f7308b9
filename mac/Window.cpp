#include "platform/Window.h"

#include "mac/Handles.h"
#include "mac/ObjectCounterpart.h"
#include "mac/hosting/HostedView.h"
#include "mac/hosting/HostingState.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

Window::Window(const Rect& contentRect, WindowStyleMask styleMask, BackingStoreType backing, bool defer) {
    const mac::Pool pool;
    const id window = mac::appKit.window.initWithContentRect(
        mac::allocate(mac::appKit.window), contentRect, static_cast<mac::Unsigned>(styleMask),
        static_cast<mac::Unsigned>(backing), mac::truth(defer));
    state_ = std::make_shared<State>(State{mac::Retained::adopting(window)});
}

std::string Window::className() const { return object_getClassName(state_->window.get()); }

std::string Window::title() const {
    const mac::Pool pool;
    return mac::textOf(mac::appKit.window.title(state_->window.get()));
}

void Window::setTitle(std::string_view title) {
    const mac::Pool pool;
    mac::appKit.window.setTitle(state_->window.get(), mac::nsString(title).get());
}

void Window::setReleasedWhenClosed(bool released) {
    mac::appKit.window.setReleasedWhenClosed(state_->window.get(), mac::truth(released));
}

void Window::setLevel(WindowLevel level) {
    const mac::Pool pool;
    mac::appKit.window.setLevel(state_->window.get(), static_cast<mac::Integer>(level));
}

void Window::setHidesOnDeactivate(bool hides) {
    mac::appKit.window.setHidesOnDeactivate(state_->window.get(), mac::truth(hides));
}

void Window::setCollectionBehavior(WindowCollectionBehavior behavior) {
    mac::appKit.window.setCollectionBehavior(state_->window.get(), static_cast<mac::Unsigned>(behavior));
}

void Window::center() {
    const mac::Pool pool;
    mac::appKit.window.center(state_->window.get());
}

void Window::setContentViewController(const HostingController& controller) {
    const mac::Pool pool;
    mac::appKit.window.setContentViewController(state_->window.get(), controller.state()->controller.get());
}

void Window::setContentView(const HostingView& view) {
    const mac::Pool pool;
    const id hosted = view.state()->view.get();
    mac::appKit.window.setContentView(state_->window.get(), hosted);
    // Which gives the view the window's size, where a hosting view gives the window its own.
    if (const mac::HostedView* const host = mac::HostedView::of(hosted)) {
        host->fitWindow();
    }
}

void Window::setDelegate(const std::weak_ptr<WindowDelegate>& delegate) {
    const mac::Pool pool;
    mac::appKit.window.setDelegate(state_->window.get(), Object::Counterpart::of(delegate));
}

void Window::makeKeyAndOrderFront() {
    const mac::Pool pool;
    mac::appKit.window.makeKeyAndOrderFront(state_->window.get(), nullptr);
}

void Window::orderOut() {
    const mac::Pool pool;
    mac::appKit.window.orderOut(state_->window.get(), nullptr);
}

} // namespace kestrune
