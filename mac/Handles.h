// What menus, images, status items and windows are on the platform.
#pragma once

#include "mac/objc/Retained.h"
#include "platform/Image.h"
#include "platform/Menu.h"
#include "platform/StatusBar.h"
#include "platform/Window.h"

namespace kestrune {

struct Image::State {
    mac::Retained image;
};

struct Menu::State {
    mac::Retained menu;
};

struct MenuItem::State {
    mac::Retained item;
};

struct StatusBarButton::State {
    mac::Retained button;
};

struct StatusItem::State {
    mac::Retained item;
};

struct Window::State {
    mac::Retained window;
};

} // namespace kestrune
