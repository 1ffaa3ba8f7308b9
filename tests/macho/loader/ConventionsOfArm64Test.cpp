// What a program gets for its imports, called as Apple's compilers for arm64 call it.
#include "mac/vocabulary/Runtime.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/macho/loader/Imports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace kestrune::macho {
namespace {

template <typename Signature>
Signature* imported(std::string_view library, std::string_view name) {
    static const Resolve resolve = importsOfThisProcess(MessageChecks::none);
    return std::bit_cast<Signature*>(resolve(library, name));
}

template <typename Signature>
Signature* ofCxxLibrary(std::string_view name) {
    return imported<Signature>("/usr/lib/libc++.1.dylib", name);
}

template <typename Signature>
Signature* ofSystem(std::string_view name) {
    return imported<Signature>("/usr/lib/libSystem.B.dylib", name);
}

// What comes behind six arguments that fill the registers is on the stack, in a word each.
using PrintToFile = int(std::FILE*, const char*, long, long, long, long, long, long, long, std::uint64_t,
                        const char*);
using Print = int(const char*, long, long, long, long, long, long, long, long, std::uint64_t);

TEST(Arm64, TakesVariableArgumentsFromTheStack) {
    char* text = nullptr;
    std::size_t size = 0;
    std::FILE* const file = open_memstream(&text, &size);
    ofSystem<PrintToFile>("_fprintf")(file, "%ld %.2f %s", 0, 0, 0, 0, 0, 0, 7,
                                      std::bit_cast<std::uint64_t>(2.5), "words");
    std::fclose(file);
    EXPECT_STREQ(text, "7 2.50 words");
    std::free(text);

    testing::internal::CaptureStdout();
    ofSystem<Print>("_printf")("%ld %.2f", 0, 0, 0, 0, 0, 0, 0, 7, std::bit_cast<std::uint64_t>(2.5));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "7 2.50");
}

struct Object {
    void* words[2]; // of the size that a std::logic_error has in LLVM's library
};

TEST(Arm64, HasConstructorsAndDestructorsThatGiveTheirObject) {
    Object object{};
    EXPECT_EQ(ofCxxLibrary<void*(void*, const char*)>("__ZNSt11logic_errorC2EPKc")(&object, "text"), &object);
    EXPECT_STREQ(ofCxxLibrary<const char*(const void*)>("__ZNKSt11logic_error4whatEv")(&object), "text");
    EXPECT_EQ(ofCxxLibrary<void*(void*)>("__ZNSt11logic_errorD2Ev")(&object), &object);
}

// Text of up to 22 characters, and in the last byte how many.
struct ShortString {
    char bytes[24];
};

TEST(Arm64, HasStringsThatBeginWithTheirText) {
    const auto text = ofCxxLibrary<ShortString(unsigned)>("__ZNSt3__19to_stringEj")(4711);
    EXPECT_STREQ(text.bytes, "4711");
    EXPECT_EQ(text.bytes[23], 4);
}

constexpr std::string_view StringFromPart =
    "__ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEEC1ERKS5_mmRKS4_";

// Of LLVM's library, whose exceptions this program does not know.
TEST(Arm64, LetsExceptionsOutOfConstructors) {
    ShortString text = {"text"};
    text.bytes[23] = 4;
    ShortString made{};
    char allocator = 0;
    bool isCaught = false;
    try {
        ofCxxLibrary<void*(void*, const void*, std::size_t, std::size_t, const void*)>(StringFromPart)(
            &made, &text, 5, 1, &allocator);
    } catch (...) {
        isCaught = true;
    }
    EXPECT_TRUE(isCaught);
}

TEST(Arm64, RefusesStringsOfTheOtherLayout) {
    try {
        ofCxxLibrary<void()>("__ZNSt3__19to_stringEd");
        FAIL() << "It is not refused.";
    } catch (const MachError& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("_ZNSt3__19to_stringEd may have to do with strings"));
    }
    EXPECT_EQ(ofCxxLibrary<void()>("__ZNSt3__17nowhereEv"), nullptr);
}

// As the program's methods do, they look at more of the register than the caller has filled.
unsigned whole(id, SEL, unsigned argument) { return argument; }

Class newType(const char* name) { return objc_allocateClassPair(mac::foundation.object.find(), name, 0); }

BOOL add(Class type, const char* selector, const char* encoding) {
    using AddMethod = BOOL(Class, SEL, IMP, const char*);
    return imported<AddMethod>("/usr/lib/libobjc.A.dylib", "_class_addMethod")(
        type, sel_registerName(selector), mac::asImplementation(whole), encoding);
}

TEST(Arm64, FillsTheArgumentsOfMethods) {
    const Class type = newType("KestruneFilled");
    ASSERT_NE(add(type, "truth:", "I@:B"), 0);
    ASSERT_NE(add(type, "character:", "I@:c"), 0);
    ASSERT_NE(add(type, "number:", "I@:I"), 0);
    objc_registerClassPair(type);
    const auto call = [type](const char* selector) {
        const SEL name = sel_registerName(selector);
        return mac::asFunction<decltype(&whole)>(class_getMethodImplementation(type, name))(nullptr, name,
                                                                                            0x123456FF);
    };
    EXPECT_EQ(call("truth:"), 1U);
    EXPECT_EQ(call("character:"), 0xFFFFFFFF);
    EXPECT_EQ(call("number:"), 0x123456FFU);
}

using Arm64DeathTest = testing::Test;

TEST_F(Arm64DeathTest, EndsWithTheNameOfAMethodThatGetsItsArgumentsInAnotherWay) {
    EXPECT_DEATH(add(newType("KestruneRefused"), "version:", "v@:{?=qqq}"),
                 "KestruneRefused version:.* in another way");
}

} // namespace
} // namespace kestrune::macho
