#include "platform/Updater.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/DefaultsDomain.h"
#include "sim/services/LiveObject.h"
#include "sim/services/Updates.h"

namespace kestrune {

struct StandardUserDriver::State {
    std::weak_ptr<StandardUserDriverDelegate> delegate;
    sim::LiveObject object{"user driver", sim::LiveObject::Release::unrecorded};
};

struct Updater::State {
    std::shared_ptr<StandardUserDriver::State> userDriver;
    sim::LiveObject object{"updater", sim::LiveObject::Release::unrecorded};
};

namespace {

std::string_view nameOf(const std::weak_ptr<Object>& delegate) {
    const auto object = delegate.lock();
    return object ? object->className() : "nil";
}

} // namespace

StandardUserDriver::StandardUserDriver(const Bundle&,
                                       const std::weak_ptr<StandardUserDriverDelegate>& delegate)
    : state_(std::make_shared<State>()) {
    sim::recordCall("-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, ", nameOf(delegate));
    state_->delegate = delegate;
}

Updater::Updater(const Bundle&, const Bundle&, const StandardUserDriver& userDriver,
                 const std::weak_ptr<Object>& delegate)
    : state_(std::make_shared<State>()) {
    sim::recordCall(
        "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, main bundle, ",
        nameOf(delegate));
    state_->userDriver = userDriver.state();
}

std::optional<Error> Updater::startUpdater() {
    sim::recordCall("-[SPUUpdater startUpdater:]");
    return sim::current<sim::Updates>().start(state_->userDriver->delegate);
}

void Updater::setAutomaticallyDownloadsUpdates(bool downloads) {
    sim::recordCall("-[SPUUpdater setAutomaticallyDownloadsUpdates:] ", downloads);
    sim::current<sim::DefaultsDomain>().set("SUAutomaticallyUpdate", sim::PropertyList{downloads});
}

void Updater::checkForUpdates() {
    sim::recordCall("-[SPUUpdater checkForUpdates]");
    sim::current<sim::Updates>().checkForUser();
}

} // namespace kestrune
