#include "replay/Report.h"

#include <string_view>

namespace kestrune::replay {

namespace {

std::string field(std::string_view name, std::uint64_t value) {
    return "\"" + std::string(name) + "\":" + std::to_string(value);
}

std::string line(std::string_view label, std::uint64_t value, std::string_view meaning) {
    std::string text(label);
    text.resize(14, ' ');
    std::string number = std::to_string(value);
    number.insert(0, number.size() < 10 ? 10 - number.size() : 0, ' ');
    return text + number + "  " + std::string(meaning) + "\n";
}

} // namespace

void Report::add(const JudgedDesk& desk, const sim::Delivery& delivery) {
    ++events;
    if (delivery.swallowed) {
        ++swallowed;
        return;
    }
    if (delivery.delivered != delivery.sent) {
        ++changed;
    }
    if (delivery.replaced || violatesTheRule(desk, delivery)) {
        ++violations;
    }
}

std::string reportAsJSON(const Report& report) {
    return "{" + field("events", report.events) + "," + field("changed", report.changed) + "," +
           field("swallowed", report.swallowed) + "," + field("violations", report.violations) + "," +
           field("dockMoves", report.dockMoves) + "," + field("dockDisplay", report.dockDisplay + 1) +
           ",\"skipped\":{" + field("buttons", report.skipped.buttons) + "," +
           field("scrolling", report.skipped.scrolling) + "," +
           field("unknownPositions", report.skipped.unknownPositions) + "}}\n";
}

std::string reportAsText(const Report& report) {
    const std::uint64_t skipped =
        report.skipped.buttons + report.skipped.scrolling + report.skipped.unknownPositions;
    return line("events", report.events, "sent") +
           line("changed", report.changed, "held above a bottom edge") +
           line("swallowed", report.swallowed, "sent and not delivered") +
           line("violations", report.violations, "against the rule") +
           line("Dock moves", report.dockMoves, "to another display") +
           line("Dock display", report.dockDisplay + 1, "in the end; 1 is the primary") +
           line("skipped", skipped, "rows that are no motion");
}

} // namespace kestrune::replay
