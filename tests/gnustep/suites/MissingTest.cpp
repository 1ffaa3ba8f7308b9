// What becomes of the application where the platform lacks a class, a method or a protocol: the log names it,
// and all goes on that does not need it.
#include "mac/Protocols.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/objc/SelfCheck.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/LeftOut.h"
#include "tests/gnustep/standins/runtime/Protocols.h"
#include "tests/gnustep/suites/SettingsFixture.h"

#include <array>
#include <string>

namespace kestrune::gnustep {
namespace {

using contract::LoggedMessage;
using mac::Retained;
using mac::RuntimeClass;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

struct Missing : mac::Framework {
    struct NSScren : mac::ClassReference {
        using ClassReference::ClassReference;
        mac::ClassMessage<id()> screens{*this, "screens"};
    } screen{*this, "NSScren"};

    struct NSObject : mac::ClassReference {
        using ClassReference::ClassReference;
        mac::Message<id(id)> misspelled{*this, "isEquall:"};
        mac::Message<Rect()> structure{*this, "fraame"};
        mac::ClassMessage<double()> ofClass{*this, "versoin"};
    } object{*this, "NSObject"};

    struct NSScreenDelegate : mac::ProtocolReference {
        using ProtocolReference::ProtocolReference;
    } screenDelegate{*this, "NSScreenDelegate"};
    struct NSFontDelegate : mac::ProtocolReference {
        using ProtocolReference::ProtocolReference;
    } fontDelegate{*this, "NSFontDelegate"};
};
constinit const Missing Absent;

class WhatIsMissing : public SettingsFixture {
protected:
    std::vector<std::string> errors() const {
        std::vector<std::string> errors;
        for (const LoggedMessage& message : world_.loggedMessages()) {
            if (message.level == LoggedMessage::Level::error) {
                errors.push_back(message.message);
            }
        }
        return errors;
    }
};

TEST_F(WhatIsMissing, IsFoundInTheLogByItsFormat) {
    Absent.screen.object();
    EXPECT_THAT(world_.loggedMessages(),
                ElementsAre(LoggedMessage{LoggedMessage::Level::error, "org.kestrune.Kestrune", "app",
                                          "There is no class NSScren at run time",
                                          "There is no class %{public}s at run time"}));
}

TEST_F(WhatIsMissing, IsNilAndNamedOnceAsAClass) {
    const mac::Pool pool;
    EXPECT_EQ(Absent.screen.object(), nullptr);
    EXPECT_EQ(Absent.screen.screens(), nullptr);
    EXPECT_FALSE(Absent.screen.screens.isThere());
    EXPECT_EQ(mac::newObject(Absent.screen).get(), nullptr);
    EXPECT_THAT(errors(), ElementsAre("There is no class NSScren at run time"));
}

TEST_F(WhatIsMissing, LeavesItsSubclassWithoutInstances) {
    const mac::Pool pool;
    RuntimeClass type("KestruneMissing", Absent.screen);
    type.addMethod(mac::foundation.object.dealloc, [](id, SEL) noexcept {});
    const Class made = type.finish();
    EXPECT_EQ(made, nullptr);
    const id instance = mac::allocate(made);
    EXPECT_EQ(instance, nullptr);
    RuntimeClass::setTarget(instance, this);
    EXPECT_EQ(RuntimeClass::target(instance), nullptr);
    EXPECT_EQ(mac::foundation.object.init.asImplementedBy(made, instance), nullptr);
    EXPECT_THAT(errors(), ElementsAre("There is no class NSScren at run time"));
}

TEST_F(WhatIsMissing, GivesZeroAndIsNamedOnceAsAMethod) {
    const mac::Pool pool;
    const Retained object = mac::newObject(mac::foundation.object);
    const Retained array = mac::newObject(mac::foundation.mutableArray);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(Absent.object.misspelled(object.get(), array.get()), nullptr);
        EXPECT_EQ(Absent.object.structure(object.get()), Rect());
        EXPECT_EQ(Absent.object.ofClass(), 0);
    }
    EXPECT_THAT(errors(), ElementsAre("There is no method -[NSObject isEquall:] at run time",
                                      "There is no method -[NSObject fraame] at run time",
                                      "There is no method +[NSObject versoin] at run time"));
}

// The class of the receiver before it says nothing about the next one's.
TEST_F(WhatIsMissing, IsWhatTheReceiverLacks) {
    const mac::Pool pool;
    const Retained array = mac::newObject(mac::foundation.mutableArray);
    const Retained object = mac::newObject(mac::foundation.object);
    mac::foundation.mutableArray.addObject(array.get(), object.get());
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(mac::foundation.array.count(array.get()), 1U);
        EXPECT_EQ(mac::foundation.array.count(object.get()), 0U);
    }
    EXPECT_THAT(errors(), ElementsAre("There is no method -[NSObject count] at run time"));
}

