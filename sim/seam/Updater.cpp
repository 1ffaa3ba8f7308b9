#include "platform/Updater.h"

#include "sim/seam/LiveObject.h"
#include "sim/session/Session.h"

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
    sim::Session::current().journal().record(
        "-[SPUStandardUserDriver initWithHostBundle:delegate:] main bundle, ", nameOf(delegate));
    state_->delegate = delegate;
}

Updater::Updater(const Bundle&, const Bundle&, const StandardUserDriver& userDriver,
                 const std::weak_ptr<Object>& delegate)
    : state_(std::make_shared<State>()) {
    sim::Session::current().journal().record(
        "-[SPUUpdater initWithHostBundle:applicationBundle:userDriver:delegate:] main bundle, main bundle, ",
        nameOf(delegate));
    state_->userDriver = userDriver.state();
}

std::optional<Error> Updater::startUpdater() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[SPUUpdater startUpdater:]");
    return session.updates().start(state_->userDriver->delegate);
}

void Updater::setAutomaticallyDownloadsUpdates(bool downloads) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[SPUUpdater setAutomaticallyDownloadsUpdates:] ", downloads);
    session.defaults().set("SUAutomaticallyUpdate", sim::PropertyList{downloads});
}

void Updater::checkForUpdates() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[SPUUpdater checkForUpdates]");
    session.updates().checkForUser();
}

} // namespace kestrune
