#include "mac/hosting/HostedView.h"

#include "mac/hosting/Controls.h"
#include "mac/hosting/Drawing.h"
#include "mac/objc/Lifetime.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Actions.h"
#include "mac/vocabulary/Vocabulary.h"
#include "platform/Bundle.h"
#include "platform/MainActor.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace kestrune::mac {

namespace {

std::string localize(std::string_view key) { return Bundle::mainBundle().localizedString(key); }

std::string uppercase(std::string_view text) {
    const Pool pool;
    return textOf(foundation.string.localizedUppercaseString(nsString(text).get()));
}

// What the action lets go of, the window among it, stays until AppKit has finished with the event.
HostedView* hostOf(id view, id control) {
    keepForThisTurn(control);
    keepForThisTurn(appKit.view.window(view));
    return HostedView::of(view);
}

void pressButton(id view, SEL, id button) noexcept {
    const Pool pool;
    hostOf(view, button)->press(actionOf(button));
}

void flipSwitch(id view, SEL, id control) noexcept {
    const Pool pool;
    hostOf(view, control)->flip(actionOf(control), appKit.switchControl.state(control) != 0);
}

// Otherwise the window would order the controls by their places.
void viewDidMoveToWindow(id view, SEL) noexcept {
    const Pool pool;
    appKit.window.setInitialFirstResponder(appKit.view.window(view), view);
}

void dealloc(id view, SEL) noexcept {
    const Pool pool;
    std::unique_ptr<HostedView> host(static_cast<HostedView*>(RuntimeClass::target(view)));
    host.reset();
    foundation.object.dealloc.asImplementedBy(appKit.view.find(), view);
}

Class viewClass() {
    static const Class made = [] {
        RuntimeClass type("KestruneHostingView", appKit.view);
        type.addMethod(appKit.view.isFlipped, alwaysFlipped);
        type.addMethod(actions::pressButton, pressButton);
        type.addMethod(actions::flipSwitch, flipSwitch);
        type.addMethod(appKit.view.viewDidMoveToWindow, viewDidMoveToWindow);
        type.addMethod(foundation.object.dealloc, dealloc);
        return type.finish();
    }();
    return made;
}

Retained newView() { return Retained::adopting(appKit.view.initWithFrame(allocate(viewClass()), Rect())); }

} // namespace

Retained HostedView::make(ui::RootView root) {
    Retained view = newView();
    if (!view) {
        return view;
    }
    std::unique_ptr<HostedView> made(new HostedView(view.get(), std::move(root)));
    RuntimeClass::setTarget(view.get(), made.release());
    return view;
}

HostedView* HostedView::of(id view) { return static_cast<HostedView*>(RuntimeClass::target(view)); }

HostedView::HostedView(id view, ui::RootView root)
    : shown_(view),
      host_(std::move(root), {measurer_, localize, uppercase}, [this] { startTask(&HostedView::render); }) {
    showScene();
    fitWindow();
}

void HostedView::setSizing(HostingSizingOptions sizing) {
    sizing_ = sizing;
    if (contains(sizing, HostingSizingOptions::preferredContentSize)) {
        fitWindow();
    }
}

void HostedView::press(std::size_t action) {
    const Retained kept = Retained::retaining(view());
    host_.press(action);
}

void HostedView::flip(std::size_t action, bool isOn) {
    const Retained kept = Retained::retaining(view());
    host_.flip(action, isOn);
    // After the rendering, if there is one: the switch shows what the model has become, also when that is
    // what it was.
    startTask(&HostedView::showScene);
}

void HostedView::startTask(void (HostedView::*task)()) {
    MainActor::startTask([weakSelf = std::weak_ptr(self_), task] {
        if (const auto self = weakSelf.lock()) {
            const Retained kept = Retained::retaining((*self)->view());
            ((*self)->*task)();
        }
    });
}

void HostedView::render() {
    if (!host_.render()) {
        return;
    }
    showScene();
    if (contains(sizing_, HostingSizingOptions::preferredContentSize)) {
        fitWindow();
    }
}

void HostedView::showScene() { shown_.show(host_.scene()); }

void HostedView::fitWindow() const {
    const Size size = host_.scene().size;
    const id window = appKit.view.window(view());
    if (window == nullptr) {
        appKit.view.setFrame(view(), {0, 0, size.width, size.height});
        return;
    }
    const Rect now = appKit.window.frame(window);
    const Size fitting = appKit.window.frameRectForContentRect(window, {0, 0, size.width, size.height}).size;
    const Rect next(now.origin.x, now.maxY() - fitting.height, fitting.width, fitting.height);
    if (next != now) {
        appKit.window.setFrame(window, next, truth(true));
    }
}

} // namespace kestrune::mac
