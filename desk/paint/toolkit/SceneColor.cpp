#include "desk/paint/toolkit/SceneColor.h"

namespace kestrune::desk {

Color sceneColor(const Palette& palette, ui::Color color) {
    return rgb(ui::systemColor(color).shade(palette.isDark));
}

} // namespace kestrune::desk
