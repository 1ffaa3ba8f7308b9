// Messages that a test sends of its own accord, to AppKit or to GNUstep in its place.
//
// The binding's vocabulary stays as it is: what only a test says is said here, with the signature at the
// call.
#pragma once

#include "base/Fatal.h"
#include "mac/vocabulary/Message.h"

#include <string>

namespace kestrune::native {

// The arguments must have exactly the types of the method's. A message to nil gives zero.
template <typename Result = id, typename... Arguments>
Result send(id receiver, const char* selector, Arguments... arguments) {
    using Function = Result (*)(id, SEL, Arguments...);
    if (receiver == nullptr) {
        return Result();
    }
    const SEL name = sel_registerName(selector);
    return mac::functionOf<Result, Function>(receiver, name)(receiver, name, arguments...);
}

inline Class classNamed(const char* name) {
    const Class found = objc_getClass(name);
    if (found == nullptr) {
        fatal(std::string("The platform has no class ") + name + ".");
    }
    return found;
}

// As the receiver of a message.
inline id classObject(const char* name) { return reinterpret_cast<id>(classNamed(name)); }

} // namespace kestrune::native
