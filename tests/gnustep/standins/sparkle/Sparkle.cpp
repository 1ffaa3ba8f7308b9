// Sparkle: a folder in the main bundle that NSBundle is asked to load, and the two classes and protocols that
// are there from then on.
//
// This is what we believe of Sparkle, and no proof of it: delegates are held weakly, the driver is retained
// by its updater, and the delegate is looked at for its methods by those encodings. That it adopts the
// protocols, Sparkle leaves to the compiler; here it is required.
//
// Source: Sparkle 2, SPUStandardUserDriver.h, SPUStandardUserDriverDelegate.h, SPUUpdater.h.
#include "tests/gnustep/standins/sparkle/Sparkle.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Expectations.h"
#include "tests/gnustep/standins/runtime/Protocols.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

#include <filesystem>
#include <optional>

namespace kestrune::gnustep {

using contract::UpdateFramework;
using contract::World;

namespace {

constexpr const char* UserDriverDelegate = "SPUStandardUserDriverDelegate";
constexpr const char* UpdaterDelegate = "SPUUpdaterDelegate";

struct UpdaterVariables {
    mac::Retained driver;
};

struct Framework {
    bool refusesToStart = false;
    bool hasStarted = false;
    bool hasPlace = true;
    std::optional<std::string> loadingFault;
    id driver = nullptr; // not retained here
    id delegate = nullptr;
    std::vector<std::string> messages;
};

Framework& framework() {
    static Framework& only = *new Framework;
    return only;
}

void require(bool holds, const std::string& otherwise) { expect("Sparkle", holds, otherwise); }

// Where its objects are used.
void receive(std::string message) {
    expectMainThread("Sparkle");
    updateMessages().push_back(std::move(message));
}

std::string nameOf(id delegate) { return delegate != nullptr ? object_getClassName(delegate) : "nil"; }

void requireMethod(id delegate, const char* selector, const std::string& encoding) {
    struct objc_method* const method =
        class_getInstanceMethod(object_getClass(delegate), sel_registerName(selector));
    require(method != nullptr, std::string("the delegate has no method ") + selector);
    const std::string found = method_getTypeEncoding(method);
    require(mac::normalizedEncoding(found) == mac::normalizedEncoding(encoding),
            std::string("the delegate's ") + selector + " is " + found + ", not " + encoding);
}

void requireAdoption(id delegate, const char* protocol) {
    require(delegate == nullptr || adopts(object_getClass(delegate), protocol),
            std::string("the delegate does not adopt ") + protocol);
}

void requireMethods(id delegate) {
    if (delegate == nullptr) {
        return;
    }
    requireMethod(delegate, "supportsGentleScheduledUpdateReminders", "B16@0:8");
    requireMethod(delegate, "standardUserDriverWillHandleShowingUpdate:forUpdate:state:", "v36@0:8B16@20@28");
    requireMethod(delegate, "standardUserDriverWillFinishUpdateSession", "v16@0:8");
    requireMethod(delegate, "standardUserDriverWillShowModalAlert", "v16@0:8");
    requireMethod(delegate, "standardUserDriverDidShowModalAlert", "v16@0:8");
}

void requireMainBundle(id bundle) {
    require(bundle == mac::foundation.bundle.mainBundle(), "the bundle is not the main one");
}

id initUserDriver(id driver, SEL, id hostBundle, id delegate) {
    receive("-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, " + nameOf(delegate));
    requireMainBundle(hostBundle);
    requireMethods(delegate);
    requireAdoption(delegate, UserDriverDelegate);
    framework().driver = driver;
    framework().delegate = delegate;
    if (delegate != nullptr) {
        whenDeallocated(delegate, &framework(), [] { framework().delegate = nullptr; });
    }
    whenDeallocated(driver, &framework(), [] { framework().driver = nullptr; });
    return driver;
}

id initUpdater(id updater, SEL, id hostBundle, id applicationBundle, id driver, id delegate) {
    receive(
        "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, main bundle, " +
        nameOf(delegate));
    requireMainBundle(hostBundle);
    requireMainBundle(applicationBundle);
    requireAdoption(delegate, UpdaterDelegate);
    require(driver != nullptr && driver == framework().driver,
            "the user driver is not the one that was made");
    Subclass<UpdaterVariables>::give(updater, {mac::Retained::retaining(driver)});
    return updater;
}

BOOL startUpdater(id, SEL, id* error) {
    require(error != nullptr, "there is no place for the error");
    receive("-[SPUUpdater startUpdater:]");
    if (framework().refusesToStart) {
        *error = errorFor("SUSparkleErrorDomain", std::string(World::UpdateFailure));
        return mac::truth(false);
    }
    framework().hasStarted = true;
    return mac::truth(true);
}

void setAutomaticallyDownloadsUpdates(id, SEL, BOOL downloads) {
    receive(std::string("-[SPUUpdater setAutomaticallyDownloadsUpdates:] ") +
            (downloads != 0 ? "true" : "false"));
}

void checkForUpdates(id, SEL) {
    require(framework().hasStarted, "a check before the updater has started");
    receive("-[SPUUpdater checkForUpdates]");
}

void makeClasses() {
    makeProtocol(UserDriverDelegate,
                 {{"supportsGentleScheduledUpdateReminders", "B16@0:8"},
                  {"standardUserDriverWillHandleShowingUpdate:forUpdate:state:", "v36@0:8B16@20@28"},
                  {"standardUserDriverWillFinishUpdateSession", "v16@0:8"},
                  {"standardUserDriverWillShowModalAlert", "v16@0:8"},
                  {"standardUserDriverDidShowModalAlert", "v16@0:8"}});
    makeProtocol(UpdaterDelegate, {});
    Subclass<NoValue>("SPUStandardUserDriver").method("initWithHostBundle:delegate:", initUserDriver);
    Subclass<UpdaterVariables>("SPUUpdater")
        .method("initWithHostBundle:applicationBundle:userDriver:delegate:", initUpdater)
        .method("startUpdater:", startUpdater)
        .method("setAutomaticallyDownloadsUpdates:", setAutomaticallyDownloadsUpdates)
        .method("checkForUpdates", checkForUpdates);
}

std::filesystem::path place() {
    const id bundle = mac::foundation.bundle.mainBundle();
    return std::filesystem::path(mac::textOf(mac::foundation.bundle.privateFrameworksPath(bundle))) /
           "Sparkle.framework";
}

// GNUstep's own.
struct BundleMethods {
    Method<BOOL, id*> load = nullptr;
    Method<id, id> bundleWithPath = nullptr;
    Method<id> privateFrameworksPath = nullptr;
};

BundleMethods& before() {
    static BundleMethods methods;
    return methods;
}

id bundleWithPath(id type, SEL selector, id path) {
    const std::filesystem::path wanted = mac::textOf(path);
    require(wanted.filename() != place().filename() || wanted == place(),
            "it is looked for at " + wanted.string());
    return before().bundleWithPath(type, selector, path);
}

id privateFrameworksPath(id bundle, SEL selector) {
    return framework().hasPlace ? before().privateFrameworksPath(bundle, selector) : nullptr;
}

BOOL load(id bundle, SEL selector, id* error) {
    if (mac::textOf(send(bundle, "bundlePath")) != place()) {
        return before().load(bundle, selector, error);
    }
    if (framework().loadingFault) {
        *error = errorFor("NSCocoaErrorDomain", *framework().loadingFault);
        return mac::truth(false);
    }
    if (objc_getClass("SPUUpdater") == nullptr) {
        makeClasses();
    }
    return mac::truth(true);
}

} // namespace

void installSparkle() {
    const Class bundle = classNamed("NSBundle");
    before().load = replaceMethod(bundle, "loadAndReturnError:", load);
    before().privateFrameworksPath = replaceMethod(bundle, "privateFrameworksPath", privateFrameworksPath);
    before().bundleWithPath = replaceMethod(classOf(bundle), "bundleWithPath:", bundleWithPath);
}

void setUpdateFramework(UpdateFramework kind) {
    const mac::Pool pool;
    framework() = {};
    framework().refusesToStart = kind == UpdateFramework::refusing;
    if (kind == UpdateFramework::missing) {
        std::filesystem::remove_all(place());
    } else {
        std::filesystem::create_directories(place());
    }
}

void refuseLoadingUpdateFramework(const std::string& description) { framework().loadingFault = description; }

void takeAwayFrameworksFolder() { framework().hasPlace = false; }

std::vector<std::string>& updateMessages() { return framework().messages; }

id userDriverDelegate() { return framework().hasStarted ? framework().delegate : nullptr; }

} // namespace kestrune::gnustep
