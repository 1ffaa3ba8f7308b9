#include "desk/paint/SceneColor.h"

namespace kestrune::desk {

Color sceneColor(const Palette& palette, ui::Color color) {
    const SceneColors& colors = palette.scene;
    switch (color) {
    case ui::Color::primary:
        return colors.primary;
    case ui::Color::secondary:
        return colors.secondary;
    case ui::Color::tertiary:
        return colors.tertiary;
    case ui::Color::accent:
        return palette.system.accent;
    case ui::Color::green:
        return colors.green;
    case ui::Color::white:
        return colors.white;
    case ui::Color::link:
        return colors.link;
    case ui::Color::sectionFill:
        return colors.sectionFill;
    case ui::Color::sectionBorder:
        return colors.sectionBorder;
    case ui::Color::separator:
        return colors.separator;
    }
    return colors.primary;
}

} // namespace kestrune::desk
