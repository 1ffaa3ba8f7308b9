// The simulated Mac that a person plays with: every hand movement and every key is one operation here.
#pragma once

#include "base/Geometry.h"
#include "desk/live/world/LiveDeskSetup.h"
#include "desk/live/world/News.h"
#include "desk/live/world/ScreenParts.h"
#include "replay/ApplicationHost.h"
#include "replay/Judge.h"
#include "replay/Report.h"
#include "replay/StoredChoices.h"
#include "sim/session/Plugs.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::desk {

// Owns the session and the application on it, which is launched at once. The Dock starts on the pinned
// display. A display's number is its identifier; it stays with the display when others go. Time is the
// session's.
class LiveDesk {
public:
    explicit LiveDesk(const LiveDeskSetup& setup);
    ~LiveDesk() = default;

    LiveDesk(const LiveDesk&) = delete;
    LiveDesk& operator=(const LiveDesk&) = delete;

    // The hardware moves the pointer towards a location in global display coordinates. One below a bottom
    // edge pushes the pointer against it.
    void movePointerTowards(Point target, EventType type = EventType::mouseMoved);

    // Through the menu of the application's status item.
    void pin(DisplayID number);
    void toggleGuard();

    // The button that clicks is pressed or released over a part of the screen, absent for the bare desk, or
    // the pointer comes there.
    void pressButton(const std::optional<DeskTarget>& target);
    void releaseButton(const std::optional<DeskTarget>& target);
    void hover(const std::optional<DeskTarget>& target) { parts_.hover(target); }

    // A key for an open menu or the dialog; false when neither is there.
    bool navigate(NavigationKey key);

    // Command, and Shift where asked, with a character.
    void pressEquivalent(std::string_view character, bool withShift);

    // Opens the application's menu on the display with the pointer.
    void openStatusMenu();

    // The application ends, or is launched again.
    void quitOrLaunch();

    // The application asks for the permission: the system's dialog and the pane of System Settings.
    void askForPermission();

    void unplugUnderPointer();

    // The display that was unplugged last, where it was if the others are the same; otherwise a new one.
    void plugIn();

    // System Settings with the login items.
    void openLoginItems();

    // Whether an application that becomes a login item waits for the user's approval.
    void changeLoginApproval();

    // What a check for updates finds: in turn nothing, a new version, and no answer.
    void changeUpdateFeed();

    // The time for the updater's own check has come.
    void letScheduledCheckCome();

    // Switches the application's row in the Accessibility pane.
    void togglePermission();

    // The system switches the guard's tap off.
    void timeOutTap();

    // As another process would change the preference: twice or half the depth, in powers of two.
    void deepenBand();
    void narrowBand();

    void advance(sim::Duration duration);
    sim::Duration now() { return session_.clock().now(); }

    // Tells something that happened outside the session.
    void announce(News news) { news_ = std::move(news); }

    // What happened last; or, as long as it is so, that the preferences cannot be saved.
    News news() const;

    // Why the preferences could not be saved when they last changed.
    const std::optional<std::string>& savingError() const { return savingError_; }

    // Displays count by their numbers. When none is connected, the Dock is where it was last.
    replay::Report report();

    struct HeldPointer {
        Point location; // global display coordinates
        sim::Duration time;
    };
    const std::optional<HeldPointer>& heldPointer() const { return heldPointer_; }

    struct DockMove {
        DisplayID from;
        DisplayID to;
        sim::Duration time;
    };
    const std::optional<DockMove>& dockMove() const { return dockMove_; }

    sim::Session& session() { return session_; }
    const replay::ApplicationHost& host() const { return host_; }
    ScreenParts& parts() { return parts_; }

    // The display under the pointer, as an index; the first where there is none.
    std::size_t displayUnderPointer();

private:
    void startKeepingDefaults(const LiveDeskSetup& setup);

    // Does something and tells what has changed by it.
    void tell(const std::function<PartsOutcome()>& action);
    Standing standing();
    replay::StoredChoices choices() { return replay::StoredChoices(session_.defaults()); }
    void noteDelivery(const sim::Delivery& delivery, bool answered);
    void say(std::string text, Occurrence kind = Occurrence::neutral) { news_ = {std::move(text), kind}; }
    void changeDisplays(std::vector<sim::Display> displays);
    void setMargin(double wanted);
    replay::JudgedDesk judgedDesk();
    std::optional<std::string> nameOf(std::optional<DisplayID> number);

    sim::Session session_;
    replay::ApplicationHost host_{session_};
    ScreenParts parts_{session_};
    bool doLoginItemsWait_ = false;
    sim::UpdateFeed feed_ = sim::UpdateFeed::nothingNew; // that the next check finds
    sim::Plugs plugs_{session_};
    replay::Report report_;
    News news_;
    std::optional<std::string> savingError_;
    std::optional<HeldPointer> heldPointer_;
    std::optional<DockMove> dockMove_;
    DisplayID lastDockDisplay_ = 1;
};

// A desk as the command line asks for it. The error says why the file of the preferences could not be read,
// in which case it is left as it is, or not be saved.
std::variant<std::unique_ptr<LiveDesk>, replay::InputError> openDesk(const Options& options);

} // namespace kestrune::desk
