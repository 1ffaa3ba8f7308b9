#include "desk/live/gallery/Tour.h"

#include "desk/live/gallery/TourScenes.h"
#include "desk/live/gallery/WindowAlbum.h"
#include "desk/live/world/LivePicture.h"
#include "desk/paint/desk/StatusBarPainter.h"
#include "desk/paint/sheets/PictureSheet.h"
#include "desk/paint/toolkit/Surface.h"

#include <filesystem>
#include <fstream>

namespace kestrune::desk {

namespace {

constexpr double PictureScale = 2;
constexpr double SmallPictureScale = 0.4;
constexpr std::size_t SheetColumns = 5;

// Long enough for the marks of a scene to fade before the next.
constexpr sim::Duration Pause = std::chrono::seconds(20);

// A user's first launch: nothing is granted and nothing is stored.
std::variant<LiveDeskSetup, InputError> tourSetup(Options options) {
    options.pinned.reset();
    options.guardOn.reset();
    options.defaults.reset();
    options.isPermissionGranted = false;
    return setupOf(options);
}

std::string figures(const Report& before, const Report& after) {
    return "Events " + groupedNumber(after.events - before.events) + ", held " +
           groupedNumber(after.changed - before.changed) + ", Dock moves " +
           groupedNumber(after.dockMoves - before.dockMoves) + ", against the rule " +
           groupedNumber(after.violations - before.violations) + ".";
}

std::optional<InputError> writeReport(const std::filesystem::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) {
        return inputError(path.string(), "expected a file that can be written");
    }
    return std::nullopt;
}

// Two digits, so that the files sort as the story goes.
std::string fileName(std::size_t number, const std::string& name) {
    return (number < 10 ? "0" : "") + std::to_string(number) + "-" + name + ".png";
}

} // namespace

std::optional<InputError> runTour(const std::string& folder, const Options& options) {
    if (auto error = makeFolder(folder)) {
        return error;
    }
    const auto setup = tourSetup(options);
    if (const auto* error = std::get_if<InputError>(&setup)) {
        return *error;
    }
    LiveDesk desk(std::get<LiveDeskSetup>(setup));
    TourScenes scenes(desk);
    if (!scenes.canBePlayed()) {
        return InputError{
            "--tour: expected another display than the pinned one, both with a free bottom edge"};
    }
    PictureSheet sheet("The whole life of Kestrune, scene by scene", SheetColumns, UsualWindow,
                       SmallPictureScale);
    std::string report = "The tour of the desk, scene by scene\n";
    std::size_t number = 0;
    for (const TourScenes::Scene& scene : TourScenes::all()) {
        const Report before = desk.report();
        desk.advance(Pause);
        const auto outcome = scenes.perform(scene);
        if (const auto* error = std::get_if<InputError>(&outcome)) {
            return *error;
        }
        const auto& story = std::get<std::string>(outcome);
        DeskPicture picture = pictureOf(desk);
        picture.story = story;
        picture.dark = options.dark;
        picture.keys.clear();
        picture.shown = TourScenes::framed(scene, picture);
        const std::string name = fileName(++number, scene.name);
        const std::string path = (std::filesystem::path(folder) / name).string();
        if (const auto error = writePng(path, picture, UsualWindow, PictureScale)) {
            return InputError{error->message};
        }
        if (const auto error = sheet.add(name, picture)) {
            return InputError{error->message};
        }
        report += "\n" + name + "\n    " + story + "\n    " + desk.news().text + ".\n    " +
                  figures(before, desk.report()) + "\n";
    }
    if (const auto error = sheet.write((std::filesystem::path(folder) / "all.png").string())) {
        return InputError{error->message};
    }
    report += "\nAll scenes together\n" + reportAsText(desk.report());
    return writeReport(std::filesystem::path(folder) / "report.txt", report);
}

} // namespace kestrune::desk
