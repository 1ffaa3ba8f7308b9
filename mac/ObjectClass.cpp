#include "mac/ObjectClass.h"

#include "base/Fatal.h"
#include "mac/Handles.h"
#include "mac/ObjectCounterpart.h"
#include "mac/Protocols.h"
#include "mac/objc/Lifetime.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/vocabulary/Vocabulary.h"
#include "platform/Application.h"
#include "platform/Updater.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kestrune::mac {

namespace {

// Held until the method returns, whatever it lets go of; null when the object is gone.
std::shared_ptr<Object> objectOf(id instance) {
    const auto* const counterpart = static_cast<Object::Counterpart*>(RuntimeClass::target(instance));
    return counterpart != nullptr ? counterpart->object.lock() : nullptr;
}

void performAction(id instance, SEL selector, id sender) noexcept {
    const Pool pool;
    const std::shared_ptr<Object> object = objectOf(instance);
    if (!object) {
        return;
    }
    const auto methods = object->actionMethods();
    const std::string_view name = sel_getName(selector);
    const auto method = std::find_if(methods.begin(), methods.end(), [name](const ActionMethod& candidate) {
        return candidate.selector.name() == name;
    });
    if (method != methods.end()) {
        method->perform(*object, MenuItem(std::make_shared<MenuItem::State>(
                                     MenuItem::State{Retained::retaining(sender)})));
    }
}

// The sender is in no register that the method may look at.
void performActionWithoutSender(id instance, SEL selector) noexcept {
    performAction(instance, selector, nullptr);
}

void menuWillOpen(id instance, SEL, id menu) noexcept {
    const Pool pool;
    if (const auto delegate = std::dynamic_pointer_cast<MenuDelegate>(objectOf(instance))) {
        delegate->menuWillOpen(Menu(std::make_shared<Menu::State>(Menu::State{Retained::retaining(menu)})));
    }
}

// A method of a delegate that takes a notification and does not look at it.
template <typename Delegate, void (Delegate::*method)()>
void hearOf(id instance, SEL, id /*notification*/) noexcept {
    const Pool pool;
    if (const auto delegate = std::dynamic_pointer_cast<Delegate>(objectOf(instance))) {
        (delegate.get()->*method)();
    }
}

// A method of a delegate without arguments.
template <typename Delegate, void (Delegate::*method)()>
void tell(id instance, SEL selector) noexcept {
    hearOf<Delegate, method>(instance, selector, nullptr);
}

// Without a delegate as without the method.
BOOL shouldHandleReopen(id instance, SEL, id /*application*/, BOOL hasVisibleWindows) noexcept {
    const Pool pool;
    const auto delegate = std::dynamic_pointer_cast<ApplicationDelegate>(objectOf(instance));
    return truth(!delegate || delegate->applicationShouldHandleReopen(hasVisibleWindows != 0));
}

// Without a delegate as without the method.
BOOL supportsGentleReminders(id instance, SEL) noexcept {
    const Pool pool;
    const auto delegate = std::dynamic_pointer_cast<StandardUserDriverDelegate>(objectOf(instance));
    return truth(delegate && delegate->supportsGentleScheduledUpdateReminders());
}

// Who shows the update, which one it is and what the user knows of it is not the delegate's concern.
void willHandleShowingUpdate(id instance, SEL selector, BOOL, id /*update*/, id /*state*/) noexcept {
    tell<StandardUserDriverDelegate, &StandardUserDriverDelegate::standardUserDriverWillHandleShowingUpdate>(
        instance, selector);
}

// The delegate may let go of the window, which is still closing.
void windowWillClose(id instance, SEL selector, id notification) noexcept {
    const Pool pool;
    keepForThisTurn(foundation.notification.object(notification));
    hearOf<WindowDelegate, &WindowDelegate::windowWillClose>(instance, selector, notification);
}

// Where each class of window controllers is defined.
std::unordered_map<Class, std::string_view>& sourcePaths() {
    static std::unordered_map<Class, std::string_view> paths;
    return paths;
}

// An instance may be of a subclass that the platform has made of its class, as an observed one is.
std::string_view sourcePathOf(id instance) {
    for (Class type = object_getClass(instance); type != nullptr; type = class_getSuperclass(type)) {
        const auto found = sourcePaths().find(type);
        if (found != sourcePaths().end()) {
            return found->second;
        }
    }
    return {};
}

id refuseConstruction(id instance, SEL, id /*archiveOrWindow*/) noexcept {
    fatal("init(coder:) is not supported", sourcePathOf(instance));
}

void addActions(RuntimeClass& made, const Object& object) {
    for (const ActionMethod& method : object.actionMethods()) {
        const std::string selector(method.selector.name());
        if (selector.ends_with(':')) {
            made.addMethod(Action<void(id)>{selector.c_str()}, performAction);
        } else {
            made.addMethod(Action<void()>{selector.c_str()}, performActionWithoutSender);
        }
    }
}

void addUserDriverMethods(RuntimeClass& made) {
    using Delegate = StandardUserDriverDelegate;
    made.addMethod(sparkle.userDriverDelegate.supportsGentleScheduledUpdateReminders,
                   supportsGentleReminders);
    made.addMethod(sparkle.userDriverDelegate.standardUserDriverWillHandleShowingUpdate,
                   willHandleShowingUpdate);
    made.addMethod(sparkle.userDriverDelegate.standardUserDriverWillFinishUpdateSession,
                   tell<Delegate, &Delegate::standardUserDriverWillFinishUpdateSession>);
    made.addMethod(sparkle.userDriverDelegate.standardUserDriverWillShowModalAlert,
                   tell<Delegate, &Delegate::standardUserDriverWillShowModalAlert>);
    made.addMethod(sparkle.userDriverDelegate.standardUserDriverDidShowModalAlert,
                   tell<Delegate, &Delegate::standardUserDriverDidShowModalAlert>);
}

void addDelegateMethods(RuntimeClass& made, const Object& object) {
    if (dynamic_cast<const MenuDelegate*>(&object) != nullptr) {
        made.addMethod(appKit.menuDelegate.menuWillOpen, menuWillOpen);
    }
    if (dynamic_cast<const ApplicationDelegate*>(&object) != nullptr) {
        made.addMethod(appKit.applicationDelegate.applicationDidFinishLaunching,
                       hearOf<ApplicationDelegate, &ApplicationDelegate::applicationDidFinishLaunching>);
        made.addMethod(appKit.applicationDelegate.applicationShouldHandleReopen, shouldHandleReopen);
        made.addMethod(appKit.applicationDelegate.applicationWillTerminate,
                       hearOf<ApplicationDelegate, &ApplicationDelegate::applicationWillTerminate>);
    }
    if (dynamic_cast<const WindowDelegate*>(&object) != nullptr) {
        made.addMethod(appKit.windowDelegate.windowDidBecomeKey,
                       hearOf<WindowDelegate, &WindowDelegate::windowDidBecomeKey>);
        made.addMethod(appKit.windowDelegate.windowWillClose, windowWillClose);
    }
    if (dynamic_cast<const StandardUserDriverDelegate*>(&object) != nullptr) {
        addUserDriverMethods(made);
    }
}

// Those of Sparkle's are there when it is loaded.
void adoptProtocols(Class type, const Object& object) {
    if (dynamic_cast<const MenuDelegate*>(&object) != nullptr) {
        adopt(type, appKit.menuDelegate);
    }
    if (dynamic_cast<const ApplicationDelegate*>(&object) != nullptr) {
        adopt(type, appKit.applicationDelegate);
    }
    if (dynamic_cast<const WindowDelegate*>(&object) != nullptr) {
        adopt(type, appKit.windowDelegate);
    }
}

Class makeClass(const std::string& name, const Object& object) {
    const auto* const controller = dynamic_cast<const WindowController*>(&object);
    RuntimeClass made(name.c_str(), controller != nullptr
                                        ? static_cast<const ClassReference&>(appKit.windowController)
                                        : foundation.object);
    addActions(made, object);
    addDelegateMethods(made, object);
    if (controller != nullptr) {
        made.addMethod(appKit.windowController.initWithCoder, refuseConstruction);
        made.addMethod(appKit.windowController.initWithWindow, refuseConstruction);
    }
    const Class finished = made.finish();
    if (controller != nullptr) {
        sourcePaths().emplace(finished, controller->sourcePath());
    }
    adoptProtocols(finished, object);
    return finished;
}

} // namespace

// Of its own list, because a framework may have a class of the same name.
Class classOf(const Object& object) {
    static std::unordered_map<std::string, Class> made;
    const std::string name(object.className());
    const auto known = made.find(name);
    return known != made.end() ? known->second : made.emplace(name, makeClass(name, object)).first->second;
}

} // namespace kestrune::mac
