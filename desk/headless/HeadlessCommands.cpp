#include "desk/headless/HeadlessCommands.h"

#include "desk/live/world/LiveDeskSetup.h"
#include "desk/live/world/LivePicture.h"
#include "desk/paint/sheets/Sheet.h"
#include "replay/ApplicationHost.h"
#include "replay/Emission.h"
#include "replay/Replay.h"
#include "replay/recording/MotionGenerator.h"
#include "replay/recording/RecordingReader.h"
#include "replay/recording/RecordingWriter.h"
#include "sim/session/JournalOutline.h"

#include <cstddef>
#include <filesystem>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr double PixelsPerPoint = 2;

using MaybeError = std::optional<replay::InputError>;

replay::Report deliver(const replay::Recording& recording, replay::SimulatedDesk& desk,
                       std::optional<replay::Emission>& emission) {
    return replay::play(recording, desk, [&](std::uint64_t index, const sim::Delivery& delivery) {
        if (emission) {
            emission->write(index, delivery);
        }
    });
}

MaybeError writeScreenshot(const std::string& path, bool dark, replay::SimulatedDesk& desk,
                           const replay::Report& report) {
    DeskPicture picture = pictureAfterReplay(desk, report);
    picture.dark = dark;
    const auto error = writePicture(path, pictureOfDesk(std::move(picture), UsualWindow), PixelsPerPoint);
    return error ? MaybeError(replay::InputError{error->message}) : std::nullopt;
}

std::string foldedText(const std::vector<std::string>& journal) {
    std::string text;
    std::size_t details = 0;
    const auto flush = [&] {
        if (details > 0) {
            text += "    ... " + std::to_string(details) +
                    (details == 1 ? " call that builds menu items or reads the displays\n"
                                  : " calls that build menu items or read the displays\n");
            details = 0;
        }
    };
    for (const std::string& line : journal) {
        if (sim::isDetail(line)) {
            ++details;
            continue;
        }
        flush();
        text += line + "\n";
    }
    flush();
    return text;
}

} // namespace

std::variant<std::string, replay::InputError> runReplay(const PlayRecording& play, const Options& options) {
    const auto recording = replay::readRecording(std::filesystem::path(play.recording));
    if (const auto* error = std::get_if<replay::InputError>(&recording)) {
        return *error;
    }
    replay::SimulatedDesk desk(
        {options.displays, options.pinned.value_or(0), options.guardOn.value_or(true), options.margin});
    std::optional<replay::Emission> emission;
    if (play.emit) {
        emission.emplace(*play.emit);
    }
    const replay::Report report = deliver(std::get<replay::Recording>(recording), desk, emission);
    if (const auto& path = play.outcome.screenshot) {
        if (MaybeError error = writeScreenshot(*path, options.dark, desk, report)) {
            return *error;
        }
    }
    if (MaybeError error = emission ? emission->finish() : std::nullopt) {
        return *error;
    }
    return play.outcome.asJSON ? replay::reportAsJSON(report) : replay::reportAsText(report);
}

std::optional<replay::InputError> runGenerate(const MakeRecording& make) {
    return replay::writeRecording(std::filesystem::path(make.path), replay::generateRows(make.motion));
}

std::variant<std::string, replay::InputError> runLaunch(const Options& options) {
    const auto setup = setupOf(options);
    if (const auto* error = std::get_if<replay::InputError>(&setup)) {
        return *error;
    }
    sim::SessionOptions sessionOptions = sessionOptionsOf(std::get<LiveDeskSetup>(setup));
    sessionOptions.recordJournal = true;
    sim::Session session(sessionOptions);
    const replay::ApplicationHost host(session);
    return foldedText(session.journal().take());
}

} // namespace kestrune::desk
