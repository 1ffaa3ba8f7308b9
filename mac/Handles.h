// What menus, images and status items are on the platform.
#pragma once

#include "mac/objc/Retained.h"
#include "platform/Image.h"
#include "platform/Menu.h"
#include "platform/StatusBar.h"

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

} // namespace kestrune
