// The application among the login items, as the user and the system have it.
#pragma once

#include "platform/AppService.h"

#include <optional>
#include <string>

namespace kestrune::simulate {

struct LoginItemModel {
    AppServiceStatus status = AppServiceStatus::notRegistered;
    bool requiresApproval = false; // of whoever registers anew
    std::optional<std::string> refusal = std::nullopt;

    bool isEnabled() const { return status == AppServiceStatus::enabled; }
};

} // namespace kestrune::simulate
