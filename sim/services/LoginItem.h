// The application among the login items of System Settings.
//
// Source: docs/MAC_FACTS.md, "Login items".
#pragma once

#include "platform/AppService.h"
#include "sim/services/StandingFaults.h"

#include <optional>

namespace kestrune::sim {

class LoginItem {
public:
    // `faults` must outlive this.
    explicit LoginItem(const StandingFaults& faults) : faults_(faults) {}

    AppServiceStatus status() const { return status_; }

    // What the application asks for. An item that is registered already stays as the user has it.
    std::optional<Error> registerItem();
    std::optional<Error> unregisterItem();

    // Where the user's actions arrive: another state of the item, and whether whoever registers anew waits
    // for approval.
    void setStatus(AppServiceStatus status) { status_ = status; }
    void requireApproval(bool require) { requiresApproval_ = require; }

private:
    bool isRegistered() const;
    std::optional<Error> answer(AppServiceStatus granted);

    const StandingFaults& faults_;
    AppServiceStatus status_ = AppServiceStatus::notRegistered;
    bool requiresApproval_ = false;
};

} // namespace kestrune::sim
