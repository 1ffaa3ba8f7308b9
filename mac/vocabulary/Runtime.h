// The Objective-C runtime's C interface, Apple's or GCC's.
//
// Source: objc/objc.h, objc/runtime.h, objc/message.h of either.
#pragma once

#include <objc/message.h>
#include <objc/objc.h>
#include <objc/runtime.h>

// GCC's header makes macros of them.
#undef nil
#undef Nil
#undef YES
#undef NO

namespace kestrune::mac {

using Integer = long;           // NSInteger
using Unsigned = unsigned long; // NSUInteger

// BOOL is an unsigned char, a signed char or a bool, depending on runtime and processor.
constexpr BOOL truth(bool value) { return static_cast<BOOL>(value ? 1 : 0); }

// A method's implementation as a function of its own signature, and back. The detour tells the compiler that
// the signatures differ on purpose.
template <typename Function>
Function asFunction(IMP implementation) {
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(implementation));
}

template <typename Function>
IMP asImplementation(Function function) {
    return reinterpret_cast<IMP>(reinterpret_cast<void (*)()>(function));
}

} // namespace kestrune::mac
