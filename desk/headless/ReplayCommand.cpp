#include "desk/headless/ReplayCommand.h"

#include "desk/live/world/LivePicture.h"
#include "desk/paint/sheets/Sheet.h"
#include "desk/recording/MotionGenerator.h"
#include "desk/recording/RecordingReader.h"
#include "desk/recording/RecordingWriter.h"
#include "desk/replay/Emission.h"
#include "desk/replay/Replay.h"

#include <filesystem>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr double PixelsPerPoint = 2;

using MaybeError = std::optional<InputError>;

Report deliver(const Recording& recording, SimulatedDesk& desk, std::optional<Emission>& emission) {
    return replay(recording, desk, [&](std::uint64_t index, const sim::Delivery& delivery) {
        if (emission) {
            emission->write(index, delivery);
        }
    });
}

MaybeError writeScreenshot(const std::string& path, bool dark, SimulatedDesk& desk, const Report& report) {
    DeskPicture picture = pictureAfterReplay(desk, report);
    picture.dark = dark;
    const auto error = writePicture(path, pictureOfDesk(std::move(picture), UsualWindow), PixelsPerPoint);
    return error ? MaybeError(InputError{error->message}) : std::nullopt;
}

} // namespace

std::variant<std::string, InputError> runReplay(const PlayRecording& play, const Options& options) {
    const auto recording = readRecording(std::filesystem::path(play.recording));
    if (const auto* error = std::get_if<InputError>(&recording)) {
        return *error;
    }
    SimulatedDesk desk(
        {options.displays, options.pinned.value_or(0), options.guardOn.value_or(true), options.margin});
    std::optional<Emission> emission;
    if (play.emit) {
        emission.emplace(*play.emit);
    }
    const Report report = deliver(std::get<Recording>(recording), desk, emission);
    if (const auto& path = play.outcome.screenshot) {
        if (MaybeError error = writeScreenshot(*path, options.dark, desk, report)) {
            return *error;
        }
    }
    if (MaybeError error = emission ? emission->finish() : std::nullopt) {
        return *error;
    }
    return play.outcome.asJSON ? reportAsJSON(report) : reportAsText(report);
}

std::optional<InputError> runGenerate(const MakeRecording& make) {
    const MotionGeneratorOptions generator{make.seed, make.width, make.height, make.rows};
    return writeRecording(std::filesystem::path(make.path), generateRows(generator));
}

} // namespace kestrune::desk
