// Login items and the like.
//
// Source: ServiceManagement, SMAppService.h; since macOS 13.
#pragma once

#include "platform/Error.h"

#include <cstdint>
#include <optional>

namespace kestrune {

// SMAppServiceStatus.
enum class AppServiceStatus : std::intptr_t {
    notRegistered = 0,
    enabled = 1,
    requiresApproval =
        2,        // registered, and the user has to allow it in System Settings, or has revoked it there
    notFound = 3, // also of an application that was never registered
};

// SMAppService.
class AppService {
public:
    // SMAppService.mainAppService: the application itself as a login item.
    static AppService mainAppService();

    // status.
    AppServiceStatus status() const;

    // registerAndReturnError: and unregisterAndReturnError:. Absent when it is done. Both return when the
    // system has answered.
    std::optional<Error> registerAndReturnError();
    std::optional<Error> unregisterAndReturnError();

private:
    AppService() = default;
};

} // namespace kestrune
