// The parts of CoreFoundation that belong to no other capability: reference counting, dictionaries, and
// constants of which only the address counts.
//
// This is what we believe the Mac does, and no proof of it. Every object of CoreFoundation is an object of
// Foundation here, as the Mac's strings are.
#include "tests/gnustep/standins/system/CoreFoundation.h"

#include "base/Fatal.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

#include <map>

struct __CFBoolean {};
struct __CFString {};
struct CFDictionaryKeyCallBacks {};
struct CFDictionaryValueCallBacks {};

namespace {

constexpr __CFBoolean True{};
constexpr __CFBoolean False{};
constexpr __CFString DefaultMode{};
constexpr __CFString CommonModes{};

} // namespace

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFBooleanRef kCFBooleanTrue = &True;
const CFBooleanRef kCFBooleanFalse = &False;
const CFStringRef kCFRunLoopDefaultMode = &DefaultMode;
const CFStringRef kCFRunLoopCommonModes = &CommonModes;
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks = {};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks = {};

namespace kestrune::gnustep {

namespace {

using Entries = std::map<const void*, const void*>;

const Subclass<Entries>& dictionaries() {
    static const Subclass<Entries> type("KestruneCFDictionary");
    return type;
}

} // namespace

id objectOf(CFTypeRef reference) { return static_cast<id>(const_cast<void*>(reference)); }

const void* valueOfKey(CFDictionaryRef dictionary, const void* key) {
    const Entries& entries = Subclass<Entries>::of(objectOf(dictionary));
    const auto entry = entries.find(key);
    return entry != entries.end() ? entry->second : nullptr;
}

extern "C" {

void CFRelease(CFTypeRef object) { mac::foundation.object.release(objectOf(object)); }

// Its entries are constants, which need no retaining.
CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void** keys, const void** values,
                                   CFIndex count, const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks) {
    if (allocator != kCFAllocatorDefault || keyCallBacks != &kCFTypeDictionaryKeyCallBacks ||
        valueCallBacks != &kCFTypeDictionaryValueCallBacks) {
        fatal("A dictionary of constants is made with other callbacks than CoreFoundation's own.");
    }
    Entries entries;
    for (CFIndex index = 0; index < count; ++index) {
        entries.emplace(keys[index], values[index]);
    }
    return reinterpret_cast<CFDictionaryRef>(dictionaries().make(std::move(entries)));
}

} // extern "C"

} // namespace kestrune::gnustep
