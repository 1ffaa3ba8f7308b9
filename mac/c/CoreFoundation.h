// The functions and constants of CoreFoundation that the binding calls.
//
// Declared here, so that the binding also compiles where no SDK is at hand.
// Source: CFBase.h, CFString.h, CFUUID.h, CFDictionary.h, CFMachPort.h, CFRunLoop.h.
#pragma once

#include <memory>
#include <type_traits>

// NOLINTBEGIN(readability-identifier-naming): the names are the platform's.
extern "C" {

using CFTypeRef = const void*;
using CFAllocatorRef = const struct __CFAllocator*;
using CFStringRef = const struct __CFString*;
using CFBooleanRef = const struct __CFBoolean*;
using CFUUIDRef = const struct __CFUUID*;
using CFDictionaryRef = const struct __CFDictionary*;
using CFMachPortRef = struct __CFMachPort*;
using CFRunLoopRef = struct __CFRunLoop*;
using CFRunLoopSourceRef = struct __CFRunLoopSource*;
using CFIndex = long;

struct CFDictionaryKeyCallBacks;
struct CFDictionaryValueCallBacks;

extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;
extern const CFStringRef kCFRunLoopDefaultMode;
extern const CFStringRef kCFRunLoopCommonModes;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

void CFRelease(CFTypeRef object);
CFStringRef CFUUIDCreateString(CFAllocatorRef allocator, CFUUIDRef uuid);
CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void** keys, const void** values,
                                   CFIndex count, const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks);
CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef allocator, CFMachPortRef port, CFIndex order);
CFRunLoopRef CFRunLoopGetCurrent();
void CFRunLoopAddSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFStringRef mode);
void CFRunLoopRemoveSource(CFRunLoopRef runLoop, CFRunLoopSourceRef source, CFStringRef mode);

} // extern "C"
// NOLINTEND(readability-identifier-naming)

namespace kestrune::mac {

struct ReleaseWithCF {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

// Owns one reference of a CoreFoundation object.
template <typename Reference>
using CFOwned = std::unique_ptr<std::remove_pointer_t<Reference>, ReleaseWithCF>;

} // namespace kestrune::mac
