#include "desk/paint/desk/DeskStack.h"

namespace kestrune::desk {

std::vector<StackedPart> stackOf(const DeskPicture& picture) {
    std::vector<StackedPart> stack;
    const auto addIf = [&](PartKind kind, const auto& part) {
        if (part) {
            stack.push_back({.kind = kind, .display = part->display});
        }
    };
    addIf(PartKind::menu, picture.menu);
    addIf(PartKind::toolTip, picture.toolTip);
    for (std::size_t display = 0; display < picture.displays.size(); ++display) {
        stack.push_back({.kind = PartKind::menuBar, .display = display});
    }
    if (picture.dockDisplay) {
        stack.push_back({.kind = PartKind::dock, .display = *picture.dockDisplay});
    }
    for (std::size_t window = 0; window < picture.windows.size(); ++window) {
        stack.push_back({.kind = PartKind::window, .window = window});
    }
    return stack;
}

} // namespace kestrune::desk
