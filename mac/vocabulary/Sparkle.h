// Classes, protocols and messages of Sparkle, which are there once the framework has been loaded.
//
// Source: Sparkle 2, SPUStandardUserDriver.h, SPUStandardUserDriverDelegate.h, SPUUpdater.h,
// SPUUpdaterDelegate.h.
#pragma once

#include "mac/vocabulary/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

struct Sparkle : Framework {
    constexpr Sparkle() : Framework(Presence::onceLoaded) {}

    struct SPUStandardUserDriver : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id, id)> initWithHostBundle{*this, "initWithHostBundle:delegate:"};
    } standardUserDriver{*this, "SPUStandardUserDriver"};

    struct SPUStandardUserDriverDelegate : ProtocolReference {
        using ProtocolReference::ProtocolReference;
        Message<BOOL()> supportsGentleScheduledUpdateReminders{*this,
                                                               "supportsGentleScheduledUpdateReminders"};
        Message<void(BOOL, id, id)> standardUserDriverWillHandleShowingUpdate{
            *this, "standardUserDriverWillHandleShowingUpdate:forUpdate:state:"};
        Message<void()> standardUserDriverWillFinishUpdateSession{
            *this, "standardUserDriverWillFinishUpdateSession"};
        Message<void()> standardUserDriverWillShowModalAlert{*this, "standardUserDriverWillShowModalAlert"};
        Message<void()> standardUserDriverDidShowModalAlert{*this, "standardUserDriverDidShowModalAlert"};
    } userDriverDelegate{*this, "SPUStandardUserDriverDelegate"};

    struct SPUUpdater : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id, id, id, id)> initWithHostBundle{
            *this, "initWithHostBundle:applicationBundle:userDriver:delegate:"};
        Message<BOOL(id*)> startUpdater{*this, "startUpdater:"};
        Message<void(BOOL)> setAutomaticallyDownloadsUpdates{*this, "setAutomaticallyDownloadsUpdates:"};
        Message<void()> checkForUpdates{*this, "checkForUpdates"};
    } updater{*this, "SPUUpdater"};

    struct SPUUpdaterDelegate : ProtocolReference {
        using ProtocolReference::ProtocolReference;
    } updaterDelegate{*this, "SPUUpdaterDelegate"};
};

extern const Sparkle sparkle;

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
