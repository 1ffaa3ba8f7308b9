#include "desk/live/gallery/SettingsPictures.h"

#include "desk/live/gallery/LongTexts.h"
#include "desk/live/gallery/SettingsTour.h"

#include <iterator>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::desk {

namespace {

constexpr std::size_t States = 10;

void append(std::vector<SettingsShot>& shots, std::vector<SettingsShot> more) {
    shots.insert(shots.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

LiveDeskSetup withoutCopyright(LiveDeskSetup setup) {
    setup.bundle.infoDictionary.erase("NSHumanReadableCopyright");
    return setup;
}

std::vector<SettingsShot> allShots(const LiveDeskSetup& setup) {
    std::vector<SettingsShot> shots = takeSettingsTour(setup);
    append(shots, lookAtSettings(withLongTexts(setup), "long", "Texts 1.4 times as long"));
    append(shots, lookAtSettings(withoutCopyright(setup), "without-copyright", "Without a copyright"));
    return shots;
}

} // namespace

std::variant<WindowAlbum, InputError> settingsAlbum(const LiveDeskSetup& setup) {
    const std::vector<SettingsShot> shots = allShots(setup);
    if (shots.size() != States) {
        return InputError{"--settings: not every state came about"};
    }
    WindowAlbum album{"Kestrune Settings: every state", States / 2, {}};
    for (const bool dark : {false, true}) {
        for (const SettingsShot& shot : shots) {
            album.pages.push_back({shot.name, shot.caption, shot.window, dark});
        }
    }
    return album;
}

std::optional<InputError> writeSettingsPictures(const std::string& folder, const Options& options) {
    if (auto error = makeFolder(folder)) {
        return error;
    }
    auto setup = setupOf(options);
    if (auto* error = std::get_if<InputError>(&setup)) {
        return std::move(*error);
    }
    return writeAlbum(folder, settingsAlbum(std::get<LiveDeskSetup>(setup)));
}

} // namespace kestrune::desk
