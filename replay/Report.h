// What came of a session's pointer events.
#pragma once

#include "replay/Judge.h"
#include "replay/recording/Recording.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace kestrune::replay {

struct Report {
    std::uint64_t events = 0;     // sent
    std::uint64_t changed = 0;    // delivered elsewhere than sent
    std::uint64_t swallowed = 0;  // sent and not delivered
    std::uint64_t violations = 0; // against the rule, as judged without asking the guard
    std::uint64_t dockMoves = 0;
    std::size_t dockDisplay = 0; // index of the display that has the Dock in the end
    SkippedRows skipped;

    // Counts one event.
    void add(const JudgedDesk& desk, const sim::Delivery& delivery);
};

// One JSON object on one line; displays count from 1.
std::string reportAsJSON(const Report& report);

// A few lines for people.
std::string reportAsText(const Report& report);

} // namespace kestrune::replay
