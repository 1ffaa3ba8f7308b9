#include "platform/Object.h"

#include "mac/Handles.h"
#include "mac/ObjectCounterpart.h"
#include "mac/Vocabulary.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "platform/Application.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kestrune {

namespace {

// Held until the method returns, whatever it lets go of; null when the object is gone.
std::shared_ptr<Object> objectOf(id instance) {
    const auto* const counterpart = static_cast<Object::Counterpart*>(mac::RuntimeClass::target(instance));
    return counterpart != nullptr ? counterpart->object.lock() : nullptr;
}

void performAction(id instance, SEL selector, id sender) noexcept {
    const mac::Pool pool;
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
                                     MenuItem::State{mac::Retained::retaining(sender)})));
    }
}

// The sender is in no register that the method may look at.
void performActionWithoutSender(id instance, SEL selector) noexcept {
    performAction(instance, selector, nullptr);
}

void menuWillOpen(id instance, SEL, id menu) noexcept {
    const mac::Pool pool;
    if (const auto delegate = std::dynamic_pointer_cast<MenuDelegate>(objectOf(instance))) {
        delegate->menuWillOpen(
            Menu(std::make_shared<Menu::State>(Menu::State{mac::Retained::retaining(menu)})));
    }
}

void applicationDidFinishLaunching(id instance, SEL, id /*notification*/) noexcept {
    const mac::Pool pool;
    if (const auto delegate = std::dynamic_pointer_cast<ApplicationDelegate>(objectOf(instance))) {
        delegate->applicationDidFinishLaunching();
    }
}

void applicationWillTerminate(id instance, SEL, id /*notification*/) noexcept {
    const mac::Pool pool;
    if (const auto delegate = std::dynamic_pointer_cast<ApplicationDelegate>(objectOf(instance))) {
        delegate->applicationWillTerminate();
    }
}

Class makeClass(const std::string& name, const Object& object) {
    mac::RuntimeClass made(name.c_str());
    for (const ActionMethod& method : object.actionMethods()) {
        const std::string selector(method.selector.name());
        if (selector.ends_with(':')) {
            made.addMethod(selector.c_str(), performAction);
        } else {
            made.addMethod(selector.c_str(), performActionWithoutSender);
        }
    }
    if (dynamic_cast<const MenuDelegate*>(&object) != nullptr) {
        made.addMethod("menuWillOpen:", menuWillOpen);
    }
    if (dynamic_cast<const ApplicationDelegate*>(&object) != nullptr) {
        made.addMethod("applicationDidFinishLaunching:", applicationDidFinishLaunching);
        made.addMethod("applicationWillTerminate:", applicationWillTerminate);
    }
    return made.finish();
}

// Of its own list, because a framework may have a class of the same name.
Class classOf(const Object& object) {
    static std::unordered_map<std::string, Class> made;
    const std::string name(object.className());
    const auto known = made.find(name);
    return known != made.end() ? known->second : made.emplace(name, makeClass(name, object)).first->second;
}

} // namespace

Object::Counterpart::Counterpart(const Object& represented)
    : instance(mac::Retained::adopting(
          mac::ns_object::init(mac::ns_object::alloc(reinterpret_cast<id>(classOf(represented)))))) {
    mac::RuntimeClass::setTarget(instance.get(), this);
}

Object::Counterpart::~Counterpart() { mac::RuntimeClass::setTarget(instance.get(), nullptr); }

id Object::Counterpart::of(const std::weak_ptr<Object>& reference) {
    const std::shared_ptr<Object> object = reference.lock();
    if (!object || !object->counterpart_) {
        return nullptr;
    }
    object->counterpart_->object = reference;
    return object->counterpart_->instance.get();
}

Object::Object() = default;

Object::~Object() = default;

void Object::init() {
    const mac::Pool pool;
    counterpart_ = std::make_unique<Counterpart>(*this);
}

} // namespace kestrune
