// A pane of System Settings.
#pragma once

#include "desk/paint/desk/DeskTarget.h"
#include "desk/paint/mac/SettingsPaneLayout.h"
#include "desk/paint/toolkit/Canvas.h"
#include "desk/paint/toolkit/ImageStore.h"

#include <optional>

namespace kestrune::desk {

// What stands on the window; the panel is not painted with it.
void paintSettingsPane(const Canvas& canvas, ImageStore& images, const SettingsPaneLayout& layout,
                       const SettingsPanePicture& pane, const std::optional<DeskTarget>& pressed);

} // namespace kestrune::desk
