#include "platform/AppService.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/LoginItem.h"

namespace kestrune {

AppService AppService::mainAppService() {
    sim::recordCall("SMAppService.mainAppService");
    return {};
}

AppServiceStatus AppService::status() const {
    sim::recordCall("-[SMAppService status]");
    return sim::current<sim::LoginItem>().status();
}

std::optional<Error> AppService::registerAndReturnError() {
    sim::recordCall("-[SMAppService registerAndReturnError:]");
    return sim::current<sim::LoginItem>().registerItem();
}

std::optional<Error> AppService::unregisterAndReturnError() {
    sim::recordCall("-[SMAppService unregisterAndReturnError:]");
    return sim::current<sim::LoginItem>().unregisterItem();
}

} // namespace kestrune
