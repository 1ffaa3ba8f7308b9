// Sparkle inside the application's process: whether it is there, what its checks find, and what it shows.
//
// Its windows are windows of the application. They are of plain classes, and it is their titles that tell
// what they are; another version of the framework may have other classes.
//
// Source: docs/MAC_FACTS.md, "Updates".
#pragma once

#include "platform/Updater.h"
#include "platform/Window.h"
#include "sim/session/VirtualClock.h"
#include "ui/View.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::sim {

class Journal;
class MainThread;
class Windows;
struct BundleContents;

// Whether the bundle has the framework, and whether that starts.
enum class UpdateFramework { missing, broken, working };

// What a check finds at the address of the feed, if there is one.
enum class UpdateFeed { unreachable, nothingNew, newVersion };

class Updates {
public:
    // How long a check takes.
    static constexpr Duration CheckDuration = std::chrono::milliseconds(200);

    // What the framework says when it does not start.
    static constexpr std::string_view StartFailure = "The updater failed to start.";

    // All of them must outlive this.
    Updates(UpdateFramework framework, const BundleContents& bundle, MainThread& mainThread, Windows& windows,
            Journal& journal)
        : framework_(framework),
          bundle_(bundle),
          mainThread_(mainThread),
          windows_(windows),
          journal_(journal) {}

    // The alert that keeps the application from everything else; null when there is none.
    std::shared_ptr<Window::State> alert() const { return isShowingAlert() ? window_ : nullptr; }

    // What the world is like. The framework is what it was when the application started it.
    void setFramework(UpdateFramework framework) { framework_ = framework; }
    UpdateFramework framework() const { return framework_; }
    void setFeed(UpdateFeed feed) { feed_ = feed; }
    void setWindowClass(std::string name) { windowClass_ = std::move(name); }

    // Its windows leave the screen while the application is not active, as panels do.
    void setWindowsHide(bool hide) { windowsHide_ = hide; }

    // The time for a scheduled check has come.
    void checkAsScheduled();

    // An update is shown, or an alert.
    bool isShowingUpdate() const { return stage_ == Stage::update; }
    bool isShowingAlert() const { return stage_ == Stage::alert; }

    // The user puts away whatever is shown.
    void dismiss();

    // What the application asks for.
    std::optional<Error> start(const std::weak_ptr<StandardUserDriverDelegate>& delegate);
    void checkForUser();

    // Of the user driver that was started; null when there is none.
    std::shared_ptr<StandardUserDriverDelegate> delegate() const { return delegate_.lock(); }

    // The application's process has ended.
    void clear();

private:
    // Of a session of the framework: it asks the feed, shows an update, or an alert that there is none.
    enum class Stage { idle, checking, update, alert };

    void check(bool isByUser);
    void finishCheck(bool isByUser);
    void announce();
    void showUpdate(bool isByUser);
    void showAlert(UpdateFeed feed);
    void show(std::string_view title, std::string_view className, const ui::View& content, bool asKey);
    void hide();
    void tell(std::string_view selector, void (StandardUserDriverDelegate::*method)());

    UpdateFramework framework_;
    const BundleContents& bundle_;
    MainThread& mainThread_;
    Windows& windows_;
    Journal& journal_;
    UpdateFeed feed_ = UpdateFeed::nothingNew;
    std::string windowClass_ = "NSWindow";
    bool windowsHide_ = false;
    std::weak_ptr<StandardUserDriverDelegate> delegate_;
    bool isStarted_ = false;
    Stage stage_ = Stage::idle;
    std::uint64_t sessionNumber_ = 0; // of the framework's sessions
    std::shared_ptr<Window::State> window_;
};

} // namespace kestrune::sim
