// The application's windows as the platform has them, and a user's hand at them.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "platform/Menu.h"
#include "tests/contract/Shown.h"

#include <string_view>
#include <vector>

namespace kestrune::native {

// Those that are on the screen, the frontmost first; without menus and panels.
std::vector<id> visibleWindows();

// As AppKit looks for visible windows when the application is opened again.
bool hasWindowOnScreenOrInDock();

// Read from the native window and the views in it.
contract::ShownWindow describeWindow(id window);

// That of a status item.
contract::ShownButton describeButton(id button);

// Of a class or its subclasses, inside the window's content, in their order.
std::vector<id> viewsIn(id window, const char* className);

// By what is read out for it; nil when there is none.
id buttonNamed(id window, std::string_view title);

// Presses and releases the mouse there.
void clickTitleBar(id window);
void click(id view);

// As a button is while the mouse is held on it, or again after that.
void highlight(id button, bool isPressed);

// An event of the keyboard, for the key window.
void pressKeyInWindow(std::string_view character, EventModifierFlags modifiers);

// What the system tells of windows, and what nobody took of a user's presses.
void forgetEvents();

} // namespace kestrune::native
