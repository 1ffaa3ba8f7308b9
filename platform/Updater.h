// Software updates by Sparkle.
//
// The framework lies in the bundle's Frameworks folder and is loaded when an object of it is first wanted. A
// bundle may lack it; then the objects are there and do nothing, and `Updater::startUpdater` fails.
//
// Source: Sparkle 2, SPUStandardUserDriver.h, SPUStandardUserDriverDelegate.h, SPUUpdater.h.
#pragma once

#include "platform/Bundle.h"
#include "platform/Error.h"
#include "platform/Object.h"

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

namespace kestrune {

// The description of the failed start when the framework is not there.
inline constexpr std::string_view MissingUpdateFramework =
    "Sparkle.framework is not in the application's Frameworks folder.";

// SPUStandardUserDriverDelegate, as far as it is used. Called on the main thread.
class StandardUserDriverDelegate : public Object {
public:
    // supportsGentleScheduledUpdateReminders: whether the application reminds its user of scheduled updates
    // in its own way. Otherwise Sparkle shows them at once.
    virtual bool supportsGentleScheduledUpdateReminders() const noexcept = 0;

    // standardUserDriverWillHandleShowingUpdate:forUpdate:state:. An update is about to be shown.
    virtual void standardUserDriverWillHandleShowingUpdate() noexcept = 0;

    // standardUserDriverWillFinishUpdateSession. Whatever was shown is being put away.
    virtual void standardUserDriverWillFinishUpdateSession() noexcept = 0;

    // standardUserDriverWillShowModalAlert and standardUserDriverDidShowModalAlert: around an alert such as
    // the one that there is no update. The main queue may not be served between the two.
    virtual void standardUserDriverWillShowModalAlert() noexcept = 0;
    virtual void standardUserDriverDidShowModalAlert() noexcept = 0;
};

// A retained SPUStandardUserDriver: the windows and alerts of an update.
class StandardUserDriver {
public:
    // initWithHostBundle:delegate:. The delegate is held weakly.
    StandardUserDriver(const Bundle& hostBundle, const std::weak_ptr<StandardUserDriverDelegate>& delegate);

    struct State;
    const std::shared_ptr<State>& state() const { return state_; }

private:
    std::shared_ptr<State> state_;
};

// A retained SPUUpdater.
class Updater {
public:
    // initWithHostBundle:applicationBundle:userDriver:delegate:. Retains the driver. The delegate, an
    // SPUUpdaterDelegate with none of its methods, which are all optional, is held weakly.
    Updater(const Bundle& hostBundle, const Bundle& applicationBundle, const StandardUserDriver& userDriver,
            const std::weak_ptr<Object>& delegate);

    // startUpdater:. Absent when it has started; scheduled checks begin with the next turn of the main queue.
    // Refused to a bundle without the framework, an identifier or a version, or with a malformed key.
    std::optional<Error> startUpdater();

    // setAutomaticallyDownloadsUpdates:. Kept in the user defaults.
    void setAutomaticallyDownloadsUpdates(bool downloads);

    // checkForUpdates, as the user asks for it: its progress and its result are shown.
    void checkForUpdates();

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace kestrune
