// The application among the login items.
#pragma once

#include "platform/AppService.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrune::gnustep {

struct LoginItem {
    AppServiceStatus status = AppServiceStatus::notRegistered;
    bool requiresApproval = false;      // of whoever registers anew
    std::optional<std::string> refusal; // the description of the system's error

    // What the service was asked for, in order: class and selector. A message that it would not expect ends
    // the process.
    std::vector<std::string> messages;
};

LoginItem& loginItem();

void installLoginItem();

} // namespace kestrune::gnustep
