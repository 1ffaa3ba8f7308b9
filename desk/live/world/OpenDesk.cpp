#include "desk/live/world/OpenDesk.h"

namespace kestrune::desk {

std::variant<std::unique_ptr<LiveDesk>, replay::InputError> openDesk(const Options& options) {
    const auto setup = setupOf(options);
    if (const auto* error = std::get_if<replay::InputError>(&setup)) {
        return *error;
    }
    auto desk = std::make_unique<LiveDesk>(std::get<LiveDeskSetup>(setup));
    if (const auto& error = desk->savingError()) {
        return replay::InputError{*error};
    }
    return desk;
}

} // namespace kestrune::desk
