#include "benchmarks/gnustep/GuardedTap.h"

#include "base/Fatal.h"
#include "tests/gnustep/standins/appkit/Screens.h"
#include "tests/gnustep/standins/system/AccessibilityTrust.h"

#include <cstdint>
#include <optional>

namespace kestrune::benchmarks {

namespace {

constexpr const char* LeftUUID = "37D8832A-2D66-02CA-B9F7-8F3000000001";
constexpr const char* RightUUID = "37D8832A-2D66-02CA-B9F7-8F3000000002";

} // namespace

gnustep::TapListener firstTap() {
    const auto listener = gnustep::firstTapListener();
    if (!listener) {
        fatal("The guard has no tap.");
    }
    return *listener;
}

void makeSession() {
    gnustep::connectDisplays(
        {{1, "Left", {0, 0, DisplayWidth, DisplayHeight}, LeftUUID, std::int64_t{1}},
         {2, "Right", {DisplayWidth, 0, DisplayWidth, DisplayHeight}, RightUUID, std::int64_t{2}}});
    gnustep::accessibilityRow().trust = contract::Trust::granted;
}

GuardedTap::GuardedTap() : preferences_(std::make_shared<Preferences>(UserDefaults::standardUserDefaults())) {
    guard_.setPreferences(preferences_);
    guard_.refreshScreens();
    guard_.start();
}

void GuardedTap::storeIsEnabled(bool isStored) {
    if (isStored) {
        preferences_->defaults().setBool(true, Preferences::IsEnabledKey);
    } else {
        preferences_->defaults().setObject(std::nullopt, Preferences::IsEnabledKey);
    }
}

} // namespace kestrune::benchmarks
