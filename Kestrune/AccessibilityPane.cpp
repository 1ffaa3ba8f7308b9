#include "Kestrune/AccessibilityPane.h"

#include "base/Fatal.h"
#include "platform/Workspace.h"

#include <optional>

namespace kestrune {

void openAccessibilityPane() {
    const std::optional<URL> address = URL::withString(AccessibilityPaneAddress);
    if (!address) {
        fatal("The address of the Accessibility pane is no URL.");
    }
    Workspace::sharedWorkspace().openURL(*address);
}

} // namespace kestrune
