// The Accessibility pane.
#pragma once

#include "desk/paint/AccessibilityPaneLayout.h"
#include "desk/paint/Canvas.h"
#include "desk/paint/DeskTarget.h"
#include "desk/paint/ImageStore.h"

#include <optional>

namespace kestrune::desk {

// What stands on the window; the panel is not painted with it.
void paintAccessibilityPane(const Canvas& canvas, ImageStore& images, const AccessibilityPaneLayout& layout,
                            const AccessibilityPanePicture& pane, const std::optional<DeskTarget>& pressed);

} // namespace kestrune::desk
