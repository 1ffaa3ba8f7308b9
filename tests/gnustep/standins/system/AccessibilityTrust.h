// The application's row under Accessibility in the system's settings.
#pragma once

#include "tests/contract/World.h"

namespace kestrune::gnustep {

struct AccessibilityRow {
    contract::Trust trust = contract::Trust::granted;
    bool isDialogShown = false;
};

AccessibilityRow& accessibilityRow();

// Whether an active event tap may be made; a refusal lists the application.
bool mayHaveActiveTap();

} // namespace kestrune::gnustep
