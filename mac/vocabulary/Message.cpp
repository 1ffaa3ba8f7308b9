#include "mac/vocabulary/Message.h"

#include "mac/vocabulary/Missing.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

bool answersFor(id receiver, SEL selector) {
    const auto& question = foundation.object.respondsToSelector;
    return class_getInstanceMethod(object_getClass(receiver), question.selector()) != nullptr &&
           question(receiver, selector) != 0;
}

} // namespace

Class ClassReference::find() const { return reinterpret_cast<Class>(objc_getClass(name())); }

id ClassReference::object() const {
    if (const id known = object_.load(std::memory_order_relaxed); known != nullptr) {
        return known;
    }
    const id found = reinterpret_cast<id>(find());
    if (found == nullptr) {
        logMissingClass(name());
    }
    object_.store(found, std::memory_order_relaxed);
    return found;
}

// Whichever thread comes first, the runtime gives the same selector.
SEL MessageDeclaration::registerSelector() const {
    const SEL selector = sel_registerName(selectorName_);
    selector_.store(selector, std::memory_order_relaxed);
    return selector;
}

// Who forwards messages answers for more methods than its class has.
bool MessageDeclaration::hasMethod(id receiver) const {
    const Class type = object_getClass(receiver);
    if (class_getInstanceMethod(type, selector()) == nullptr && !answersFor(receiver, selector())) {
        logMissingMethod(methodName(kind_, object_getClassName(receiver), selectorName_));
        return false;
    }
    lastReceiver_.store(type, std::memory_order_relaxed);
    return true;
}

bool MessageDeclaration::isImplementedBy(Class type) const {
    if (class_getInstanceMethod(type, selector()) != nullptr) {
        return true;
    }
    // A class has the name of its metaclass.
    const id object = reinterpret_cast<id>(type);
    logMissingMethod(methodName(kind_, object_getClassName(object), selectorName_));
    return false;
}

std::string methodName(MethodKind kind, const std::string& owner, const char* selectorName) {
    return std::string(kind == MethodKind::ofClass ? "+[" : "-[") + owner + " " + selectorName + "]";
}

} // namespace kestrune::mac
