#include "platform/AppService.h"

#include "mac/ReportedError.h"
#include "mac/objc/Pool.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

namespace {

id theMainAppService() { return mac::serviceManagement.appService.mainAppService(); }

std::optional<Error> change(const mac::Message<BOOL(id*)>& message) {
    const mac::Pool pool;
    id error = nullptr;
    const BOOL isDone = message(theMainAppService(), &error);
    return mac::errorUnless(isDone, error);
}

} // namespace

// There is one; it is asked for with each call.
AppService AppService::mainAppService() { return {}; }

AppServiceStatus AppService::status() const {
    const mac::Pool pool;
    return static_cast<AppServiceStatus>(mac::serviceManagement.appService.status(theMainAppService()));
}

std::optional<Error> AppService::registerAndReturnError() {
    return change(mac::serviceManagement.appService.registerAndReturnError);
}

std::optional<Error> AppService::unregisterAndReturnError() {
    return change(mac::serviceManagement.appService.unregisterAndReturnError);
}

} // namespace kestrune
