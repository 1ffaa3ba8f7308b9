// Classes made at run time, whose instances point at a C++ object.
#pragma once

#include "mac/vocabulary/Action.h"
#include "mac/vocabulary/Message.h"

#include <type_traits>

namespace kestrune::mac {

// Builds a subclass of one of the platform's classes. The runtime keeps classes for ever.
class RuntimeClass {
public:
    // Of NSObject. `name` must not be taken.
    explicit RuntimeClass(const char* name);

    // Without that class no instance can be made.
    RuntimeClass(const char* name, const ClassReference& superclass);
    RuntimeClass(const char* name, Class superclass);

    // The implementation is `noexcept`, as no C++ exception may cross into the platform.
    template <template <typename> typename Declaration, typename Result, typename... Arguments>
    void addMethod(const Declaration<Result(Arguments...)>& method,
                   std::type_identity_t<Result (*)(id, SEL, Arguments...) noexcept> implementation) {
        add(method.selector(), asImplementation(implementation),
            EncodingOfMethod<Result, Arguments...>.data());
    }

    // From here on instances can be made and no method can be added. Null without a superclass.
    Class finish();

    // What an instance points at; null at first, and for nil.
    static void* target(id instance);
    static void setTarget(id instance, void* target);

private:
    void add(SEL selector, IMP implementation, const char* encoding);

    Class class_;
};

} // namespace kestrune::mac
