// Values that a defaults domain can hold, each beside what the platform's conversion makes of it.
#pragma once

#include "sim/formats/PropertyList.h"
#include "tests/random/common/Random.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrune::simulate {

// What an entry holds, absent for an entry that is not there, and what it reads as. The two belong together,
// so there is no default.
template <typename Reading>
struct StoredValue {
    StoredValue(std::optional<sim::PropertyList> storedObject, Reading convertedReading)
        : stored(std::move(storedObject)), reading(std::move(convertedReading)) {}

    std::optional<sim::PropertyList> stored;
    Reading reading;
};

// Reads as doubleForKey:.
using StoredMargin = StoredValue<double>;

// Reads as the switch: boolForKey:, but true for an entry that is not there.
using StoredSwitch = StoredValue<bool>;

// Reads as stringForKey:.
using StoredChoice = StoredValue<std::optional<std::string>>;

// Nothing is stored under any of the names.
StoredMargin absentMargin();
StoredSwitch absentSwitch();
StoredChoice absentChoice();

StoredMargin marginOf(double points);
StoredChoice choiceOf(std::string identifier);

// Absent, ordinary, extreme and of the wrong type.
const std::vector<StoredMargin>& remarkableMargins();
const std::vector<StoredSwitch>& remarkableSwitches();

// One of these; only such as read as on with that chance, any of them otherwise.
StoredSwitch randomSwitch(Random& random, double chanceOfOn);

// Absent, of the wrong type, or naming no display that the arrangements here have.
const std::vector<StoredChoice>& remarkableChoices();

// For the domain to begin with; does nothing for an absent value.
void put(sim::PropertyListDictionary& dictionary, std::string_view key,
         const std::optional<sim::PropertyList>& value);

// Whether an entry holds exactly that, also when it is not a number; `found` is null for no entry.
bool holdsExactly(const sim::PropertyList* found, const std::optional<sim::PropertyList>& expected);

// Readable, on one line.
std::string textOf(const sim::PropertyList* value);

} // namespace kestrune::simulate
