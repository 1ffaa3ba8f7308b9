// kestrune-simulate: random sessions with the real guard, checked against the rules after every step.
// Exit status: 0 without a finding, 1 with findings, 2 for wrong arguments.
#include "tests/simulate/RandomUser.h"
#include "tests/simulate/Settings.h"

#include <cstdio>
#include <deque>
#include <string>

namespace {

using namespace kestrune::simulate;

constexpr std::size_t ShownActions = 12;

struct Outcome {
    std::uint64_t actions = 0;
    Counts counts;
    std::optional<std::string> violation;
    std::deque<std::string> lastActions;
};

void show(RandomUser& user, std::uint64_t number, const std::string& action) {
    std::printf("%llu: %s\n", static_cast<unsigned long long>(number), action.c_str());
    for (const std::string& delivery : user.session().takeTrace()) {
        std::printf("    %s\n", delivery.c_str());
    }
}

Outcome runSession(std::uint64_t seed, const Settings& settings) {
    RandomUser user(seed);
    GuardedSession& session = user.session();
    session.traceDeliveries(settings.trace);
    Outcome outcome;
    while (outcome.actions < settings.actions && !session.violation()) {
        std::string action = user.act();
        ++outcome.actions;
        if (settings.trace) {
            show(user, outcome.actions, action);
        }
        outcome.lastActions.push_back(std::move(action));
        if (outcome.lastActions.size() > ShownActions) {
            outcome.lastActions.pop_front();
        }
    }
    session.finish();
    outcome.counts = session.counts();
    outcome.violation = session.violation();
    return outcome;
}

void printFinding(std::uint64_t seed, const Settings& settings, const Outcome& outcome) {
    const auto number = static_cast<unsigned long long>(seed);
    std::printf("Finding at seed %llu, action %llu: %s\n", number,
                static_cast<unsigned long long>(outcome.actions), outcome.violation->c_str());
    std::uint64_t shown = outcome.actions - outcome.lastActions.size();
    for (const std::string& action : outcome.lastActions) {
        std::printf("  %llu: %s\n", static_cast<unsigned long long>(++shown), action.c_str());
    }
    std::printf("  Replay it with --seed %llu --seeds 1 --actions %llu --trace\n", number,
                static_cast<unsigned long long>(settings.actions));
}

void printCount(const char* name, std::uint64_t count) {
    std::printf("%llu %s, ", static_cast<unsigned long long>(count), name);
}

void printCounts(std::uint64_t sessions, std::uint64_t actions, const Counts& counts) {
    printCount("sessions", sessions);
    printCount("actions", actions);
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
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::variant<Settings, std::string> read = readSettings(argumentCount, arguments);
    if (const auto* error = std::get_if<std::string>(&read)) {
        std::fprintf(stderr, "kestrune-simulate: %s\n", error->c_str());
        return 2;
    }
    const Settings& settings = std::get<Settings>(read);
    std::printf("kestrune-simulate --seed %llu --seeds %llu --actions %llu --findings %llu\n",
                static_cast<unsigned long long>(settings.seed),
                static_cast<unsigned long long>(settings.seeds),
                static_cast<unsigned long long>(settings.actions),
                static_cast<unsigned long long>(settings.findings));
    std::fflush(stdout);

    std::uint64_t sessions = 0;
    std::uint64_t actions = 0;
    std::uint64_t findings = 0;
    Counts counts;
    while (sessions < settings.seeds && findings < settings.findings) {
        const std::uint64_t seed = settings.seed + sessions;
        const Outcome outcome = runSession(seed, settings);
        ++sessions;
        actions += outcome.actions;
        counts += outcome.counts;
        if (outcome.violation) {
            ++findings;
            printFinding(seed, settings, outcome);
        }
    }
    printCounts(sessions, actions, counts);
    std::printf("%llu findings\n", static_cast<unsigned long long>(findings));
    return findings == 0 ? 0 : 1;
}
