#include "Kestrune/LaunchAtLogin.h"

#include "Kestrune/ApplicationLog.h"
#include "platform/AppService.h"

#include <optional>

namespace kestrune {

namespace {

constexpr LogFormat ToggleFailed = LogFormat::of<"LoginItem toggle failed: %{public}s">();

bool isEnabled(const AppService& service) { return service.status() == AppServiceStatus::enabled; }

} // namespace

bool isLaunchedAtLogin() { return isEnabled(AppService::mainAppService()); }

bool setLaunchAtLogin(bool isWanted) {
    AppService service = AppService::mainAppService();
    if (isEnabled(service) == isWanted) {
        return true;
    }
    const std::optional<Error> error =
        isWanted ? service.registerAndReturnError() : service.unregisterAndReturnError();
    if (error) {
        applicationLog("loginItem").error(ToggleFailed, error->localizedDescription);
    }
    return !error;
}

} // namespace kestrune
