#include "Kestrune/UpdaterManager.h"

#include "Kestrune/ApplicationLog.h"
#include "Kestrune/RunningApplication.h"
#include "Kestrune/WhileAlive.h"
#include "platform/Bundle.h"
#include "platform/MainActor.h"
#include "platform/ProcessLifetime.h"

#include <string>
#include <utility>

namespace kestrune {

namespace {

constexpr LogFormat Initialized = LogFormat::of<"Sparkle initialized — feed: %{public}s">();
constexpr LogFormat InitFailed = LogFormat::of<"Sparkle init failed: %{public}s">();

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool isOfUpdatersClass(const Window& window) {
    const std::string type = window.className();
    return contains(type, "SPU") || contains(type, "Sparkle");
}

// "Software Update" is the title of Sparkle's own window, and an "Update" as well.
bool hasUpdatersTitle(const Window& window) {
    const std::string title = window.title();
    return contains(title, "Software Update") || contains(title, "Update");
}

void makeFloat(Window window) {
    window.setLevel(WindowLevel::floating);
    window.setHidesOnDeactivate(false);
}

void windowBecameKey(const Notification& notification) {
    const std::optional<Window> window = notification.objectAsWindow();
    if (window && (isOfUpdatersClass(*window) || hasUpdatersTitle(*window))) {
        makeFloat(*window);
    }
}

} // namespace

std::shared_ptr<UpdaterManager> UpdaterManager::shared() {
    static const char key = 0;
    std::shared_ptr<void>& place = ProcessLifetime::place(&key);
    if (!place) {
        const auto manager = std::make_shared<UpdaterManager>(Construction());
        place = manager;
        manager->start();
    }
    return std::static_pointer_cast<UpdaterManager>(place);
}

UpdaterManager::UpdaterManager(Construction) { init(); }

void UpdaterManager::start() {
    const Bundle bundle = Bundle::mainBundle();
    const StandardUserDriver userDriver(bundle, weak_from_this());
    Updater updater(bundle, bundle, userDriver, weak_from_this());
    const std::optional<Error> error = updater.startUpdater();
    if (error) {
        applicationLog("updater").error(InitFailed, error->localizedDescription);
        return;
    }
    updater.setAutomaticallyDownloadsUpdates(false);
    updater_ = updater;
    const std::string feed = bundle.infoDictionaryString("SUFeedURL").value_or("NOT SET");
    applicationLog("updater").info(Initialized, feed);
}

void UpdaterManager::startWindowObserver() {
    stopWindowObserver();
    windowObserver_ = NotificationCenter::defaultCenter().addObserver(
        WindowDidBecomeKeyNotification, OperationQueue::mainQueue(), windowBecameKey);
}

void UpdaterManager::stopWindowObserver() {
    if (windowObserver_) {
        NotificationCenter::defaultCenter().removeObserver(*windowObserver_);
        windowObserver_.reset();
    }
}

void UpdaterManager::raiseUpdaterWindows() {
    Application application = runningApplication();
    for (const Window& window : application.windows()) {
        if (isOfUpdatersClass(window)) {
            makeFloat(window);
        }
    }
    application.activateIgnoringOtherApps(true);
}

// An update may be announced twice in one session; what was before it is what the first announcement found.
void UpdaterManager::beginSession() {
    startWindowObserver();
    Application application = runningApplication();
    if (!savedActivationPolicy_) {
        savedActivationPolicy_ = application.activationPolicy();
    }
    application.setActivationPolicy(ActivationPolicy::regular);
    application.activateIgnoringOtherApps(true);
}

void UpdaterManager::endSession() {
    stopWindowObserver();
    if (savedActivationPolicy_) {
        runningApplication().setActivationPolicy(*savedActivationPolicy_);
        savedActivationPolicy_.reset();
    }
}

void UpdaterManager::startTask(std::function<void()> work) {
    MainActor::startTask(whileAlive(weak_from_this(), std::move(work)));
}

void UpdaterManager::standardUserDriverWillHandleShowingUpdate() noexcept {
    startTask([this] { beginSession(); });
}

void UpdaterManager::standardUserDriverWillFinishUpdateSession() noexcept {
    startTask([this] { endSession(); });
}

void UpdaterManager::standardUserDriverWillShowModalAlert() noexcept {
    startTask([this] { raiseUpdaterWindows(); });
}

void UpdaterManager::standardUserDriverDidShowModalAlert() noexcept {
    startTask([this] { raiseUpdaterWindows(); });
}

} // namespace kestrune
