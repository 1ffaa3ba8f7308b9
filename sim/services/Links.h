// The URLs that the application makes and has opened.
//
// Source: docs/MAC_FACTS.md, "URLs".
#pragma once

#include "sim/services/StandingFaults.h"

#include <string>
#include <vector>

namespace kestrune::sim {

class Accessibility;

class Links {
public:
    // Both must outlive this. One address leads to the pane of `accessibility`.
    Links(Accessibility& accessibility, const StandingFaults& faults)
        : accessibility_(accessibility), faults_(faults) {}

    // Whether a text is a URL at all.
    bool allowsMaking() const { return !faults_.refusesURLs; }

    // Whether somebody opens it.
    bool open(const std::string& text);

    // The URLs that were opened, in order.
    const std::vector<std::string>& opened() const { return opened_; }

private:
    Accessibility& accessibility_;
    const StandingFaults& faults_;
    std::vector<std::string> opened_;
};

} // namespace kestrune::sim
