// The application among the login items of System Settings.
//
// Source: docs/MAC_FACTS.md, "Login items".
#pragma once

#include "platform/AppService.h"

#include <optional>
#include <string>

namespace kestrune::sim {

class LoginItem {
public:
    AppServiceStatus status() const { return status_; }

    // The user allows the item, or revokes it; or nothing is known of it.
    void setStatus(AppServiceStatus status) { status_ = status; }

    // Whoever registers anew waits for the user's approval.
    void requireApproval(bool require) { requiresApproval_ = require; }

    // Fault: the system refuses to register and to unregister, with that description; absent: it does not.
    void refuse(std::optional<std::string> description) { refusal_ = std::move(description); }

    // What the application asks for. An item that is registered already stays as the user has it.
    std::optional<Error> registerItem();
    std::optional<Error> unregisterItem();

private:
    bool isRegistered() const;
    std::optional<Error> answer(AppServiceStatus granted);

    AppServiceStatus status_ = AppServiceStatus::notRegistered;
    bool requiresApproval_ = false;
    std::optional<std::string> refusal_;
};

} // namespace kestrune::sim
