// The user's choices as the application stores them, for whoever looks at them, or makes them, beside it.
#pragma once

#include "sim/services/DefaultsDomain.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::replay {

// Spelled here and not taken from the application, which so cannot rename an entry without being noticed.
namespace entries {

constexpr std::string_view IsEnabled = "isEnabled";
constexpr std::string_view PinnedScreenUUID = "pinnedScreenUUID";
constexpr std::string_view BlockMargin = "blockMargin";
constexpr std::string_view HasCompletedOnboarding = "hasCompletedOnboarding";

} // namespace entries

// What is stored reads as the platform reads it, an entry that is not there as the application has it.
class StoredChoices {
public:
    // `defaults` must outlive this.
    explicit StoredChoices(sim::DefaultsDomain& defaults) : defaults_(defaults) {}

    bool isEnabled() const;

    // Of the chosen display, which need not be connected.
    std::optional<std::string> pinnedScreenUUID() const;

    // The depth of the band, in points.
    double blockMargin() const;
    void setBlockMargin(double points);

private:
    sim::DefaultsDomain& defaults_;
};

// Choices for a session to start with; what is absent stays as it is.
struct ChoicesToStore {
    std::optional<bool> isEnabled = std::nullopt;
    std::optional<std::string> pinnedScreenUUID = std::nullopt;
    std::optional<double> blockMargin = std::nullopt;
};

void store(const ChoicesToStore& choices, sim::PropertyListDictionary& defaults);

} // namespace kestrune::replay
