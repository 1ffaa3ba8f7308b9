#include "tests/macho/loader/ClassChecks.h"

#include "mac/vocabulary/Runtime.h"
#include "mac/vocabulary/Vocabulary.h"

#include <gtest/gtest.h>

#include <bit>

namespace kestrune::macho {
namespace {

template <typename Signature>
Signature* replacement(std::string_view name) {
    return std::bit_cast<Signature*>(classFunctions().at(name));
}

void registerAsPrograms(Class type) { replacement<void(Class)>("_objc_registerClassPair")(type); }

BOOL adoptAsPrograms(Class type, const char* protocol) {
    return replacement<BOOL(Class, Protocol*)>("_class_addProtocol")(type, objc_getProtocol(protocol));
}

void nothing(id, SEL) {}

Class classWith(const char* name, const char* selector, const char* encoding,
                const mac::ClassReference& superclass = mac::foundation.object) {
    const Class type = objc_allocateClassPair(superclass.find(), name, 0);
    class_addMethod(type, sel_registerName(selector), mac::asImplementation(nothing), encoding);
    return type;
}

TEST(ClassChecks, TakeWhatOverridesAMethodOfTheSameEncoding) {
    const Class type = classWith("KestruneSameView", "drawRect:", "v48@0:8{CGRect={CGPoint=dd}{CGSize=dd}}16",
                                 mac::appKit.button);
    registerAsPrograms(type);
    EXPECT_EQ(class_getSuperclass(type), mac::appKit.button.find());
}

TEST(ClassChecks, TakeWhatNobodyElseHas) {
    registerAsPrograms(classWith("KestruneOwn", "kestruneOwn:", "v@:q"));
    EXPECT_NE(objc_getClass("KestruneOwn"), nullptr);
}

TEST(ClassChecks, TakeMethodsOfProtocolsThatHaveTheSameEncoding) {
    const Class type = classWith("KestruneLock", "lock", "v16@0:8");
    registerAsPrograms(type);
    EXPECT_EQ(adoptAsPrograms(type, "NSLocking"), 1);
    EXPECT_EQ(class_conformsToProtocol(type, objc_getProtocol("NSLocking")), 1);
}

using ClassChecksDeathTest = testing::Test;

TEST_F(ClassChecksDeathTest, EndWithAMethodThatOverridesOneOfAnotherEncoding) {
    EXPECT_DEATH(
        registerAsPrograms(classWith("KestruneWrongView", "viewDidMoveToWindow", "B@:", mac::appKit.button)),
        "-.KestruneWrongView viewDidMoveToWindow. has the encoding B@:, and NSView's has v");
}

TEST_F(ClassChecksDeathTest, EndWithAMethodThatAProtocolHasOtherwise) {
    EXPECT_DEATH(
        {
            const Class type = classWith("KestruneWrongLock", "lock", "B@:");
            registerAsPrograms(type);
            adoptAsPrograms(type, "NSLocking");
        },
        "-.KestruneWrongLock lock. has the encoding B@:, and NSLocking's has v");
}

TEST_F(ClassChecksDeathTest, EndWithAMethodOfAProtocolThatWasAdoptedBefore) {
    EXPECT_DEATH(
        {
            const Class type = objc_allocateClassPair(mac::foundation.object.find(), "KestruneEarlyLock", 0);
            adoptAsPrograms(type, "NSLocking");
            class_addMethod(type, sel_registerName("lock"), mac::asImplementation(nothing), "B@:");
            registerAsPrograms(type);
        },
        "-.KestruneEarlyLock lock. has the encoding B@:, and NSLocking's has v");
}

} // namespace
} // namespace kestrune::macho