BOOL alwaysResponds(id, SEL, SEL) noexcept { return mac::truth(true); }

// It has no such method, and GNUstep asks it for one.
id resolved = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
id forward(id, SEL, SEL) noexcept { return resolved; }

TEST_F(WhatIsMissing, IsNotWhatTheReceiverForwards) {
    const mac::Pool pool;
    RuntimeClass type("KestruneForwarder");
    type.addMethod(mac::foundation.object.respondsToSelector, alwaysResponds);
    type.addMethod(mac::Action<id(SEL)>{"forwardingTargetForSelector:"}, forward);
    const Class made = type.finish();
    const Retained array = mac::newObject(mac::foundation.mutableArray);
    resolved = array.get();
    const Retained forwarder = Retained::adopting(mac::foundation.object.init(mac::allocate(made)));
    EXPECT_TRUE(mac::foundation.mutableArray.addObject.canBeSentTo(forwarder.get()));
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(WhatIsMissing, IsNamedOnceAsAProtocol) {
    mac::adopt(classNamed("NSObject"), Absent.screenDelegate);
    mac::adopt(classNamed("NSArray"), Absent.screenDelegate);
    mac::adopt(classNamed("NSArray"), Absent.fontDelegate);
    EXPECT_THAT(errors(), ElementsAre("There is no protocol NSScreenDelegate at run time",
                                      "There is no protocol NSFontDelegate at run time"));
}

struct Other : mac::Framework {
    struct NSNumber : mac::ClassReference {
        using ClassReference::ClassReference;
        mac::Message<float()> floatForDouble{*this, "doubleValue"};
    } number{*this, "NSNumber"};
};
constinit const Other Different;

TEST_F(WhatIsMissing, IsNamedBeforeItIsUsedAndNotOnceMore) {
    const mac::Pool pool;
    mac::logWhatDiffers(std::array<const mac::Framework*, 2>{&Absent, &Different});
    EXPECT_EQ(Absent.screen.object(), nullptr);
    const Retained object = mac::newObject(mac::foundation.object);
    EXPECT_EQ(Absent.object.structure(object.get()), Rect());
    EXPECT_THAT(
        errors(),
        UnorderedElementsAre(
            "There is no class NSScren at run time", "There is no method -[NSObject isEquall:] at run time",
            "There is no method -[NSObject fraame] at run time",
            "There is no method +[NSObject versoin] at run time",
            StartsWith("There is another encoding of -[NSNumber doubleValue]: expected f@:, found d")));
}

struct SparkleLeftOut {
    SparkleLeftOut() { leaveOut("checkForUpdates"); }
};
class WithoutAMethodOfSparkle : SparkleLeftOut, public WhatIsMissing {};

// It has its methods only now, and is looked at alone.
TEST_F(WithoutAMethodOfSparkle, IsToldOfOnceSparkleIsLoaded) {
    world_.setUpdateFramework(contract::UpdateFramework::working);
    EXPECT_THAT(errors(), IsEmpty());
    launchAndOpen();
    EXPECT_THAT(errors(), ElementsAre("There is no method -[SPUUpdater checkForUpdates] at run time"));
}

struct LeftOut {
    LeftOut() {
        for (const char* const name : {"NSApplicationDelegate", "NSMenuDelegate", "NSWindowDelegate",
                                       "SMAppService", "setHasDestructiveAction:"}) {
            leaveOut(name);
        }
    }
};

// In this order: what is left out has to be so before there is a world.
class WithoutMuch : LeftOut, public WhatIsMissing {};

TEST_F(WithoutMuch, TheApplicationGoesOn) {
    launchAndOpen();
    EXPECT_THAT(titles(), ElementsAre("Kestrune Settings"));
    world_.clickSwitch(0);
    world_.runMainQueue();
    world_.clickCloseButton();
    world_.runMainQueue();
    EXPECT_EQ(world_.activationPolicy(), ActivationPolicy::accessory);
    EXPECT_FALSE(adopts(classNamed("KestruneApp"), "NSApplicationDelegate"));
    EXPECT_THAT(errors(), UnorderedElementsAre(
                              "There is no protocol NSApplicationDelegate at run time",
                              "There is no protocol NSMenuDelegate at run time",
                              "There is no protocol NSWindowDelegate at run time",
                              "There is no class SMAppService at run time", "LoginItem toggle failed: ",
                              "There is no method -[NSButton setHasDestructiveAction:] at run time"));
}

} // namespace
} // namespace kestrune::gnustep
