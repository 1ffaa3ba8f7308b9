#include "base/Fatal.h"
#include "mac/vocabulary/Runtime.h"
#include "tests/macho/loader/Messages.h"

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_set>

// Of GCC's runtime, which does not install the header that declares them.
// NOLINTBEGIN(readability-identifier-naming): the names are the runtime's.
extern "C" {
int objc_sizeof_type(const char* encoding);
const char* objc_skip_type_qualifiers(const char* encoding);
BOOL sel_is_mapped(SEL selector);
}
// NOLINTEND(readability-identifier-naming)

// In assembly.
extern "C" {
void kestruneMessage();
void kestruneMessageForStructure();
void kestruneCheckedMessage();
void kestruneCheckedMessageForStructure();
} // extern "C"

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

[[noreturn]] void refuse(Class type, SEL selector, bool returnsInMemory) {
    fatal(nameOf(type, selector) + (returnsInMemory
                                        ? " returns a structure in memory and was sent objc_msgSend"
                                        : " returns nothing in memory and was sent objc_msgSend_stret"));
}

// Who wants a structure in memory says first where, and the receiver and the selector come one place later.
// So what stands in the place of the selector tells that the message was sent in the other way.
void requireSelector(SEL selector, id otherReceiver, SEL otherSelector, bool otherReturnsInMemory) {
    if (sel_is_mapped(selector) == 0 && sel_is_mapped(otherSelector) != 0) {
        refuse(object_getClass(otherReceiver), otherSelector, otherReturnsInMemory);
    }
}

void requireReturn(Class type, SEL selector, bool inMemory) {
    const Method method = class_getInstanceMethod(type, selector);
    const char* const encoding = method != nullptr ? method_getTypeEncoding(method) : nullptr;
    if (encoding == nullptr) {
        return;
    }
    const char* const result = objc_skip_type_qualifiers(encoding);
    const bool returnsInMemory = *result == '{' && objc_sizeof_type(result) > LargestInRegisters;
    if (returnsInMemory != inMemory) {
        refuse(type, selector, returnsInMemory);
    }
}

void check(id receiver, SEL selector, bool inMemory) {
    static std::unordered_set<Found, HashOfFound> known[2];
    const Found found = {object_getClass(receiver), selector};
    if (known[inMemory ? 1 : 0].insert(found).second) {
        requireReturn(found.type, selector, inMemory);
    }
}

IMP lookUp(id receiver, SEL selector, IMP toNil) {
    return receiver != nullptr ? objc_msg_lookup(receiver, selector) : toNil;
}

id object(void* in) { return static_cast<id>(in); }

SEL selector(void* in) { return static_cast<SEL>(in); }

} // namespace

// What the assembly calls with the first three registers for arguments: the function to go on to. `toNil` is
// its own for a message to nil.
extern "C" IMP kestruneLookUp(void* first, void* second, void* /*third*/, IMP toNil) {
    return lookUp(object(first), selector(second), toNil);
}

extern "C" IMP kestruneLookUpForStructure(void* /*first*/, void* second, void* third, IMP toNil) {
    return lookUp(object(second), selector(third), toNil);
}

extern "C" IMP kestruneLookUpChecked(void* first, void* second, void* third, IMP toNil) {
    if (first != nullptr) {
        requireSelector(selector(second), object(second), selector(third), true);
        check(object(first), selector(second), false);
    }
    return lookUp(object(first), selector(second), toNil);
}

extern "C" IMP kestruneLookUpCheckedForStructure(void* first, void* second, void* third, IMP toNil) {
    if (second != nullptr) {
        requireSelector(selector(third), object(first), selector(second), false);
        check(object(second), selector(third), true);
    }
    return lookUp(object(second), selector(third), toNil);
}

Functions messageFunctions(MessageChecks checks) {
    const bool checked = checks == MessageChecks::structureReturns;
    return {
        {"_objc_msgSend", addressOf(checked ? kestruneCheckedMessage : kestruneMessage)},
        {"_objc_msgSend_stret",
         addressOf(checked ? kestruneCheckedMessageForStructure : kestruneMessageForStructure)},
    };
}

} // namespace kestrune::macho
