#include "desk/live/OpenDesk.h"

#include "sim/DefaultsFile.h"

#include <utility>

namespace kestrune::desk {

std::variant<std::unique_ptr<LiveDesk>, InputError> openDesk(const Options& options) {
    LiveDeskSetup setup;
    setup.displays = options.displays;
    setup.pinned = options.pinned;
    setup.guardOn = options.guardOn;
    setup.margin = options.margin;
    setup.defaultsFile = options.defaults;
    if (options.defaults) {
        auto loaded = sim::loadDefaultsFile(*options.defaults);
        if (auto* error = std::get_if<std::string>(&loaded)) {
            return InputError{std::move(*error)};
        }
        setup.defaults = std::get<sim::PropertyListDictionary>(std::move(loaded));
    }
    auto desk = std::make_unique<LiveDesk>(setup);
    if (const auto& error = desk->savingError()) {
        return InputError{*error};
    }
    return desk;
}

} // namespace kestrune::desk
