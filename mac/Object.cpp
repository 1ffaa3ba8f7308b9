#include "platform/Object.h"

#include "mac/Handles.h"
#include "mac/ObjectClass.h"
#include "mac/ObjectCounterpart.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/vocabulary/Vocabulary.h"

#include <memory>

namespace kestrune {

namespace {

id allocate(const Object& represented) { return mac::allocate(mac::classOf(represented)); }

// The initializer of a subclass that does not let others call it.
id initializeWithWindow(id controller, const Window& window) {
    return mac::appKit.windowController.initWithWindow.asImplementedBy(
        mac::appKit.windowController.find(), controller, window.state()->window.get());
}

} // namespace

Object::Counterpart::Counterpart(const Object& represented)
    : instance(mac::Retained::adopting(mac::foundation.object.init(allocate(represented)))) {
    mac::RuntimeClass::setTarget(instance.get(), this);
}

Object::Counterpart::Counterpart(const WindowController& represented, const Window& window)
    : instance(mac::Retained::adopting(initializeWithWindow(allocate(represented), window))) {
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
