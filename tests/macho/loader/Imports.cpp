#include "tests/macho/loader/Imports.h"

#include "mac/objc/Block.h"
#include "mac/objc/NewObject.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/macho/loader/ClassChecks.h"
#include "tests/macho/loader/Conventions.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

// NOLINTBEGIN(readability-identifier-naming, bugprone-reserved-identifier): the names are the compiler's.
extern "C" {
int __cxa_atexit(void (*function)(void*), void* argument, void* image);
void __stack_chk_fail();
}
// NOLINTEND(readability-identifier-naming, bugprone-reserved-identifier)

namespace kestrune::macho {

namespace {

constexpr std::string_view CxxLibrary = "/usr/lib/libc++.1.dylib";
constexpr std::string_view ObjectiveC = "/usr/lib/libobjc.A.dylib";
constexpr std::string_view System = "/usr/lib/libSystem.B.dylib";
constexpr std::string_view AppKit = "/System/Library/Frameworks/AppKit.framework/Versions/C/AppKit";

// Functions of glibc's that are Darwin's. Where the conventions of a processor differ, its own come before.
constexpr std::array SameInGlibc = {"abort",  "calloc",  "fprintf", "memchr", "memcmp",
                                    "memcpy", "memmove", "printf",  "strcmp", "strlen"};

// The program's C++ library stands beside GCC's, which GNUstep and the stand-ins use. It is made of LLVM's
// archives so that it finds itself first, and unwinds with what the process unwinds with.
void* cxxLibrary() {
    static void* const library = [] {
        void* const loaded = dlopen(KESTRUNE_CXX_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        if (loaded == nullptr) {
            throw MachError(dlerror());
        }
        return loaded;
    }();
    return library;
}

void* pushPool() { return mac::foundation.object.init(mac::allocate(mac::foundation.autoreleasePool)); }

void popPool(void* pool) { mac::foundation.autoreleasePool.drain(static_cast<id>(pool)); }

Class classOfObject(id object) { return object_getClass(object); } // inline in GCC's header

// What is here under another name or in another form.
Functions replacements(MessageChecks checks) {
    // Its value is nobody's business but that it does not change.
    static std::uintptr_t stackGuard =
        0x595A5B5C5D5E5F00; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
    Functions functions = {
        {"_objc_autoreleasePoolPush", addressOf(pushPool)},
        {"_objc_autoreleasePoolPop", addressOf(popPool)},
        {"_object_getClass", addressOf(classOfObject)},
        {"__NSConcreteMallocBlock", mac::classOfHeapBlocks()},
        {"__Unwind_Resume", dlsym(RTLD_DEFAULT, "_Unwind_Resume")},
        {"___cxa_atexit", addressOf(__cxa_atexit)},
        {"___stack_chk_fail", addressOf(__stack_chk_fail)},
        {"___stack_chk_guard", &stackGuard},
        {"___stderrp", addressOf(&stderr)},
    };
    functions.merge(classFunctions());
    functions.merge(messageFunctions(checks));
    functions.merge(functionsOfOtherConventions());
    return functions;
}

// The name of the file that holds an address, without folder and versions; empty for the program itself.
std::string ownerOf(const void* address) {
    Dl_info information{};
    link_map* map = nullptr;
    if (dladdr1(address, &information, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) == 0) {
        return "nobody";
    }
    const std::string path = map->l_name;
    const std::string file = path.substr(path.rfind('/') + 1);
    return file.substr(0, file.find(".so"));
}

// The program itself has the stand-ins, for whatever library.
bool mayBeIn(std::string_view library, const std::string& owner, std::string_view name) {
    if (owner.empty()) {
        return true;
    }
    if (library == ObjectiveC) {
        return owner == "libobjc";
    }
    if (library == AppKit) {
        return owner == "libgnustep-gui" || owner == "libgnustep-base";
    }
    return library == System && owner == "libc" &&
           std::find(SameInGlibc.begin(), SameInGlibc.end(), name) != SameInGlibc.end();
}

void* find(std::string_view library, std::string_view symbol) {
    // C's names have an underscore before them.
    const std::string name(symbol.starts_with('_') ? symbol.substr(1) : symbol);
    if (library == CxxLibrary) {
        return cxxFunction(cxxLibrary(), name);
    }
    void* const found = dlsym(RTLD_DEFAULT, name.c_str());
    if (found != nullptr && !mayBeIn(library, ownerOf(found), name)) {
        throw MachError(printable(symbol) + " of " + printable(library) + " is found in " + ownerOf(found) +
                        ", which may be another function");
    }
    return found;
}

} // namespace

Resolve importsOfThisProcess(MessageChecks checks) {
    return [replaced = replacements(checks)](std::string_view library, std::string_view symbol) {
        const auto replacement = replaced.find(symbol);
        const bool isOfEither = library == ObjectiveC || library == System;
        return isOfEither && replacement != replaced.end() ? replacement->second : find(library, symbol);
    };
}

} // namespace kestrune::macho
