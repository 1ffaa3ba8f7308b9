#include "platform/AppService.h"

#include "sim/session/Session.h"

namespace kestrune {

AppService AppService::mainAppService() {
    sim::Session::current().journal().record("SMAppService.mainAppService");
    return {};
}

AppServiceStatus AppService::status() const {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[SMAppService status]");
    return session.loginItem().status();
}

std::optional<Error> AppService::registerAndReturnError() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[SMAppService registerAndReturnError:]");
    return session.loginItem().registerItem();
}

std::optional<Error> AppService::unregisterAndReturnError() {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[SMAppService unregisterAndReturnError:]");
    return session.loginItem().unregisterItem();
}

} // namespace kestrune
