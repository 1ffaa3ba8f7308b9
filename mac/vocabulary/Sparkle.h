// Classes and messages of Sparkle, which are there once the framework has been loaded.
//
// Source: Sparkle 2, SPUStandardUserDriver.h, SPUUpdater.h.
#pragma once

#include "mac/objc/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

namespace spu_standard_user_driver {
inline const ClassReference type{"SPUStandardUserDriver", ClassPresence::onceLoaded};
inline const Message<id(id, id)> initWithHostBundle{type, "initWithHostBundle:delegate:"};
} // namespace spu_standard_user_driver

namespace spu_updater {
inline const ClassReference type{"SPUUpdater", ClassPresence::onceLoaded};
inline const Message<id(id, id, id, id)> initWithHostBundle{
    type, "initWithHostBundle:applicationBundle:userDriver:delegate:"};
inline const Message<BOOL(id*)> startUpdater{type, "startUpdater:"};
inline const Message<void(BOOL)> setAutomaticallyDownloadsUpdates{type, "setAutomaticallyDownloadsUpdates:"};
inline const Message<void()> checkForUpdates{type, "checkForUpdates"};
} // namespace spu_updater

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
