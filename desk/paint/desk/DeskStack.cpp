#include "desk/paint/desk/DeskStack.h"

namespace kestrune::desk {

std::vector<StackedPart> stackOf(const DeskPicture& picture) {
    std::vector<StackedPart> stack;
    const auto addWindows = [&](WindowDepth depth) {
        for (std::size_t index = 0; index < picture.windows.size(); ++index) {
            if (picture.windows[index].depth == depth) {
                stack.push_back({.kind = PartKind::window, .window = index});
            }
        }
    };
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
    addWindows(WindowDepth::beforeDialog);
    addIf(PartKind::dialog, picture.permissionDialog);
    addWindows(WindowDepth::beforePane);
    addIf(PartKind::mail, picture.mail);
    addIf(PartKind::pane, picture.settingsPane);
    addWindows(WindowDepth::behindSystemWindows);
    return stack;
}

} // namespace kestrune::desk
