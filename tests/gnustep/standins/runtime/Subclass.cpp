#include "tests/gnustep/standins/runtime/Subclass.h"

#include <cstdint>

namespace kestrune::gnustep {

namespace {

constexpr const char* ValueVariable = "kestruneValue";
constexpr std::uint8_t AlignmentOfPointers = 3; // as a power of two

void** valueVariable(id instance) {
    const Ivar variable = class_getInstanceVariable(object_getClass(instance), ValueVariable);
    return reinterpret_cast<void**>(reinterpret_cast<char*>(instance) + ivar_getOffset(variable));
}

} // namespace

Class makeSubclass(const char* name, const char* parent, void (*dealloc)(id, SEL)) {
    const Class made = objc_allocateClassPair(classNamed(parent), name, 0);
    class_addIvar(made, ValueVariable, sizeof(void*), AlignmentOfPointers, "^v");
    class_addMethod(made, sel_registerName("dealloc"), mac::asImplementation(dealloc), "v@:");
    objc_registerClassPair(made);
    return made;
}

id newInstance(Class type, void* value) {
    const id instance = send(reinterpret_cast<id>(type), "alloc");
    setValue(instance, value);
    return instance;
}

void setValue(id instance, void* value) { *valueVariable(instance) = value; }

void* valueOf(id instance) { return *valueVariable(instance); }

void deallocAsObject(id instance) {
    const SEL dealloc = sel_registerName("dealloc");
    mac::asFunction<void (*)(id, SEL)>(class_getMethodImplementation(classNamed("NSObject"), dealloc))(
        instance, dealloc);
}

} // namespace kestrune::gnustep
