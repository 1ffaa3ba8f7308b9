// What stands in for Sparkle refuses what Sparkle would not understand.
#include "mac/objc/Pool.h"
#include "platform/Updater.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/standins/StandIns.h"
#include "tests/gnustep/standins/runtime/Methods.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/MainBundle.h"

#include <gtest/gtest.h>

#include <thread>

namespace kestrune::gnustep {
namespace {

void finishSession(id, SEL) {}

// Of the right name, but of a number where Sparkle has a truth value.
void handleShowingUpdate(id, SEL, mac::Integer, id, id) {}

BOOL supportsReminders(id, SEL) { return mac::truth(false); }

void showAlert(id, SEL) {}
void handleShowingAnUpdate(id, SEL, BOOL, id, id) {}

// An instance of a class with these methods of the user driver's delegate.
id delegateWith(const std::function<void(Class)>& addMethods) {
    const Class made = objc_allocateClassPair(classNamed("NSObject"), "KestruneDeficientDelegate", 0);
    objc_registerClassPair(made);
    addMethods(made);
    return send(send(reinterpret_cast<id>(made), "alloc"), "init");
}

class SparkleStandInDeathTest : public testing::Test {
protected:
    SparkleStandInDeathTest() {
        static const bool isInstalled = (installStandIns(), true);
        static_cast<void>(isInstalled);
        setMainBundle({}, privateHome());
        setUpdateFramework(contract::UpdateFramework::working);
        const StandardUserDriver loads(Bundle::mainBundle(), {});
    }

    static void makeUserDriver(id hostBundle, id delegate) {
        send(send(classObject("SPUStandardUserDriver"), "alloc"), "initWithHostBundle:delegate:", hostBundle,
             delegate);
    }

    // Without a user driver.
    static void makeUpdater(id delegate) {
        send(send(classObject("SPUUpdater"), "alloc"),
             "initWithHostBundle:applicationBundle:userDriver:delegate:", mainBundle(), mainBundle(), id{},
             delegate);
    }

    static id mainBundle() { return send(classObject("NSBundle"), "mainBundle"); }

    mac::Pool pool_;
};

TEST_F(SparkleStandInDeathTest, RefusesAnotherBundle) {
    EXPECT_DEATH(makeUserDriver(nullptr, nullptr), "the bundle is not the main one");
}

TEST_F(SparkleStandInDeathTest, RefusesADelegateWithoutItsMethods) {
    EXPECT_DEATH(makeUserDriver(mainBundle(), delegateWith([](Class) {})),
                 "the delegate has no method supportsGentleScheduledUpdateReminders");
}

TEST_F(SparkleStandInDeathTest, RefusesADelegateWithAMethodOfAnotherSignature) {
    const auto addMethods = [](Class type) {
        addMethod(type, "supportsGentleScheduledUpdateReminders", supportsReminders);
        addMethod(type, "standardUserDriverWillFinishUpdateSession", finishSession);
        addMethod(type, "standardUserDriverWillHandleShowingUpdate:forUpdate:state:", handleShowingUpdate);
    };
    EXPECT_DEATH(makeUserDriver(mainBundle(), delegateWith(addMethods)),
                 "standardUserDriverWillHandleShowingUpdate:forUpdate:state: is v@:q@@, not");
}

TEST_F(SparkleStandInDeathTest, RefusesADelegateThatDoesNotAdoptItsProtocol) {
    const auto addMethods = [](Class type) {
        addMethod(type, "supportsGentleScheduledUpdateReminders", supportsReminders);
        addMethod(type, "standardUserDriverWillHandleShowingUpdate:forUpdate:state:", handleShowingAnUpdate);
        addMethod(type, "standardUserDriverWillFinishUpdateSession", finishSession);
        addMethod(type, "standardUserDriverWillShowModalAlert", showAlert);
        addMethod(type, "standardUserDriverDidShowModalAlert", showAlert);
    };
    const id delegate = delegateWith(addMethods);
    class_addProtocol(object_getClass(delegate), objc_getProtocol("SPUUpdaterDelegate"));
    EXPECT_DEATH(makeUserDriver(mainBundle(), delegate),
                 "the delegate does not adopt SPUStandardUserDriverDelegate");
}

TEST_F(SparkleStandInDeathTest, RefusesAnUpdatersDelegateThatDoesNotAdoptItsProtocol) {
    const id delegate = delegateWith([](Class) {});
    class_addProtocol(object_getClass(delegate), objc_getProtocol("SPUStandardUserDriverDelegate"));
    EXPECT_DEATH(makeUpdater(delegate), "the delegate does not adopt SPUUpdaterDelegate");
}

TEST_F(SparkleStandInDeathTest, RefusesAnUpdaterWithoutItsDriver) {
    EXPECT_DEATH(makeUpdater(nullptr), "the user driver is not the one that was made");
}

TEST_F(SparkleStandInDeathTest, RefusesAnotherThread) {
    const auto makeElsewhere = [] {
        std::thread elsewhere([] { makeUserDriver(mainBundle(), nullptr); });
        elsewhere.join();
    };
    EXPECT_DEATH(makeElsewhere(), "it comes from another thread than the main one");
}

TEST_F(SparkleStandInDeathTest, IsLookedForInTheMainBundleAlone) {
    EXPECT_DEATH(send(classObject("NSBundle"), "bundleWithPath:", objectFor("/Sparkle.framework")),
                 "it is looked for at /Sparkle.framework");
}

} // namespace
} // namespace kestrune::gnustep
