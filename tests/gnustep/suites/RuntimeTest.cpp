// What the binding makes by hand: blocks and classes for the runtime, arguments for the log.
#include "mac/objc/Block.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/objc/RuntimeClass.h"
#include "platform/Log.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/standins/runtime/Blocks.h"
#include "tests/gnustep/standins/system/UnifiedLog.h"

#include <gtest/gtest.h>

#include <memory>

namespace kestrune::gnustep {
namespace {

using mac::Block;
using mac::RuntimeClass;

// Source of the flags: clang.llvm.org/docs/Block-ABI-Apple.html; the blocks runtime frees what has bit 24.
TEST(BlockOnGNUstep, IsLaidOutAsTheRuntimeReadsIt) {
    const Block block([](id) {});
    const BlockLayout layout = layoutOf(block.get());
    constexpr int OneReference = 2;
    EXPECT_EQ(layout.flags, OneReference | 1 << 24 | 1 << 25 | 1 << 30);
    EXPECT_EQ(layout.reserved, 0);
    EXPECT_EQ(layout.reservedOfDescriptor, 0U);
    EXPECT_EQ(layout.size, 40U);
    EXPECT_EQ(layout.signature, "v16@?0@8");
}

TEST(BlockOnGNUstep, KeepsItsFunctionUntilItsLastReferenceGoes) {
    const auto kept = std::make_shared<int>(0);
    id copied = nullptr;
    {
        const Block block([kept](id) { ++*kept; });
        copied = static_cast<id>(_Block_copy(block.get()));
    }
    callBlock(copied);
    EXPECT_EQ(*kept, 1);
    EXPECT_EQ(kept.use_count(), 2);
    _Block_release(copied);
    EXPECT_EQ(kept.use_count(), 1);
}

TEST(RuntimeClassOnGNUstep, PointsAtNothingUntilItIsSaidAtWhat) {
    const mac::Pool pool;
    const Class made = RuntimeClass("RuntimeTestTarget").finish();
    const auto instance = mac::Retained::adopting(send(send(reinterpret_cast<id>(made), "alloc"), "init"));
    EXPECT_EQ(RuntimeClass::target(instance.get()), nullptr);
    int target = 0;
    RuntimeClass::setTarget(instance.get(), &target);
    EXPECT_EQ(RuntimeClass::target(instance.get()), &target);
    EXPECT_STREQ(ivar_getTypeEncoding(class_getInstanceVariable(made, "kestruneTarget")), "^v");
}

TEST(RuntimeClassOnGNUstep, KeepsItsTargetBehindWhatTheSuperclassKeepsAndAligned) {
    const Class superclass = objc_allocateClassPair(classNamed("NSObject"), "RuntimeTestSuperclass", 0);
    class_addIvar(superclass, "pointer", sizeof(void*), 3, "^v");
    class_addIvar(superclass, "truth", 1, 0, "B");
    objc_registerClassPair(superclass);
    const Class made = RuntimeClass("RuntimeTestSubclass", superclass).finish();
    EXPECT_EQ(ivar_getOffset(class_getInstanceVariable(superclass, "truth")), 16);
    EXPECT_EQ(ivar_getOffset(class_getInstanceVariable(made, "kestruneTarget")), 24);
}

TEST(RuntimeClassOnGNUstepDeathTest, IsMadeOncePerName) {
    EXPECT_DEATH(RuntimeClass("NSObject"), "There is a class named NSObject already.");
}

TEST(RuntimeClassOnGNUstepDeathTest, HasAMethodOnce) {
    constexpr mac::Action<void()> method{"doSomething"};
    EXPECT_DEATH(
        {
            RuntimeClass type("RuntimeTestMethods");
            type.addMethod(method, [](id, SEL) noexcept {});
            type.addMethod(method, [](id, SEL) noexcept {});
        },
        "There is a method doSomething already.");
}

TEST(LogOnGNUstep, IsHandedNothingThatItDoesNotTake) {
    const Log log("subsystem", "category");
    for (const bool isEnabled : {false, true}) {
        setLogEnabled(isEnabled);
        log.debug(LogMessage::of<"message">());
        log.error(LogFormat::of<"%{public}s">(), "argument");
        EXPECT_EQ(loggedMessages().size(), isEnabled ? 2U : 0U);
    }
}

} // namespace
} // namespace kestrune::gnustep
