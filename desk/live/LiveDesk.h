// The simulated Mac that a person plays with: every hand movement and every key is one operation here.
#pragma once

#include "base/Geometry.h"
#include "desk/live/News.h"
#include "desk/replay/GuardHost.h"
#include "desk/replay/Judge.h"
#include "desk/replay/Report.h"
#include "sim/Session.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrune::desk {

struct LiveDeskSetup {
    // Global display coordinates, the primary first; at least one.
    std::vector<Rect> displays = {{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};

    // The stored preferences. The choices that follow are stored in their place where they are present.
    sim::PropertyListDictionary defaults = {};
    std::optional<std::size_t> pinned = std::nullopt; // index into `displays`
    std::optional<bool> guardOn = std::nullopt;
    std::optional<double> margin = std::nullopt; // points

    // Where every change of the preferences is saved.
    std::optional<std::string> defaultsFile = std::nullopt;
};

// Owns the session and the application's part in it. The Dock starts on the pinned display. A display's
// number is its identifier; it stays with the display when others go. Time is the session's.
class LiveDesk {
public:
    explicit LiveDesk(const LiveDeskSetup& setup);
    ~LiveDesk() = default;

    LiveDesk(const LiveDesk&) = delete;
    LiveDesk& operator=(const LiveDesk&) = delete;

    // The hardware moves the pointer towards a location in global display coordinates. One below a bottom
    // edge pushes the pointer against it.
    void movePointerTowards(Point target, EventType type = EventType::mouseMoved);

    void pin(DisplayID number);
    void toggleGuard();

    void unplugUnderPointer();

    // The display that was unplugged last, where it was if the others are the same; otherwise a new one.
    void plugIn();

    // Switches the application's row in the Accessibility pane.
    void togglePermission();

    // The system switches the guard's tap off.
    void timeOutTap();

    // As another process would change the preference: twice or half the depth, in powers of two.
    void deepenBand();
    void narrowBand();

    void advance(sim::Duration duration) { session_.advance(duration); }
    sim::Duration now() { return session_.clock().now(); }

    // Tells something that happened outside the session.
    void announce(News news) { news_ = std::move(news); }

    // What happened last; or, as long as it is so, that the preferences cannot be saved.
    News news() const;

    // Why the preferences could not be saved when they last changed.
    const std::optional<std::string>& savingError() const { return savingError_; }

    // Displays count by their numbers. When none is connected, the Dock is where it was last.
    Report report();

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
    const GuardHost& host() const { return host_; }

private:
    struct Unplugged {
        sim::Display display;
        std::vector<sim::Display> arrangement; // before it was unplugged
    };

    void startKeepingDefaults(const LiveDeskSetup& setup);
    void schedulePermissionWatch();
    void noteDelivery(const sim::Delivery& delivery, bool answered);
    void noteDockMove(DisplayID from);
    void changeDisplays(std::vector<sim::Display> displays);
    std::vector<sim::Display> arrangementWith(Unplugged unplugged);
    void setMargin(double wanted);
    double margin();
    JudgedDesk judgedDesk();
    Whereabouts whereabouts();
    std::string nameOf(std::optional<DisplayID> number);
    News newsOfEnabledGuard();

    sim::Session session_;
    GuardHost host_;
    Report report_;
    News news_;
    std::optional<std::string> savingError_;
    std::optional<HeldPointer> heldPointer_;
    std::optional<DockMove> dockMove_;
    std::vector<Unplugged> unplugged_;
    DisplayID lastDockDisplay_ = 1;
};

} // namespace kestrune::desk
