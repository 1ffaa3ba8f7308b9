// SMAppService, which GNUstep lacks.
//
// This is what we believe the Mac does, and no proof of it: whoever registers is enabled or waits for the
// user's approval, which nobody else can give; whoever unregisters is not registered.
#include "tests/gnustep/standins/system/LoginItem.h"

#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Expectations.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

namespace kestrune::gnustep {

namespace {

constexpr const char* ServiceManagement = "ServiceManagement";

id service = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void receive(id receiver, const char* selector) {
    expect(ServiceManagement, receiver == service, "the receiver is not the main application's service");
    expectMainThread(ServiceManagement);
    loginItem().messages.push_back(std::string("-[SMAppService ") + selector + "]");
}

id mainAppService(id, SEL) { return service; }

mac::Integer status(id receiver, SEL) {
    receive(receiver, "status");
    return static_cast<mac::Integer>(loginItem().status);
}

BOOL answer(AppServiceStatus granted, id* error) {
    expect(ServiceManagement, error != nullptr, "there is no place for the error");
    if (loginItem().refusal) {
        *error = errorFor("SMAppServiceErrorDomain", *loginItem().refusal);
        return mac::truth(false);
    }
    loginItem().status = granted;
    return mac::truth(true);
}

// Of an item that may be there already, which stays as the user has it.
AppServiceStatus afterRegistering(const LoginItem& item) {
    if (item.status == AppServiceStatus::enabled || item.status == AppServiceStatus::requiresApproval) {
        return item.status;
    }
    return item.requiresApproval ? AppServiceStatus::requiresApproval : AppServiceStatus::enabled;
}

BOOL registerItem(id receiver, SEL, id* error) {
    receive(receiver, "registerAndReturnError:");
    return answer(afterRegistering(loginItem()), error);
}

BOOL unregisterItem(id receiver, SEL, id* error) {
    receive(receiver, "unregisterAndReturnError:");
    return answer(AppServiceStatus::notRegistered, error);
}

} // namespace

LoginItem& loginItem() {
    static LoginItem item;
    return item;
}

void installLoginItem() {
    if (isLeftOut("SMAppService")) {
        return;
    }
    service = Subclass<NoValue>("SMAppService")
                  .method("status", status)
                  .method("registerAndReturnError:", registerItem)
                  .method("unregisterAndReturnError:", unregisterItem)
                  .make();
    addMethod(classOf(classNamed("SMAppService")), "mainAppService", mainAppService);
}

} // namespace kestrune::gnustep
