// Sparkle inside the application's process: whether it is there, what its checks find, and what it shows.
//
// Its windows are windows of the application. They are of plain classes, and it is their titles that tell
// what they are; another version of the framework may have other classes.
//
// Source: docs/MAC_FACTS.md, "Updates".
#pragma once

#include "platform/Updater.h"
#include "platform/Window.h"
#include "sim/hardware/VirtualClock.h"
#include "ui/View.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace kestrune::sim {

class Journal;
class MainThread;
class Windows;
struct BundleContents;
struct UpdateSupply;
enum class UpdateFeed;

class Updates {
public:
    // How long a check takes.
    static constexpr Duration CheckDuration = std::chrono::milliseconds(200);

    // What the framework says when it does not start.
    static constexpr std::string_view StartFailure = "The updater failed to start.";

    // All of them must outlive this.
    Updates(const UpdateSupply& supply, const BundleContents& bundle, MainThread& mainThread,
            Windows& windows, Journal& journal)
        : supply_(supply), bundle_(bundle), mainThread_(mainThread), windows_(windows), journal_(journal) {}

    // What the application asks for.
    std::optional<Error> start(const std::weak_ptr<StandardUserDriverDelegate>& delegate);
    void checkForUser();

    // The time for a scheduled check has come.
    void checkAsScheduled();

    // What the user sees: an update, or an alert.
    bool isShowingUpdate() const { return stage_ == Stage::update; }
    bool isShowingAlert() const { return stage_ == Stage::alert; }

    // The alert that keeps the application from everything else; null when there is none.
    std::shared_ptr<Window::State> alert() const { return isShowingAlert() ? window_ : nullptr; }

    // Where the user's action arrives: whatever is shown is put away.
    void dismiss();

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

    const UpdateSupply& supply_;
    const BundleContents& bundle_;
    MainThread& mainThread_;
    Windows& windows_;
    Journal& journal_;
    std::weak_ptr<StandardUserDriverDelegate> delegate_;
    bool isStarted_ = false;
    Stage stage_ = Stage::idle;
    std::uint64_t sessionNumber_ = 0; // of the framework's sessions
    std::shared_ptr<Window::State> window_;
};

} // namespace kestrune::sim
