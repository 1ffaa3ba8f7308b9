// kestrune-simulate: random sessions with the real guard, checked against the rules after every step.
// Exit status: 0 without a finding, 1 with findings, 2 for wrong arguments.
#include "tests/random/common/SessionRun.h"
#include "tests/random/common/Settings.h"
#include "tests/random/guard/RandomUser.h"

#include <cstdio>
#include <string>
#include <variant>

namespace {

using namespace kestrune::simulate;

using Run = SessionRun<RandomUser, Counts>;

void printCounts(const Run& run) {
    const Counts& counts = run.counts();
    printCount("sessions", run.sessions());
    printCount("actions", run.actions());
    printCount("events", counts.events);
    printCount("asked of the guard", counts.handled);
    printCount("moved by it", counts.moved);
    printCount("of them off a last point", counts.pushedOff);
    printCount("refreshes", counts.refreshes);
    printCount("write-backs", counts.writeBacks);
    printCount("starts", counts.starts);
    printCount("refused starts", counts.refusedStarts);
    printCount("taps switched off", counts.switchedOff);
    printCount("allowed Dock moves", counts.dockMoves);
    std::printf("%llu findings\n", static_cast<unsigned long long>(run.findings()));
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::variant<Settings, std::string> read = readSettings(argumentCount, arguments);
    if (const auto* error = std::get_if<std::string>(&read)) {
        std::fprintf(stderr, "kestrune-simulate: %s\n", error->c_str());
        return 2;
    }
    Run run("kestrune-simulate", std::get<Settings>(read));
    run.run();
    printCounts(run);
    return run.findings() == 0 ? 0 : 1;
}
