// What hosting controllers and hosting views are on the platform.
#pragma once

#include "mac/objc/Retained.h"
#include "platform/Hosting.h"

namespace kestrune {

struct HostingController::State {
    mac::Retained controller;
    mac::Retained view;
};

struct HostingView::State {
    mac::Retained view;
};

} // namespace kestrune
