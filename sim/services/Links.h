// The URLs that the application makes and has opened.
//
// Source: docs/MAC_FACTS.md, "URLs".
#pragma once

#include <string>
#include <vector>

namespace kestrune::sim {

class Accessibility;

class Links {
public:
    // `accessibility` must outlive this: one address leads to its pane.
    explicit Links(Accessibility& accessibility) : accessibility_(accessibility) {}

    // Whether somebody opens it.
    bool open(const std::string& text);

    // The URLs that were opened, in order.
    const std::vector<std::string>& opened() const { return opened_; }

    // Fault: no application is responsible for any URL.
    void refuseOpening(bool refuse) { refusesOpening_ = refuse; }

    // Fault: no text is a URL.
    void refuseMaking(bool refuse) { refusesMaking_ = refuse; }
    bool refusesMaking() const { return refusesMaking_; }

private:
    Accessibility& accessibility_;
    std::vector<std::string> opened_;
    bool refusesOpening_ = false;
    bool refusesMaking_ = false;
};

} // namespace kestrune::sim
