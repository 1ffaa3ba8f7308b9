#include "desk/live/gallery/WizardPictures.h"

#include "desk/live/gallery/LongTexts.h"
#include "desk/live/gallery/WizardTour.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

struct NamedState {
    std::string_view name;
    std::string_view caption;
};
constexpr std::array States{
    NamedState{"intro", "Introduction"},
    NamedState{"permission", "Before the request"},
    NamedState{"waiting", "After the request"},
    NamedState{"granted", "Granted"},
};

struct NamedLook {
    WizardLook look;
    std::string_view name; // of the file
    std::string_view caption;
};
constexpr std::array Looks{
    NamedLook{WizardLook::inFront, "", "in front"},
    NamedLook{WizardLook::pressed, "-pressed", "button held down"},
    NamedLook{WizardLook::focused, "-focused", "button focused"},
    NamedLook{WizardLook::inBackground, "-background", "in the background"},
};
constexpr std::array LongLooks{
    NamedLook{WizardLook::inFront, "-long", "texts 1.4 times as long"},
};

const WizardShot* find(const std::vector<WizardShot>& shots, std::string_view state, WizardLook look) {
    const auto found = std::find_if(shots.begin(), shots.end(), [&](const WizardShot& shot) {
        return shot.state == state && shot.look == look;
    });
    return found != shots.end() ? &*found : nullptr;
}

// Half a row of the sheet.
std::optional<InputError> addStates(WindowAlbum& album, const std::vector<WizardShot>& shots,
                                    const NamedLook& look, bool dark) {
    for (const NamedState& state : States) {
        const WizardShot* const shot = find(shots, state.name, look.look);
        if (shot == nullptr) {
            return InputError{"--wizard: the state " + inQuotes(state.name) + " did not come about"};
        }
        album.pages.push_back({std::string(state.name) + std::string(look.name),
                               std::string(state.caption) + ", " + std::string(look.caption), shot->window,
                               dark});
    }
    return std::nullopt;
}

std::optional<InputError> addLooks(WindowAlbum& album, const std::vector<WizardShot>& shots,
                                   std::span<const NamedLook> looks) {
    for (const NamedLook& look : looks) {
        for (const bool dark : {false, true}) {
            if (auto error = addStates(album, shots, look, dark)) {
                return error;
            }
        }
    }
    return std::nullopt;
}

} // namespace

std::variant<WindowAlbum, InputError> wizardAlbum(const LiveDeskSetup& setup) {
    WindowAlbum album{"Welcome to Kestrune: every state of the first-run wizard",
                      2 * States.size(), // light, then dark
                      {}};
    auto error = addLooks(album, takeWizardTour(setup), Looks);
    error = error ? error : addLooks(album, takeWizardTour(withLongTexts(setup)), LongLooks);
    if (error) {
        return *std::move(error);
    }
    return album;
}

std::optional<InputError> writeWizardPictures(const std::string& folder, const Options& options) {
    if (auto error = makeFolder(folder)) {
        return error;
    }
    auto setup = setupOf(options);
    if (auto* error = std::get_if<InputError>(&setup)) {
        return std::move(*error);
    }
    return writeAlbum(folder, wizardAlbum(std::get<LiveDeskSetup>(setup)));
}

} // namespace kestrune::desk
