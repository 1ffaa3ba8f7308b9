// Methods that take the place of GNUstep's or are added to its classes.
#pragma once

#include "mac/vocabulary/TypeEncoding.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/standins/runtime/LeftOut.h"

#include <string>

namespace kestrune::gnustep {

template <typename Result, typename... Arguments>
using Method = Result (*)(id, SEL, Arguments...);

// Where the methods of the class itself live.
inline Class classOf(Class type) { return object_getClass(reinterpret_cast<id>(type)); }

// Adds a method that the class has not itself; what it has from a superclass is not about this class. A
// release of GNUstep in which the class has the method keeps its own.
template <typename Result, typename... Arguments>
void addMethod(Class type, const char* selector, Method<Result, Arguments...> implementation) {
    if (!isLeftOut(selector)) {
        class_addMethod(type, sel_registerName(selector), mac::asImplementation(implementation),
                        mac::EncodingOfMethod<Result, Arguments...>.data());
    }
}

// Takes the place of a method that the class has, perhaps from a superclass; gives the one before.
template <typename Result, typename... Arguments>
Method<Result, Arguments...> replaceMethod(Class type, const char* selector,
                                           Method<Result, Arguments...> implementation) {
    const SEL name = sel_registerName(selector);
    if (class_respondsToSelector(type, name) == 0) {
        fatal(std::string("GNUstep has no method ") + selector + " to replace.");
    }
    const IMP before = class_getMethodImplementation(type, name);
    const IMP after = mac::asImplementation(implementation);
    const char* const encoding = mac::EncodingOfMethod<Result, Arguments...>.data();
    // Replacing one of a superclass would change all its subclasses, and not reach those that are in use.
    if (class_addMethod(type, name, after, encoding) == 0) {
        class_replaceMethod(type, name, after, encoding);
    }
    return mac::asFunction<Method<Result, Arguments...>>(before);
}

} // namespace kestrune::gnustep
