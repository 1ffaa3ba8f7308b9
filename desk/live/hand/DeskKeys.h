// What the keys do, and what the desk says of them.
#pragma once

#include "desk/live/world/LiveDesk.h"
#include "desk/paint/desk/DeskPicture.h"

#include <optional>
#include <vector>

namespace kestrune::desk {

// What the window does itself.
enum class WindowCommand { zoom, changeAppearance, savePicture, hideKeys, quit };

// A hint for each key.
std::vector<KeyHint> keyLegend();

// The only one while the others are hidden.
std::vector<KeyHint> legendOfHiddenKeys();

// Letters in lower case. What is left to the window; nothing of a key that does something to the desk or
// that does nothing.
std::optional<WindowCommand> pressDeskKey(LiveDesk& desk, char pressed);

} // namespace kestrune::desk
