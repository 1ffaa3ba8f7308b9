// Subclasses of GNUstep's classes whose instances own a C++ value.
#pragma once

#include "tests/gnustep/standins/runtime/LeftOut.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <utility>

namespace kestrune::gnustep {

// A subclass of `parent` with a pointer variable; its instances are made without the parent's initializer.
// `dealloc` frees what the pointer points at and ends with that of NSObject, for the same reason.
Class makeSubclass(const char* name, const char* parent, void (*dealloc)(id, SEL));
id newInstance(Class type, void* value);
void setValue(id instance, void* value);
void* valueOf(id instance);
void deallocAsObject(id instance);

// Of a class that is all about its methods.
struct NoValue {};

template <typename Value>
class Subclass {
public:
    explicit Subclass(const char* name, const char* parent = "NSObject")
        : class_(makeSubclass(name, parent, dealloc)) {}

    template <typename Result, typename... Arguments>
    Subclass& method(const char* selector, Method<Result, Arguments...> implementation) {
        if (!isLeftOut(selector)) {
            class_replaceMethod(class_, sel_registerName(selector), mac::asImplementation(implementation),
                                mac::EncodingOfMethod<Result, Arguments...>.data());
        }
        return *this;
    }

    // The caller owns the instance.
    template <typename... Arguments>
    id make(Arguments&&... arguments) const {
        return newInstance(class_, new Value{std::forward<Arguments>(arguments)...});
    }

    // To an instance that somebody else has allocated.
    static void give(id instance, Value value) { setValue(instance, new Value(std::move(value))); }

    static Value& of(id instance) { return *static_cast<Value*>(valueOf(instance)); }

private:
    static void dealloc(id instance, SEL) {
        delete static_cast<Value*>(valueOf(instance));
        deallocAsObject(instance);
    }

    Class class_;
};

} // namespace kestrune::gnustep
