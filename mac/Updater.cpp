#include "platform/Updater.h"

#include "mac/MainBundle.h"
#include "mac/ObjectCounterpart.h"
#include "mac/Protocols.h"
#include "mac/ReportedError.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/objc/SelfCheck.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <array>

namespace kestrune {

struct StandardUserDriver::State {
    mac::Retained driver; // empty without the framework
};

struct Updater::State {
    mac::Retained updater;
    std::optional<Error> missing; // why there is no updater
};

namespace {

// In the Frameworks folder of the bundle, where it lies if it does.
id bundleOfFramework() {
    const id folder = mac::foundation.bundle.privateFrameworksPath(mac::theMainBundle());
    if (folder == nullptr) {
        return nullptr;
    }
    const mac::Retained path = mac::nsString(mac::textOf(folder) + "/Sparkle.framework");
    return mac::foundation.bundle.bundleWithPath(path.get());
}

// Loaded already when it is asked for again. The program is not linked with it, so that it starts without.
std::optional<Error> loadFramework() {
    const id framework = bundleOfFramework();
    if (framework == nullptr) {
        return Error{std::string(MissingUpdateFramework)};
    }
    id error = nullptr;
    const BOOL isLoaded = mac::foundation.bundle.loadAndReturnError(framework, &error);
    return mac::errorUnless(isLoaded, error);
}

// The framework has brought its protocols.
void adopt(id delegate, const mac::ProtocolReference& protocol) {
    if (delegate != nullptr) {
        mac::adopt(object_getClass(delegate), protocol);
    }
}

} // namespace

StandardUserDriver::StandardUserDriver(const Bundle& /*hostBundle*/,
                                       const std::weak_ptr<StandardUserDriverDelegate>& delegate)
    : state_(std::make_shared<State>()) {
    const mac::Pool pool;
    if (loadFramework()) {
        return;
    }
    mac::logWhatDiffers(std::array<const mac::Framework*, 1>{&mac::sparkle});
    const id instance = Object::Counterpart::of(delegate);
    adopt(instance, mac::sparkle.userDriverDelegate);
    state_->driver = mac::Retained::adopting(mac::sparkle.standardUserDriver.initWithHostBundle(
        mac::allocate(mac::sparkle.standardUserDriver), mac::theMainBundle(), instance));
}

Updater::Updater(const Bundle& /*hostBundle*/, const Bundle& /*applicationBundle*/,
                 const StandardUserDriver& userDriver, const std::weak_ptr<Object>& delegate)
    : state_(std::make_shared<State>()) {
    const mac::Pool pool;
    state_->missing = loadFramework();
    if (state_->missing) {
        return;
    }
    const id instance = Object::Counterpart::of(delegate);
    adopt(instance, mac::sparkle.updaterDelegate);
    state_->updater = mac::Retained::adopting(mac::sparkle.updater.initWithHostBundle(
        mac::allocate(mac::sparkle.updater), mac::theMainBundle(), mac::theMainBundle(),
        userDriver.state()->driver.get(), instance));
}

std::optional<Error> Updater::startUpdater() {
    if (state_->missing) {
        return state_->missing;
    }
    const mac::Pool pool;
    id error = nullptr;
    const BOOL hasStarted = mac::sparkle.updater.startUpdater(state_->updater.get(), &error);
    return mac::errorUnless(hasStarted, error);
}

void Updater::setAutomaticallyDownloadsUpdates(bool downloads) {
    const mac::Pool pool;
    mac::sparkle.updater.setAutomaticallyDownloadsUpdates(state_->updater.get(), mac::truth(downloads));
}

void Updater::checkForUpdates() {
    const mac::Pool pool;
    mac::sparkle.updater.checkForUpdates(state_->updater.get());
}

} // namespace kestrune
