// kestrune-simulate-shell: random sessions with the whole application, checked against the rules after every
// step. Exit status: 0 without a finding, 1 with findings, 2 for wrong arguments.
#include "tests/random/application/ShellUser.h"
#include "tests/random/common/SessionRun.h"
#include "tests/random/common/Settings.h"

#include <cstdio>
#include <string>
#include <variant>

namespace {

using namespace kestrune::simulate;

} // namespace

int main(int argumentCount, char** arguments) {
    const std::variant<Settings, std::string> read = readSettings(argumentCount, arguments, {.actions = 200});
    if (const auto* error = std::get_if<std::string>(&read)) {
        std::fprintf(stderr, "kestrune-simulate-shell: %s\n", error->c_str());
        return 2;
    }
    SessionRun<ShellUser, ShellCounts> run("kestrune-simulate-shell", std::get<Settings>(read));
    run.run();
    printCount("sessions", run.sessions());
    printCount("actions", run.actions());
    run.counts().print();
    std::printf("%llu findings\n", static_cast<unsigned long long>(run.findings()));
    return run.findings() == 0 ? 0 : 1;
}
