// The platform's object that stands for one of the application's, when it is held for longer than that, or
// asked for more.
#include "mac/ObjectCounterpart.h"
#include "tests/contract/RecordingObjects.h"
#include "tests/contract/WindowFixture.h"
#include "tests/gnustep/harness/Send.h"

#include <memory>

namespace kestrune::gnustep {
namespace {

using testing::SizeIs;

using contract::RecordingTarget;

// Of a class that was made for others, which have actions.
struct TargetWithoutActions : RecordingTarget {
    std::span<const ActionMethod> actionMethods() const override { return {}; }
};

class ReceiverOnGNUstep : public contract::WindowFixture {
protected:
    static mac::Retained counterpartOf(const std::shared_ptr<Object>& object) {
        return mac::Retained::retaining(Object::Counterpart::of(object));
    }

    static void sendActions(const mac::Retained& instance) {
        send<void>(instance.get(), "record:", id{});
        send<void>(instance.get(), "recordAgain");
    }
};

TEST_F(ReceiverOnGNUstep, DoesNothingOnceItsObjectIsGone) {
    auto target = std::make_shared<RecordingTarget>();
    const mac::Retained instance = counterpartOf(target);
    sendActions(instance);
    EXPECT_THAT(target->received(), SizeIs(2));
    target.reset();
    sendActions(instance);
    EXPECT_EQ(Object::Counterpart::of(target), id{});
}

TEST_F(ReceiverOnGNUstep, DoesNothingForAnActionThatItsObjectDoesNotHave) {
    const RecordingTarget first;
    const auto target = std::make_shared<TargetWithoutActions>();
    sendActions(counterpartOf(target));
    EXPECT_THAT(target->received(), SizeIs(0));
}

// The platform's own would go on to the other one here, and end the process all the same.
TEST_F(ReceiverOnGNUstep, RefusesBothWaysInWhichThePlatformMakesItsOwnWindowController) {
    const contract::RecordingWindowController known(makeWindow("one"));
    for (const char* const initializer : {"initWithCoder:", "initWithWindow:"}) {
        const SEL selector = sel_registerName(initializer);
        EXPECT_NE(class_getMethodImplementation(classNamed("RecordingWindowController"), selector),
                  class_getMethodImplementation(classNamed("NSWindowController"), selector));
    }
}

} // namespace
} // namespace kestrune::gnustep
