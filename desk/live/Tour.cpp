#include "desk/live/Tour.h"

#include "desk/live/LivePicture.h"
#include "desk/live/TourScenes.h"
#include "desk/paint/StatusBarPainter.h"
#include "desk/paint/Surface.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace kestrune::desk {

namespace {

constexpr double PictureScale = 2;

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
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) {
        return inputError(folder, "expected a folder that can be written: " + failure.message());
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
    std::string report = "The tour of the desk, scene by scene\n";
    std::size_t number = 0;
    for (const TourScenes::Scene& scene : TourScenes::all()) {
        const Report before = desk.report();
        desk.advance(Pause);
        const std::string story = (scenes.*scene.play)();
        DeskPicture picture = pictureOf(desk);
        picture.story = story;
        picture.dark = options.dark;
        picture.keys.clear();
        const std::string name = fileName(++number, scene.name);
        const std::string path = (std::filesystem::path(folder) / name).string();
        if (const auto error = writePng(path, picture, UsualWindow, PictureScale)) {
            return InputError{error->message};
        }
        report += "\n" + name + "\n    " + story + "\n    " + desk.news().text + ".\n    " +
                  figures(before, desk.report()) + "\n";
    }
    report += "\nAll scenes together\n" + reportAsText(desk.report());
    return writeReport(std::filesystem::path(folder) / "report.txt", report);
}

} // namespace kestrune::desk
