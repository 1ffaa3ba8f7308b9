#include "sim/services/LoginItem.h"

namespace kestrune::sim {

std::optional<Error> LoginItem::registerItem() {
    if (isRegistered()) {
        return answer(status_);
    }
    return answer(requiresApproval_ ? AppServiceStatus::requiresApproval : AppServiceStatus::enabled);
}

std::optional<Error> LoginItem::unregisterItem() { return answer(AppServiceStatus::notRegistered); }

bool LoginItem::isRegistered() const {
    return status_ == AppServiceStatus::enabled || status_ == AppServiceStatus::requiresApproval;
}

std::optional<Error> LoginItem::answer(AppServiceStatus granted) {
    if (faults_.loginItemRefusal) {
        return Error{*faults_.loginItemRefusal};
    }
    status_ = granted;
    return std::nullopt;
}

} // namespace kestrune::sim
