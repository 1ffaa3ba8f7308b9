#include "desk/headless/ReplayCommand.h"

#include "desk/live/world/LivePicture.h"
#include "desk/paint/toolkit/Surface.h"
#include "desk/recording/MotionGenerator.h"
#include "desk/recording/RecordingReader.h"
#include "desk/recording/RecordingWriter.h"
#include "desk/replay/Emission.h"
#include "desk/replay/Replay.h"

#include <filesystem>

namespace kestrune::desk {

namespace {

constexpr double PixelsPerPoint = 2;

using MaybeError = std::optional<InputError>;

Report play(const Recording& recording, SimulatedDesk& desk, std::optional<Emission>& emission) {
    return replay(recording, desk, [&](std::uint64_t index, const sim::Delivery& delivery) {
        if (emission) {
            emission->write(index, delivery);
        }
    });
}

MaybeError writeScreenshot(const Options& options, SimulatedDesk& desk, const Report& report) {
    DeskPicture picture = pictureAfterReplay(desk, report);
    picture.dark = options.dark;
    const auto error = writePng(*options.screenshot, picture, UsualWindow, PixelsPerPoint);
    return error ? MaybeError(InputError{error->message}) : std::nullopt;
}

} // namespace

std::variant<std::string, InputError> runReplay(const Options& options) {
    const auto recording = readRecording(std::filesystem::path(*options.replay));
    if (const auto* error = std::get_if<InputError>(&recording)) {
        return *error;
    }
    SimulatedDesk desk(
        {options.displays, options.pinned.value_or(0), options.guardOn.value_or(true), options.margin});
    std::optional<Emission> emission;
    if (options.emit) {
        emission.emplace(*options.emit);
    }
    const Report report = play(std::get<Recording>(recording), desk, emission);
    if (MaybeError error = options.screenshot ? writeScreenshot(options, desk, report) : std::nullopt) {
        return *error;
    }
    if (MaybeError error = emission ? emission->finish() : std::nullopt) {
        return *error;
    }
    return options.reportAsJSON ? reportAsJSON(report) : reportAsText(report);
}

std::optional<InputError> runGenerate(const Options& options) {
    const MotionGeneratorOptions generator{options.seed, options.recordedWidth, options.recordedHeight,
                                           options.rows};
    return writeRecording(std::filesystem::path(*options.generate), generateRows(generator));
}

} // namespace kestrune::desk
