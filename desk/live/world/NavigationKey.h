// The keys that work on menus, dialogs and windows.
#pragma once

namespace kestrune::desk {

enum class NavigationKey { up, down, left, right, enter, escape, space, tab, backTab };

} // namespace kestrune::desk
