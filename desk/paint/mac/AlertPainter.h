// The permission dialog.
#pragma once

#include "desk/paint/desk/DeskTarget.h"
#include "desk/paint/mac/AlertLayout.h"
#include "desk/paint/toolkit/Canvas.h"
#include "desk/paint/toolkit/ImageStore.h"

#include <optional>

namespace kestrune::desk {

// What stands on the dialog; the panel is not painted with it.
void paintAlert(const Canvas& canvas, ImageStore& images, const AlertLayout& layout,
                const PermissionDialogPicture& dialog, const std::optional<DeskTarget>& pressed);

} // namespace kestrune::desk
