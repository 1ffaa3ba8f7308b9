#include "desk/headless/LaunchCommand.h"

#include "desk/live/world/LiveDeskSetup.h"
#include "replay/ApplicationHost.h"
#include "sim/session/JournalOutline.h"

#include <cstddef>

namespace kestrune::desk {

namespace {

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
