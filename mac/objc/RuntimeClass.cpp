#include "mac/objc/RuntimeClass.h"

#include "base/Fatal.h"
#include "mac/vocabulary/Vocabulary.h"

#include <cstdint>
#include <cstring>
#include <string>

namespace kestrune::mac {

namespace {

constexpr const char* TargetVariable = "kestruneTarget";
constexpr std::uint8_t AlignmentOfPointers = 3; // as a power of two

void** targetVariable(id instance) {
    const Ivar variable = class_getInstanceVariable(object_getClass(instance), TargetVariable);
    return reinterpret_cast<void**>(reinterpret_cast<char*>(instance) + ivar_getOffset(variable));
}

} // namespace

RuntimeClass::RuntimeClass(const char* name) : RuntimeClass(name, foundation.object) {}

RuntimeClass::RuntimeClass(const char* name, const ClassReference& superclass)
    : RuntimeClass(name, reinterpret_cast<Class>(superclass.object())) {}

// Without a superclass the runtime would make a root class, which can do nothing that is asked of it.
RuntimeClass::RuntimeClass(const char* name, Class superclass)
    : class_(superclass != nullptr ? objc_allocateClassPair(superclass, name, 0) : nullptr) {
    if (superclass == nullptr) {
        return;
    }
    if (class_ == nullptr) {
        fatal(std::string("There is a class named ") + name + " already.");
    }
    class_addIvar(class_, TargetVariable, sizeof(void*), AlignmentOfPointers, "^v");
}

void RuntimeClass::add(SEL selector, IMP implementation, const char* encoding) {
    if (class_ != nullptr && class_addMethod(class_, selector, implementation, encoding) == 0) {
        fatal(std::string("There is a method ") + sel_getName(selector) + " already.");
    }
}

Class RuntimeClass::finish() {
    if (class_ != nullptr) {
        objc_registerClassPair(class_);
    }
    return class_;
}

void* RuntimeClass::target(id instance) { return instance != nullptr ? *targetVariable(instance) : nullptr; }

void RuntimeClass::setTarget(id instance, void* target) {
    if (instance != nullptr) {
        *targetVariable(instance) = target;
    }
}

} // namespace kestrune::mac
