#include "sim/LoginItem.h"

namespace kestrune::sim {

std::optional<Error> LoginItem::registerItem() {
    return answer(requiresApproval_ ? AppServiceStatus::requiresApproval : AppServiceStatus::enabled);
}

std::optional<Error> LoginItem::unregisterItem() { return answer(AppServiceStatus::notRegistered); }

std::optional<Error> LoginItem::answer(AppServiceStatus granted) {
    if (refusal_) {
        return Error{*refusal_};
    }
    status_ = granted;
    return std::nullopt;
}

} // namespace kestrune::sim
