// Source: Apple, Writing ARM64 Code for Apple Platforms; Arm, Procedure Call Standard for the Arm 64-bit
// Architecture.
#include "base/Fatal.h"
#include "mac/vocabulary/Runtime.h"
#include "tests/macho/Bytes.h"
#include "tests/macho/loader/Conventions.h"
#include "tests/macho/loader/CxxNames.h"
#include "tests/macho/loader/SmallArguments.h"
#include "tests/macho/loader/Stub.h"

#include <dlfcn.h>
#include <sys/mman.h>

#include <bit>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>

// In assembly.
extern "C" {
void kestrunePrint();
void kestrunePrintToFile();
void kestruneGiveObject();
} // extern "C"

namespace kestrune::macho {

namespace {

// Linux' list of variable arguments, as if no register had one.
struct ArgumentsOnStack {
    void* next;
    void* endOfGeneral = nullptr;
    void* endOfVectors = nullptr;
    int bytesOfGeneral = 0;
    int bytesOfVectors = 0;

    std::va_list& list() { return reinterpret_cast<std::va_list&>(*this); }
};
static_assert(sizeof(ArgumentsOnStack) >= sizeof(std::va_list));

// Code that stays as long as the process. There are few, so each has pages of its own.
void* made(const Stub& stub) {
    const auto code = stub.code();
    const std::size_t size = code.size() * sizeof(code.front());
    void* const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw MachError("there is no memory for code");
    }
    std::memcpy(memory, code.data(), size);
    auto* const start = static_cast<char*>(memory);
    __builtin___clear_cache(start, start + size);
    if (mprotect(memory, size, PROT_READ | PROT_EXEC) != 0) {
        throw MachError("code that is made while a program is loaded may not run here");
    }
    return memory;
}

// GNUstep calls the program's methods.
BOOL addMethod(Class type, SEL selector, IMP implementation, const char* encoding) try {
    const auto instructions = instructionsThatFill(encoding);
    if (!instructions) {
        throw MachError("takes what is passed to it in another way here");
    }
    const Stub stub{*instructions, 0, std::bit_cast<std::uint64_t>(implementation)};
    return class_addMethod(type, selector,
                           instructions->empty() ? implementation : std::bit_cast<IMP>(made(stub)), encoding);
} catch (const MachError& error) { // by then the program runs, and no file is loaded
    fatal(std::string("-[") + class_getName(type) + " " + sel_getName(selector) + "], which is " + encoding +
          ": " + error.what());
}

std::uint64_t numberOf(void* address) { return std::bit_cast<std::uint64_t>(address); }

} // namespace

// What the assembly goes on to.
extern "C" [[gnu::format(printf, 1, 0)]] int kestrunePrintFrom(const char* format, void* next) {
    ArgumentsOnStack arguments{next};
    return std::vprintf(format, arguments.list());
}

extern "C" [[gnu::format(printf, 2, 0)]] int kestrunePrintToFileFrom(std::FILE* file, const char* format,
                                                                     void* next) {
    ArgumentsOnStack arguments{next};
    return std::vfprintf(file, format, arguments.list());
}

Functions functionsOfOtherConventions() {
    return {
        {"_class_addMethod", addressOf(addMethod)},
        {"_fprintf", addressOf(kestrunePrintToFile)},
        {"_printf", addressOf(kestrunePrint)},
    };
}

// No constructor of the library's has so many arguments that some of them are on the stack.
void* cxxFunction(void* library, const std::string& name) {
    void* function = dlsym(library, withStringsOfApple(name).c_str());
    if (function == nullptr) {
        function = dlsym(library, name.c_str());
        if (function != nullptr && mayHaveStrings(name)) {
            throw MachError(printable(name) +
                            " may have to do with strings, which it lays out in another way");
        }
    }
    if (function == nullptr || !givesItsObject(name)) {
        return function;
    }
    return made({{}, numberOf(function), numberOf(addressOf(kestruneGiveObject))});
}

} // namespace kestrune::macho
