#include "desk/live/world/OpenDesk.h"

namespace kestrune::desk {

std::variant<std::unique_ptr<LiveDesk>, InputError> openDesk(const Options& options) {
    const auto setup = setupOf(options);
    if (const auto* error = std::get_if<InputError>(&setup)) {
        return *error;
    }
    auto desk = std::make_unique<LiveDesk>(std::get<LiveDeskSetup>(setup));
    if (const auto& error = desk->savingError()) {
        return InputError{*error};
    }
    return desk;
}

} // namespace kestrune::desk
