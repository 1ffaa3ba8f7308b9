#include "tests/macho/loader/ClassChecks.h"

#include "base/Fatal.h"
#include "mac/vocabulary/Runtime.h"
#include "mac/vocabulary/TypeEncoding.h"

#include <cstdlib>
#include <string>
#include <vector>

namespace kestrune::macho {

namespace {

// A list that the runtime gives away.
template <typename Element, typename Copy>
std::vector<Element> listed(Copy copy, Class type) {
    unsigned count = 0;
    auto* const elements = copy(type, &count);
    std::vector<Element> list(elements, elements + count);
    std::free(elements); // NOLINT(cppcoreguidelines-no-malloc): the runtime took it from there.
    return list;
}

void requireSame(Class type, Method method, const char* expected, const std::string& owner) {
    const char* const encoding = method_getTypeEncoding(method);
    if (mac::normalizedEncoding(encoding) != mac::normalizedEncoding(expected)) {
        fatal(std::string("-[") + class_getName(type) + " " + sel_getName(method_getName(method)) +
              "] has the encoding " + encoding + ", and " + owner + "'s has " + expected);
    }
}

// The class that has the method itself, of those that `type` derives from.
Class implementer(Class type, Method method) {
    Class found = type;
    for (Class above = class_getSuperclass(type);
         above != nullptr && class_getInstanceMethod(above, method_getName(method)) == method;
         above = class_getSuperclass(above)) {
        found = above;
    }
    return found;
}

void holdAgainst(Class superclass, Class type, Method method) {
    const Method overridden = class_getInstanceMethod(superclass, method_getName(method));
    if (overridden != nullptr) {
        requireSame(type, method, method_getTypeEncoding(overridden),
                    class_getName(implementer(superclass, overridden)));
    }
}

void holdAgainst(Protocol* protocol, Class type, Method method) {
    for (const bool isRequired : {true, false}) {
        const auto described = protocol_getMethodDescription(protocol, method_getName(method),
                                                             mac::truth(isRequired), mac::truth(true));
        if (described.types != nullptr) {
            requireSame(type, method, described.types, protocol_getName(protocol));
        }
    }
}

template <typename Other>
void holdAllAgainst(Other other, Class type) {
    for (const Method method : listed<Method>(class_copyMethodList, type)) {
        holdAgainst(other, type, method);
    }
}

void registerClass(Class type) {
    objc_registerClassPair(type);
    holdAllAgainst(class_getSuperclass(type), type);
    for (Protocol* const protocol : listed<Protocol*>(class_copyProtocolList, type)) {
        holdAllAgainst(protocol, type);
    }
}

// The runtime lists no methods of a class before that is registered.
BOOL addProtocol(Class type, Protocol* protocol) {
    holdAllAgainst(protocol, type);
    return class_addProtocol(type, protocol);
}

} // namespace

Functions classFunctions() {
    return {
        {"_class_addProtocol", addressOf(addProtocol)},
        {"_objc_registerClassPair", addressOf(registerClass)},
    };
}

} // namespace kestrune::macho
