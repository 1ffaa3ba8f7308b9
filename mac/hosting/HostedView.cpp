#include "mac/hosting/HostedView.h"

#include "mac/Vocabulary.h"
#include "mac/hosting/ButtonSettings.h"
#include "mac/hosting/Drawing.h"
#include "mac/objc/Lifetime.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/objc/Text.h"
#include "platform/Bundle.h"
#include "platform/MainActor.h"

#include <utility>

namespace kestrune::mac {

namespace {

std::string localize(std::string_view key) { return Bundle::mainBundle().localizedString(key); }

std::string uppercase(std::string_view text) {
    const Pool pool;
    return textOf(ns_string::localizedUppercaseString(nsString(text).get()));
}

// Held until the control's action is done; null when the view has outlived it. What the action lets go of,
// the window among it, stays until AppKit has finished with the event.
std::shared_ptr<HostedView> hostOf(id view, id control) {
    auto* const host = static_cast<HostedView*>(RuntimeClass::target(view));
    if (host == nullptr) {
        return nullptr;
    }
    keepForThisTurn(control);
    keepForThisTurn(ns_view::window(view));
    return host->shared_from_this();
}

void pressButton(id view, SEL, id button) noexcept {
    const Pool pool;
    if (const auto host = hostOf(view, button)) {
        host->press(actionOf(button));
    }
}

void flipSwitch(id view, SEL, id control) noexcept {
    const Pool pool;
    if (const auto host = hostOf(view, control)) {
        host->flip(actionOf(control), ns_switch::state(control) != 0);
    }
}

Class viewClass() {
    static const Class made = [] {
        RuntimeClass type("KestruneHostingView", ns_view::type.find());
        type.addMethod("isFlipped", alwaysFlipped);
        type.addMethod("pressButton:", pressButton);
        type.addMethod("flipSwitch:", flipSwitch);
        return type.finish();
    }();
    return made;
}

Retained newView() {
    return Retained::adopting(
        ns_view::initWithFrame(ns_object::alloc(reinterpret_cast<id>(viewClass())), Rect()));
}

} // namespace

std::shared_ptr<HostedView> HostedView::make(ui::RootView root) {
    return std::shared_ptr<HostedView>(new HostedView(std::move(root)));
}

HostedView::HostedView(ui::RootView root)
    : shown_(newView()),
      host_(std::move(root), {measurer_, localize, uppercase}, [this] { scheduleRendering(); }) {
    RuntimeClass::setTarget(view(), this);
    shown_.show(host_.scene());
    fitWindow();
}

HostedView::~HostedView() { RuntimeClass::setTarget(view(), nullptr); }

void HostedView::setSizing(HostingSizingOptions sizing) {
    sizing_ = sizing;
    if (sizing == HostingSizingOptions::preferredContentSize) {
        fitWindow();
    }
}

void HostedView::enterWindow() {
    // Otherwise the window would order the controls by their places.
    ns_window::setInitialFirstResponder(ns_view::window(view()), view());
    fitWindow();
}

void HostedView::press(std::size_t action) { host_.press(action); }

void HostedView::flip(std::size_t action, bool isOn) {
    host_.flip(action, isOn);
    // After the rendering, if there is one: the switch shows what the model has become, also when that is
    // what it was.
    MainActor::startTask([weakThis = weak_from_this()] {
        if (const auto self = weakThis.lock()) {
            self->shown_.show(self->host_.scene());
        }
    });
}

void HostedView::scheduleRendering() {
    MainActor::startTask([weakThis = weak_from_this()] {
        if (const auto self = weakThis.lock()) {
            self->render();
        }
    });
}

void HostedView::render() {
    if (!host_.render()) {
        return;
    }
    shown_.show(host_.scene());
    if (sizing_ == HostingSizingOptions::preferredContentSize) {
        fitWindow();
    }
}

// The top left corner of the window stays where it is.
void HostedView::fitWindow() const {
    const Size size = host_.scene().size;
    const id window = ns_view::window(view());
    if (window == nullptr) {
        ns_view::setFrame(view(), {0, 0, size.width, size.height});
        return;
    }
    const Rect now = ns_window::frame(window);
    const Size fitting = ns_window::frameRectForContentRect(window, {0, 0, size.width, size.height}).size;
    const Rect next(now.origin.x, now.maxY() - fitting.height, fitting.width, fitting.height);
    if (next != now) {
        ns_window::setFrame(window, next, truth(true));
    }
}

} // namespace kestrune::mac
