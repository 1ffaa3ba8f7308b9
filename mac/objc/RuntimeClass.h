// Classes made at run time, whose instances point at a C++ object.
#pragma once

#include "mac/objc/Runtime.h"
#include "mac/objc/TypeEncoding.h"

namespace kestrune::mac {

// Builds a subclass of one of the platform's classes. The runtime keeps classes for ever.
class RuntimeClass {
public:
    // Of NSObject. `name` must not be taken.
    explicit RuntimeClass(const char* name);
    RuntimeClass(const char* name, Class superclass);

    // Adds a method that the platform calls. `noexcept`, as no C++ exception may cross into the platform.
    template <typename Result, typename... Arguments>
    void addMethod(const char* selector, Result (*implementation)(id, SEL, Arguments...) noexcept) {
        add(sel_registerName(selector), asImplementation(implementation),
            EncodingOfMethod<Result, Arguments...>.data());
    }

    // From here on instances can be made and no method can be added.
    Class finish();

    // What an instance points at; null at first.
    static void* target(id instance);
    static void setTarget(id instance, void* target);

private:
    void add(SEL selector, IMP implementation, const char* encoding);

    Class class_;
};

} // namespace kestrune::mac
