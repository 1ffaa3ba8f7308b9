// SMAppService, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: whoever registers is enabled or waits for the
// user's approval, whoever unregisters is not registered.
#include "tests/gnustep/standins/LoginItem.h"

#include "tests/gnustep/Objects.h"
#include "tests/gnustep/standins/Subclass.h"

namespace kestrune::gnustep {

namespace {

id service = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

id mainAppService(id, SEL) { return service; }

mac::Integer status(id, SEL) { return static_cast<mac::Integer>(loginItem().status); }

BOOL answer(AppServiceStatus granted, id* error) {
    if (loginItem().refusal) {
        *error = errorFor("SMAppServiceErrorDomain", *loginItem().refusal);
        return mac::truth(false);
    }
    loginItem().status = granted;
    return mac::truth(true);
}

BOOL registerItem(id, SEL, id* error) {
    return answer(
        loginItem().requiresApproval ? AppServiceStatus::requiresApproval : AppServiceStatus::enabled, error);
}

BOOL unregisterItem(id, SEL, id* error) { return answer(AppServiceStatus::notRegistered, error); }

} // namespace

LoginItem& loginItem() {
    static LoginItem item;
    return item;
}

void installLoginItem() {
    service = Subclass<NoValue>("SMAppService")
                  .method("status", status)
                  .method("registerAndReturnError:", registerItem)
                  .method("unregisterAndReturnError:", unregisterItem)
                  .make();
    addMethod(classOf(classNamed("SMAppService")), "mainAppService", mainAppService);
}

} // namespace kestrune::gnustep
