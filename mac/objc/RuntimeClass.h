// Classes made at run time, whose instances point at a C++ object.
#pragma once

#include "mac/objc/Runtime.h"
#include "mac/objc/TypeEncoding.h"

#include <type_traits>

namespace kestrune::mac {

// A method of ours that the platform calls. `selectorName` has to live as long as the method is named by it.
template <typename Signature>
struct ImplementedMethod {
    const char* selectorName;

    SEL selector() const { return sel_registerName(selectorName); }
};

// Builds a subclass of one of the platform's classes. The runtime keeps classes for ever.
class RuntimeClass {
public:
    // Of NSObject. `name` must not be taken.
    explicit RuntimeClass(const char* name);
    RuntimeClass(const char* name, Class superclass);

    // The implementation is `noexcept`, as no C++ exception may cross into the platform.
    template <typename Result, typename... Arguments>
    void addMethod(const ImplementedMethod<Result(Arguments...)>& method,
                   std::type_identity_t<Result (*)(id, SEL, Arguments...) noexcept> implementation) {
        add(method.selector(), asImplementation(implementation),
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
