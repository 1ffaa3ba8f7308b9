#include "desk/live/gallery/Gallery.h"

#include "desk/live/world/LivePicture.h"
#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/sheets/Sheet.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

constexpr double SceneScale = 2;
constexpr double SheetScale = 1;

using MaybeError = std::optional<replay::InputError>;

class Gallery {
public:
    Gallery(const std::string& folder, const std::vector<std::string>& wanted, LiveDeskSetup setup, bool dark)
        : folder_(folder), wanted_(wanted), setup_(std::move(setup)), isDark_(dark) {}

    MaybeError draw(const Chapter& chapter) const {
        Sheet sheet{chapter.title, chapter.columns, chapter.scale, isDark_, {}};
        for (const Story& story : chapter.stories) {
            if (auto error = play(chapter, story, sheet)) {
                return error;
            }
        }
        return isWanted(chapter.name) ? write(chapter.name, pictureOfSheet(sheet), SheetScale) : std::nullopt;
    }

private:
    bool isWanted(const std::string& name) const {
        return wanted_.empty() || std::find(wanted_.begin(), wanted_.end(), name) != wanted_.end();
    }

    // Up to the last scene that is wanted.
    MaybeError play(const Chapter& chapter, const Story& story, Sheet& sheet) const {
        const auto isShown = [&](const Scene& scene) {
            return isWanted(chapter.name) || isWanted(chapter.nameOf(scene));
        };
        const auto end = std::find_if(story.scenes.rbegin(), story.scenes.rend(), isShown).base();
        if (end == story.scenes.begin()) {
            return std::nullopt;
        }
        LiveDeskSetup setup = setup_;
        story.prepare(setup);
        Stage stage(setup);
        for (auto scene = story.scenes.begin(); scene != end; ++scene) {
            const std::string name = chapter.nameOf(*scene);
            auto performed = stage.perform(*scene);
            if (const auto* missing = std::get_if<std::string>(&performed)) {
                return replay::InputError{"the scene " + name + " expected " + *missing};
            }
            auto& shown = std::get<DeskPicture>(performed);
            std::string caption = shown.story;
            if (isWanted(name)) {
                if (auto error = write(name, pictureOfScene(*scene, shown, pictureOfDesk), SceneScale)) {
                    return error;
                }
            }
            // The words are in the caption.
            sheet.cells.push_back(
                {std::move(caption), pictureOfScene(*scene, std::move(shown), pictureOfStage)});
        }
        return std::nullopt;
    }

    Picture pictureOfScene(const Scene& scene, DeskPicture shown,
                           Picture (*ofDesk)(DeskPicture desk, Size window)) const {
        if (scene.frame == Frame::window) {
            return pictureOfWindow(shown.windows.front(), isDark_);
        }
        shown.dark = isDark_;
        return ofDesk(std::move(shown), UsualWindow);
    }

    MaybeError write(const std::string& name, const Picture& picture, double scale) const {
        const std::string file = name + (isDark_ ? "-dark.png" : "-light.png");
        const std::filesystem::path path = std::filesystem::path(folder_) / file;
        std::error_code failure;
        std::filesystem::create_directories(path.parent_path(), failure);
        if (failure) {
            return replay::inputError(path.parent_path().string(),
                                      "expected a folder that can be written: " + failure.message());
        }
        const auto error = writePicture(path.string(), picture, scale);
        return error ? MaybeError(replay::InputError{error->message}) : std::nullopt;
    }

    const std::string& folder_;
    const std::vector<std::string>& wanted_;
    LiveDeskSetup setup_;
    bool isDark_;
};

MaybeError checkNames(const std::vector<std::string>& wanted) {
    std::vector<std::string> names;
    for (const Chapter& chapter : chapters()) {
        names.push_back(chapter.name);
        for (const Story& story : chapter.stories) {
            std::transform(story.scenes.begin(), story.scenes.end(), std::back_inserter(names),
                           [&chapter](const Scene& scene) { return chapter.nameOf(scene); });
        }
    }
    for (const std::string& name : wanted) {
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            std::string list = names.front();
            std::for_each(names.begin() + 1, names.end(), [&](const auto& other) { list += ", " + other; });
            return replay::InputError{"--gallery: no scene is called " + replay::inQuotes(name) +
                                      "; there are " + list};
        }
    }
    return std::nullopt;
}

} // namespace

const std::vector<Chapter>& chapters() {
    static const std::vector<Chapter> all = {tourChapter(), wizardChapter(), settingsChapter()};
    return all;
}

std::optional<replay::InputError>
drawGallery(const std::string& folder, const std::vector<std::string>& scenes, const Options& options) {
    if (auto error = checkNames(scenes)) {
        return error;
    }
    Options bare;
    bare.displays = options.displays;
    auto setup = setupOf(bare);
    if (auto* error = std::get_if<replay::InputError>(&setup)) {
        return std::move(*error);
    }
    const Gallery gallery(folder, scenes, std::get<LiveDeskSetup>(std::move(setup)), options.dark);
    for (const Chapter& chapter : chapters()) {
        if (auto error = gallery.draw(chapter)) {
            return error;
        }
    }
    return std::nullopt;
}

} // namespace kestrune::desk
