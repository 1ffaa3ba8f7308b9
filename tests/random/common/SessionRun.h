// Runs one simulated session after the other and prints what they found.
#pragma once

#include "tests/random/common/Settings.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <deque>
#include <optional>
#include <string>
#include <utility>

namespace kestrune::simulate {

inline void printCount(const char* name, std::uint64_t count) {
    std::printf("%llu %s, ", static_cast<unsigned long long>(count), name);
}

// `User` is made from a seed, has a `session`, acts once at each call of `act`, and can be traced.
template <typename User, typename Counts>
class SessionRun {
public:
    // `program` is what is printed as the program's name.
    SessionRun(const char* program, const Settings& settings) : program_(program), settings_(settings) {}

    // Until all sessions are over or enough was found.
    void run() {
        std::printf("%s --seed %llu --seeds %llu --actions %llu --findings %llu\n", program_,
                    printable(settings_.seed), printable(settings_.seeds), printable(settings_.actions),
                    printable(settings_.findings));
        std::fflush(stdout);
        while (sessions_ < settings_.seeds && findings_ < settings_.findings) {
            runSession(settings_.seed + sessions_);
            ++sessions_;
        }
    }

    std::uint64_t sessions() const { return sessions_; }
    std::uint64_t actions() const { return actions_; }
    std::uint64_t findings() const { return findings_; }

    // Over all sessions.
    const Counts& counts() const { return counts_; }

private:
    static constexpr std::size_t ShownActions = 12;

    struct Trail {
        std::uint64_t actions = 0;
        std::deque<std::string> lastActions;
    };

    static unsigned long long printable(std::uint64_t number) { return number; }

    void runSession(std::uint64_t seed) {
        User user(seed);
        auto& session = user.session();
        user.trace(settings_.trace);
        Trail trail;
        while (trail.actions < settings_.actions && !session.violation()) {
            act(user, trail);
        }
        session.finish();
        actions_ += trail.actions;
        counts_ += session.counts();
        if (session.violation()) {
            ++findings_;
            print(*session.violation(), seed, trail);
        }
    }

    void act(User& user, Trail& trail) {
        std::string action = user.act();
        ++trail.actions;
        if (settings_.trace) {
            std::printf("%llu: %s\n", printable(trail.actions), action.c_str());
            for (const std::string& step : user.takeTrace()) {
                std::printf("    %s\n", step.c_str());
            }
        }
        trail.lastActions.push_back(std::move(action));
        if (trail.lastActions.size() > ShownActions) {
            trail.lastActions.pop_front();
        }
    }

    void print(const std::string& violation, std::uint64_t seed, const Trail& trail) const {
        std::printf("Finding at seed %llu, action %llu: %s\n", printable(seed), printable(trail.actions),
                    violation.c_str());
        std::uint64_t shown = trail.actions - trail.lastActions.size();
        for (const std::string& action : trail.lastActions) {
            std::printf("  %llu: %s\n", printable(++shown), action.c_str());
        }
        std::printf("  Replay it with --seed %llu --seeds 1 --actions %llu --trace\n", printable(seed),
                    printable(settings_.actions));
    }

    const char* program_;
    Settings settings_;
    std::uint64_t sessions_ = 0;
    std::uint64_t actions_ = 0;
    std::uint64_t findings_ = 0;
    Counts counts_;
};

} // namespace kestrune::simulate
