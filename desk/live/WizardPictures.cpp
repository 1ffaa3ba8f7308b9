#include "desk/live/WizardPictures.h"

#include "desk/live/WizardTour.h"
#include "desk/paint/ContactSheet.h"
#include "desk/recording/Utf8.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

constexpr double WizardPictureScale = 2;
constexpr double SheetScale = 1;

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

// How much longer than an English text its translation is assumed to be. There is no translation yet; German
// and Finnish interface texts run about a third to a half longer than English ones.
constexpr double AssumedLengthening = 1.4;

// A longer text of the same kind: its words go on from the first, without the marks of bold text, and break
// off where it is long enough.
std::string lengthened(const std::string& text) {
    const auto wanted = static_cast<std::size_t>(AssumedLengthening * static_cast<double>(text.size()));
    std::string words = text;
    words.erase(std::remove(words.begin(), words.end(), '*'), words.end());
    std::string result = text;
    while (result.size() < wanted) {
        result += " " + words;
    }
    result.resize(wanted);
    // Half a character is not left over.
    while (firstInvalidUtf8(result)) {
        result.pop_back();
    }
    return result;
}

void lengthenTexts(LiveDeskSetup& setup) {
    for (auto& [key, text] : setup.bundle.localizedStrings) {
        text = lengthened(text);
    }
}

std::string captionOf(const NamedState& state, std::string_view rest, bool dark) {
    return std::string(state.caption) + ", " + std::string(rest) + ", " + (dark ? "dark" : "light");
}

const WizardShot* find(const std::vector<WizardShot>& shots, std::string_view state, WizardLook look) {
    const auto found = std::find_if(shots.begin(), shots.end(), [&](const WizardShot& shot) {
        return shot.state == state && shot.look == look;
    });
    return found != shots.end() ? &*found : nullptr;
}

class PictureWriter {
public:
    explicit PictureWriter(std::filesystem::path folder) : folder_(std::move(folder)) {
        sheet_.title = "Welcome to Kestrune: every state of the first-run wizard";
        sheet_.columns = 2 * States.size(); // light, then dark
    }

    // Half a row of the sheet, and a file for each picture in it.
    std::optional<InputError> addStates(const std::vector<WizardShot>& shots, const NamedLook& look,
                                        std::string_view suffix, bool dark) {
        for (const NamedState& state : States) {
            const WizardShot* const shot = find(shots, state.name, look.look);
            if (shot == nullptr) {
                return InputError{"--wizard: the state " + inQuotes(state.name) + " did not come about"};
            }
            const std::string name =
                std::string(state.name) + std::string(suffix) + (dark ? "-dark.png" : "-light.png");
            const std::string path = (folder_ / name).string();
            if (const auto error = writeWindowPicture(path, shot->window, dark, WizardPictureScale)) {
                return InputError{error->message};
            }
            sheet_.cells.push_back({captionOf(state, suffix == LongSuffix ? LongCaption : look.caption, dark),
                                    shot->window, dark});
        }
        return std::nullopt;
    }

    std::optional<InputError> writeSheet() const {
        const auto error = writeContactSheet((folder_ / "all.png").string(), sheet_, SheetScale);
        return error ? std::optional(InputError{error->message}) : std::nullopt;
    }

    static constexpr std::string_view LongSuffix = "-long";

private:
    static constexpr std::string_view LongCaption = "texts 1.4 times as long";

    std::filesystem::path folder_;
    ContactSheet sheet_;
};

std::optional<InputError> writeAll(const std::string& folder, LiveDeskSetup setup) {
    const std::vector<WizardShot> shots = takeWizardTour(setup);
    lengthenTexts(setup);
    const std::vector<WizardShot> longShots = takeWizardTour(setup);
    PictureWriter writer(folder);
    for (const NamedLook& look : Looks) {
        for (const bool dark : {false, true}) {
            if (auto error = writer.addStates(shots, look, look.name, dark)) {
                return error;
            }
        }
    }
    for (const bool dark : {false, true}) {
        if (auto error = writer.addStates(longShots, Looks.front(), PictureWriter::LongSuffix, dark)) {
            return error;
        }
    }
    return writer.writeSheet();
}

} // namespace

std::optional<InputError> writeWizardPictures(const std::string& folder, const Options& options) {
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) {
        return inputError(folder, "expected a folder that can be written: " + failure.message());
    }
    auto setup = setupOf(options);
    if (auto* error = std::get_if<InputError>(&setup)) {
        return std::move(*error);
    }
    return writeAll(folder, std::get<LiveDeskSetup>(std::move(setup)));
}

} // namespace kestrune::desk
