#include "tests/macho/loader/Messages.h"

#include "base/Fatal.h"
#include "mac/objc/Runtime.h"

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_set>

// Of GCC's runtime, which does not install the header that declares them.
extern "C" {
int objc_sizeof_type(const char* encoding);
const char* objc_skip_type_qualifiers(const char* encoding);
}

namespace kestrune::macho {

namespace {

constexpr int LargestInRegisters = 16; // bytes; System V ABI for x86-64

struct Found {
    Class type;
    SEL selector;

    friend bool operator==(const Found&, const Found&) = default;
};

struct HashOfFound {
    std::size_t operator()(const Found& found) const {
        return std::hash<const void*>()(found.type) ^ std::hash<const void*>()(found.selector) << 1;
    }
};

std::string nameOf(Class type, SEL selector) {
    return std::string(class_isMetaClass(type) != 0 ? "+[" : "-[") + class_getName(type) + " " +
           sel_getName(selector) + "]";
}

void requireReturn(Class type, SEL selector, bool inMemory) {
    const Method method = class_getInstanceMethod(type, selector);
    const char* const encoding = method != nullptr ? method_getTypeEncoding(method) : nullptr;
    if (encoding == nullptr) {
        return;
    }
    const char* const result = objc_skip_type_qualifiers(encoding);
    const bool isStructure = *result == '{';
    const bool wantsMemory = isStructure && objc_sizeof_type(result) > LargestInRegisters;
    if (wantsMemory != inMemory) {
        fatal(nameOf(type, selector) + (wantsMemory
                                            ? " returns a structure in memory and was sent objc_msgSend"
                                            : " returns nothing in memory and was sent objc_msgSend_stret"));
    }
}

void check(id receiver, SEL selector, bool inMemory) {
    static std::unordered_set<Found, HashOfFound> known[2];
    const Found found = {object_getClass(receiver), selector};
    if (known[inMemory ? 1 : 0].insert(found).second) {
        requireReturn(found.type, selector, inMemory);
    }
}

} // namespace

// What the assembly calls: the function to go on to. `toNil` is its own for a message to nil.
extern "C" IMP kestruneLookUp(id receiver, SEL selector, IMP toNil) {
    return receiver != nullptr ? objc_msg_lookup(receiver, selector) : toNil;
}

extern "C" IMP kestruneLookUpChecked(id receiver, SEL selector, IMP toNil) {
    if (receiver != nullptr) {
        check(receiver, selector, false);
    }
    return kestruneLookUp(receiver, selector, toNil);
}

extern "C" IMP kestruneLookUpCheckedForStructure(id receiver, SEL selector, IMP toNil) {
    if (receiver != nullptr) {
        check(receiver, selector, true);
    }
    return kestruneLookUp(receiver, selector, toNil);
}

} // namespace kestrune::macho
