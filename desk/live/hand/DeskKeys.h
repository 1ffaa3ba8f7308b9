// What the keys do, and what the desk says of them.
#pragma once

#include "desk/live/world/LiveDesk.h"
#include "desk/paint/desk/DeskPicture.h"

#include <optional>
#include <vector>

namespace kestrune::desk {

// What the window does itself.
enum class WindowCommand { zoom, changeAppearance, savePicture, hideKeys, quit };

// A key by the character on its cap, letters in lower case; ↑ ↓ ← → ⏎ ⇥ and ⎋ are characters, too, and 0 is a
// key that the desk does not know.
struct KeyPress {
    char32_t key = 0;
    bool withShift = false;
    bool withCommand = false;
    bool isRepeated = false; // by a key that is held down
};

// A hint for each key; only of that which shows the others again while they are hidden.
std::vector<KeyHint> keyLegend(bool isHidden);

// What is left to the window; nothing of a key that does something to the desk or that does nothing. The keys
// of menus, dialogs and windows are only theirs, and Command is for the menus.
std::optional<WindowCommand> pressDeskKey(LiveDesk& desk, const KeyPress& pressed);

} // namespace kestrune::desk
