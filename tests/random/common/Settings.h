// What a run of simulated sessions is asked for on the command line.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace kestrune::simulate {

struct Settings {
    std::uint64_t seed = 1;
    std::uint64_t seeds = 1000;  // sessions, with seeds counted up from `seed`
    std::uint64_t actions = 100; // of each session
    std::uint64_t findings = 10; // after which the run ends
    bool trace = false;          // print every action and delivery
};

// The settings, or what is wrong with the arguments; `settings` is what holds without arguments.
std::variant<Settings, std::string> readSettings(int argumentCount, const char* const* arguments,
                                                 Settings settings = {});

} // namespace kestrune::simulate
