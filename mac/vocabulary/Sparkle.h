// Classes and messages of Sparkle, which are there once the framework has been loaded.
//
// Source: Sparkle 2, SPUStandardUserDriver.h, SPUUpdater.h.
#pragma once

#include "mac/objc/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

struct Sparkle : Framework {
    constexpr Sparkle() : Framework(Presence::onceLoaded) {}

    struct SPUStandardUserDriver : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id, id)> initWithHostBundle{*this, "initWithHostBundle:delegate:"};
    } standardUserDriver{*this, "SPUStandardUserDriver"};

    struct SPUUpdater : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id, id, id, id)> initWithHostBundle{
            *this, "initWithHostBundle:applicationBundle:userDriver:delegate:"};
        Message<BOOL(id*)> startUpdater{*this, "startUpdater:"};
        Message<void(BOOL)> setAutomaticallyDownloadsUpdates{*this, "setAutomaticallyDownloadsUpdates:"};
        Message<void()> checkForUpdates{*this, "checkForUpdates"};
    } updater{*this, "SPUUpdater"};
};

extern const Sparkle sparkle;

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
