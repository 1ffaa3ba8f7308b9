#include "desk/live/world/LiveDeskSetup.h"

#include "desk/paint/mac/ScenePainter.h"
#include "replay/SimulatedDesk.h"
#include "replay/StoredChoices.h"
#include "sim/formats/DefaultsFile.h"
#include "sim/formats/ResourceFolder.h"

#include <utility>

namespace kestrune::desk {

std::variant<LiveDeskSetup, replay::InputError> setupOf(const Options& options) {
    LiveDeskSetup setup{options};
    setup.permission = options.isPermissionGranted ? sim::Permission::granted : sim::Permission::notListed;
    auto bundle = sim::loadResourceFolder(KESTRUNE_RESOURCES);
    if (auto* error = std::get_if<std::string>(&bundle)) {
        return replay::InputError{std::move(*error)};
    }
    setup.bundle = std::get<sim::BundleContents>(std::move(bundle));
    // Which address a build has is decided when it is packaged; here it only has to be there.
    setup.bundle.infoDictionary.emplace("SUFeedURL",
                                        sim::PropertyList{std::string("https://example.org/appcast.xml")});
    if (options.defaultsFile) {
        auto loaded = sim::loadDefaultsFile(*options.defaultsFile);
        if (auto* error = std::get_if<std::string>(&loaded)) {
            return replay::InputError{std::move(*error)};
        }
        setup.defaults = std::get<sim::PropertyListDictionary>(std::move(loaded));
    }
    return setup;
}

sim::SessionOptions sessionOptionsOf(const LiveDeskSetup& setup) {
    static const PangoMeasurer pango;
    sim::SessionOptions options;
    options.displays = replay::connectDisplays(setup.displays);
    options.recordJournal = false;
    options.permission = setup.permission;
    options.bundle = setup.bundle;
    options.measurer = setup.measurer != nullptr ? setup.measurer : &pango;
    options.defaults = setup.defaults;
    const auto pinned = setup.pinned ? options.displays.at(*setup.pinned).uuid : std::nullopt;
    replay::store({setup.guardOn, pinned, setup.margin}, options.defaults);
    return options;
}

} // namespace kestrune::desk
