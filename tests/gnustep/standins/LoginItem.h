// The application among the login items.
#pragma once

#include "platform/AppService.h"

#include <optional>
#include <string>

namespace kestrune::gnustep {

struct LoginItem {
    AppServiceStatus status = AppServiceStatus::notRegistered;
    bool requiresApproval = false;
    std::optional<std::string> refusal; // the description of the system's error
};

LoginItem& loginItem();

void installLoginItem();

} // namespace kestrune::gnustep
