#include "replay/Report.h"

#include "tests/replay/TwoDisplays.h"

#include <gtest/gtest.h>

namespace kestrune::replay {
namespace {

TEST(Report, CountsEachEventByWhatBecameOfIt) {
    Report report;
    report.add(Desk, {EventType::mouseMoved, {5, 5}, {5, 5}});
    report.add(Desk, {EventType::mouseMoved, {2000, 1078}, {2000, 1075}});
    report.add(Desk, {EventType::mouseMoved, {2000, 1078}, {2000, 1078}});
    report.add(Desk, {.type = EventType::mouseMoved, .sent = {5, 5}, .delivered = {5, 5}, .swallowed = true});
    report.add(Desk, {.type = EventType::mouseMoved, .sent = {5, 5}, .delivered = {5, 5}, .replaced = true});
    EXPECT_EQ(report.events, 5U);
    EXPECT_EQ(report.changed, 1U);
    EXPECT_EQ(report.swallowed, 1U);
    EXPECT_EQ(report.violations, 2U);
}

TEST(Report, IsOneJSONObjectWithDisplaysCountedFromOne) {
    const Report report{7, 6, 5, 4, 3, 1, {8, 9, 10}};
    EXPECT_EQ(
        reportAsJSON(report),
        "{\"events\":7,\"changed\":6,\"swallowed\":5,\"violations\":4,\"dockMoves\":3,\"dockDisplay\":2,"
        "\"skipped\":{\"buttons\":8,\"scrolling\":9,\"unknownPositions\":10}}\n");
}

TEST(Report, ReadsAsAColumnOfFigures) {
    const Report report{70, 6, 0, 0, 3, 1, {8, 9, 10}};
    EXPECT_EQ(reportAsText(report), "events                70  sent\n"
                                    "changed                6  held above a bottom edge\n"
                                    "swallowed              0  sent and not delivered\n"
                                    "violations             0  against the rule\n"
                                    "Dock moves             3  to another display\n"
                                    "Dock display           2  in the end; 1 is the primary\n"
                                    "skipped               27  rows that are no motion\n");
}

} // namespace
} // namespace kestrune::replay
