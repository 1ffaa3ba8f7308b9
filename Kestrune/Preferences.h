// The one store of what the application keeps across launches.
#pragma once

#include "platform/UserDefaults.h"

#include <memory>

namespace kestrune {

// Owned by the application delegate and shared with whoever reads or writes the user's choices. Main thread
// only. Nothing is cached and no defaults are registered: each reader applies the entry's default when it is
// absent.
class Preferences {
public:
    // Bool, absent means true. Read for every pointer event; written by the menu's switch.
    static constexpr UserDefaultsKey IsEnabledKey{"isEnabled"};

    // String, the `uuid` of a ManagedScreen; absent means that no display was chosen. Written by the menu,
    // and by the guard when the chosen display is gone.
    static constexpr UserDefaultsKey PinnedScreenUUIDKey{"pinnedScreenUUID"};

    // Bool, absent means false. Set to true when the first-run wizard is finished, and at each launch that
    // does not need it.
    static constexpr UserDefaultsKey HasCompletedOnboardingKey{"hasCompletedOnboarding"};

    // Points, a floating-point number; anything not greater than 0 means the guard's default. Nothing in the
    // application writes it: it is for `defaults write`.
    static constexpr UserDefaultsKey BlockMarginKey{"blockMargin"};

    explicit Preferences(std::shared_ptr<UserDefaults> defaults);

    // Whether the user wants the guard to act. True unless a value is stored that converts to false.
    bool isEnabled() const;

    // Borrowed; for reading and writing the other entries.
    UserDefaults& defaults() const { return *defaults_; }

private:
    std::shared_ptr<UserDefaults> defaults_;
};

} // namespace kestrune
