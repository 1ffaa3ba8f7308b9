// What the guard makes of a stream of pointer events: the same on every implementation of the seam.
#include "Kestrune/Preferences.h"
#include "replay/recording/DisplayList.h"
#include "replay/recording/NumberText.h"
#include "tests/contract/World.h"
#include "tests/scenarios/LaunchedApplication.h"
#include "tests/scenarios/ShippedBundle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::scenarios {
namespace {

// An event as it entered the session, and where it was delivered.
struct EventRow {
    std::string index;
    EventType type;
    Point sent;
    Point delivered;
};

// From the environment; the other when there is none of that name.
std::string setting(const char* name, const std::string& otherwise) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : otherwise;
}

template <typename Number>
Number numberIn(std::string_view& line) {
    Number number{};
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    EXPECT_EQ(error, std::errc()) << "in the line that ends with " << line;
    const auto length = static_cast<std::size_t>(end - line.data());
    line.remove_prefix(std::min(length + 1, line.size()));
    return number;
}

// "index,type,x,y,deliveredX,deliveredY", as kestrune-desk --emit writes them.
EventRow rowIn(std::string_view line) {
    EventRow row;
    row.index = std::to_string(numberIn<std::uint64_t>(line));
    row.type = static_cast<EventType>(numberIn<std::uint32_t>(line));
    for (double* const coordinate : {&row.sent.x, &row.sent.y, &row.delivered.x, &row.delivered.y}) {
        *coordinate = numberIn<double>(line);
    }
    return row;
}

std::string textOf(const EventRow& row) {
    std::string line = row.index + ',' + std::to_string(static_cast<std::uint32_t>(row.type));
    for (const double coordinate : {row.sent.x, row.sent.y, row.delivered.x, row.delivered.y}) {
        line += ',';
        replay::append(coordinate, line);
    }
    return line;
}

// Those of a file, or one for each thing that can happen to an event.
std::vector<EventRow> events() {
    const std::string path = setting("KESTRUNE_EVENTS", "");
    if (path.empty()) {
        return {{"0", EventType::mouseMoved, {700, 500}, {700, 500}},
                {"1", EventType::mouseMoved, {700, 981.5}, {700, 981.5}},
                {"2", EventType::mouseMoved, {2000, 976.75}, {2000, 976.75}},
                {"3", EventType::mouseMoved, {2000, 978.25}, {2000, 977}},
                {"4", EventType::leftMouseDragged, {2000, 981.99609375}, {2000, 977}}};
    }
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    std::vector<EventRow> rows;
    for (std::string line; std::getline(file, line);) {
        rows.push_back(rowIn(line));
    }
    return rows;
}

std::vector<contract::ConnectedDisplay> displays() {
    const auto frames =
        replay::parseDisplayList(setting("KESTRUNE_DISPLAYS", "1512x982+0+0,1920x1080+1512-98"));
    std::vector<contract::ConnectedDisplay> connected;
    for (const Rect& frame : std::get<std::vector<Rect>>(frames)) {
        const auto number = static_cast<DisplayID>(connected.size() + 1);
        connected.push_back(contract::connectedDisplay(number, frame));
        connected.back().uuid = "37D8832A-2D66-02CA-B9F7-8F300000000" + std::to_string(number);
    }
    return connected;
}

TEST(ReplayedEvents, DeliversEachEventWhereItIsExpected) {
    contract::World world(shippedBundle());
    const auto connected = displays();
    world.connect(connected);
    world.setTrust(contract::Trust::granted);
    const auto pinned = static_cast<std::size_t>(std::stoul(setting("KESTRUNE_PIN", "1")));
    world.store(Preferences::PinnedScreenUUIDKey.name(), connected.at(pinned - 1).uuid.value());
    const LaunchedApplication application(world);

    std::ofstream delivered(setting("KESTRUNE_DELIVERED", "/dev/null"), std::ios::binary);
    int different = 0;
    for (EventRow row : events()) {
        const std::string expected = textOf(row);
        const auto event = world.deliver(row.type, row.sent);
        ASSERT_TRUE(event.has_value()) << "the first that is deleted: " << expected;
        ASSERT_FALSE(event->isReplaced) << "the first that is replaced: " << expected;
        row.type = event->type;
        row.delivered = event->location;
        const std::string actual = textOf(row);
        delivered << actual << '\n';
        different += actual == expected ? 0 : 1;
        EXPECT_TRUE(actual == expected || different > 1)
            << "the first that differs: " << actual << ", not " << expected;
    }
    EXPECT_EQ(different, 0);
    EXPECT_TRUE(delivered.flush());
}

} // namespace
} // namespace kestrune::scenarios
