#include "tests/random/common/StoredValue.h"

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <utility>

namespace kestrune::simulate {

namespace {

using sim::PropertyList;
using Limits = std::numeric_limits<double>;

PropertyList whole(std::int64_t value) { return PropertyList{value}; }
PropertyList text(const char* value) { return PropertyList{std::string(value)}; }

const PropertyList Array{PropertyList::Array{PropertyList{12.5}}};
const PropertyList Dictionary{PropertyList::Dictionary{{"value", PropertyList{true}}}};
const PropertyList Data{PropertyList::Data{"MTIuNQ=="}};
const PropertyList Date{PropertyList::Date{"2024-05-01T12:00:00Z"}};

} // namespace

StoredMargin absentMargin() { return {std::nullopt, 0}; }
StoredSwitch absentSwitch() { return {std::nullopt, true}; }
StoredChoice absentChoice() { return {std::nullopt, std::nullopt}; }

StoredMargin marginOf(double points) { return {PropertyList{points}, points}; }

StoredChoice choiceOf(std::string identifier) { return {PropertyList{identifier}, identifier}; }

const std::vector<StoredMargin>& remarkableMargins() {
    static const std::vector<StoredMargin> margins{
        absentMargin(),
        marginOf(0),
        marginOf(-0.0),
        marginOf(-3),
        marginOf(1),
        marginOf(4),
        marginOf(10),
        marginOf(12.5),
        marginOf(0.1),
        marginOf(5000),
        marginOf(1e300),
        marginOf(1e-12),
        marginOf(Limits::denorm_min()),
        marginOf(Limits::infinity()),
        marginOf(-Limits::infinity()),
        marginOf(Limits::quiet_NaN()),
        {whole(7), 7},
        {whole(-1), -1},
        {whole(0), 0},
        {PropertyList{true}, 1},
        {PropertyList{false}, 0},
        {text("12.5pt"), 12.5},
        {text("  8"), 8},
        {text("-5"), -5},
        {text("+2.25"), 2.25},
        {text("points"), 0},
        {text("nan"), 0},
        {text("infinity"), 0},
        {text(""), 0},
        {Array, 0},
        {Dictionary, 0},
        {Data, 0},
        {Date, 0},
    };
    return margins;
}

const std::vector<StoredSwitch>& remarkableSwitches() {
    static const std::vector<StoredSwitch> switches{
        absentSwitch(),
        {PropertyList{true}, true},
        {PropertyList{false}, false},
        {whole(1), true},
        {whole(0), false},
        {whole(-1), true},
        {PropertyList{0.5}, true},
        {PropertyList{0.0}, false},
        {PropertyList{-0.0}, false},
        {text("YES"), true},
        {text("true"), true},
        {text(" 1"), true},
        {text("-009"), true},
        {text("NO"), false},
        {text("0"), false},
        {text("on"), false},
        {text(""), false},
        {Array, false},
        {Dictionary, false},
        {Data, false},
        {Date, false},
    };
    return switches;
}

const std::vector<StoredChoice>& remarkableChoices() {
    static const std::vector<StoredChoice> choices{
        absentChoice(),
        choiceOf("00000000-0000-0000-0000-000000000000"),
        choiceOf(""),
        choiceOf("display-"),
        {whole(7), "7"},
        {PropertyList{2.5}, "2.5"},
        {PropertyList{true}, "1"},
        {PropertyList{false}, "0"},
        {Array, std::nullopt},
        {Dictionary, std::nullopt},
        {Data, std::nullopt},
        {Date, std::nullopt},
    };
    return choices;
}

void put(sim::PropertyListDictionary& dictionary, std::string_view key,
         const std::optional<PropertyList>& value) {
    if (value) {
        dictionary.emplace(key, *value);
    }
}

bool holdsExactly(const PropertyList* found, const std::optional<PropertyList>& expected) {
    if (found == nullptr || !expected) {
        return found == nullptr && !expected;
    }
    const auto* foundReal = std::get_if<double>(&found->value);
    const auto* expectedReal = std::get_if<double>(&expected->value);
    if (foundReal != nullptr && expectedReal != nullptr) {
        return std::bit_cast<std::uint64_t>(*foundReal) == std::bit_cast<std::uint64_t>(*expectedReal);
    }
    return *found == *expected;
}

std::string textOf(const PropertyList* value) {
    if (value == nullptr) {
        return "nothing";
    }
    static constexpr std::array<std::string_view, 8> Kinds{"Boolean", "integer", "real",  "string",
                                                           "data",    "date",    "array", "dictionary"};
    std::string result(Kinds[value->value.index()]);
    if (const std::optional<std::string> reading = value->asString()) {
        result += " \"" + *reading + "\"";
    }
    return result;
}

StoredSwitch randomSwitch(Random& random, double chanceOfOn) {
    const bool isOn = random.chance(chanceOfOn);
    StoredSwitch value = random.pick(remarkableSwitches());
    while (isOn && !value.reading) {
        value = random.pick(remarkableSwitches());
    }
    return value;
}

} // namespace kestrune::simulate
