// Software updates.
#pragma once

#include "platform/Application.h"
#include "platform/NotificationCenter.h"
#include "platform/Updater.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace kestrune {

// Starts the updater, once, and makes what it shows visible: an application without a Dock icon would have
// its windows behind those of others. While an update is shown the application is a regular one, and the
// updater's windows float. When the updater does not start, that is logged, and every check does nothing.
//
// The updater announces what it does in the middle of doing it; the answers are tasks on the main actor,
// which hold the manager weakly. Main thread only.
class UpdaterManager : public StandardUserDriverDelegate,
                       public std::enable_shared_from_this<UpdaterManager> {
    struct Construction {};

public:
    // The one of the process, which starts the updater when it is first asked for.
    static std::shared_ptr<UpdaterManager> shared();

    explicit UpdaterManager(Construction /*by shared*/);

    // Absent when it did not start.
    std::optional<Updater>& updater() { return updater_; }

    // From now on each updater's window that receives the keys floats; also any window of the application
    // with "Update" in its title, as the updater's own classes have plain names.
    void startWindowObserver();
    void stopWindowObserver();

    // Makes the windows float whose class is the updater's, and brings the application to the front.
    void raiseUpdaterWindows();

    bool supportsGentleScheduledUpdateReminders() const noexcept override { return false; }
    void standardUserDriverWillHandleShowingUpdate() noexcept override;
    void standardUserDriverWillFinishUpdateSession() noexcept override;
    void standardUserDriverWillShowModalAlert() noexcept override;
    void standardUserDriverDidShowModalAlert() noexcept override;

    std::string_view className() const override { return "UpdaterManager"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }

private:
    void start();
    void beginSession();
    void endSession();
    void startTask(std::function<void()> work);

    std::optional<Updater> updater_;
    std::optional<ActivationPolicy> savedActivationPolicy_; // present during a session that was announced
    std::optional<NotificationObserver> windowObserver_;
};

} // namespace kestrune
