// What a hosting controller is on the platform.
#pragma once

#include "mac/hosting/HostedView.h"
#include "mac/objc/Retained.h"
#include "platform/Hosting.h"

namespace kestrune {

// The platform's controller owns the hosted view, so that it lives in its window when nobody else has it.
struct HostingController::State {
    mac::HostedView& hostedView() const;

    mac::Retained controller;
};

} // namespace kestrune
