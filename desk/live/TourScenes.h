// The scenes of the tour.
#pragma once

#include "desk/live/LiveDesk.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

// Plays the story scene by scene on a desk whose guard is off.
class TourScenes {
public:
    // The story is about the display that is pinned and another one. `desk` must outlive the scenes.
    explicit TourScenes(LiveDesk& desk);

    // Whether there are two displays with a bottom edge that the pointer can be pushed against.
    bool canBePlayed() const { return other_.has_value(); }

    struct Scene {
        std::string name;                  // for a file, without suffix
        std::string (TourScenes::*play)(); // tells in a sentence what was played
    };
    static const std::vector<Scene>& all();

private:
    std::string showDisplays();
    std::string letDockLeave();
    std::string switchOn();
    std::string hold();
    std::string holdDrag();
    std::string chooseOther();
    std::string plugIn();
    std::string deepen();
    std::string unplugPinned();
    std::string revoke();
    std::string grant();
    std::string timeOut();
    std::string leaveOneDisplay();

    // Where the pointer can be pushed against a display's bottom edge, absent where other displays are below
    // all of it.
    std::optional<Point> bottomEdge(DisplayID number);

    // Moves the pointer in small steps, as a hand does.
    void glideTo(Point target, EventType type = EventType::mouseMoved);

    // Pushes for longer than the Dock waits.
    void push(DisplayID number, EventType type = EventType::mouseMoved);

    Point onDisplay(DisplayID number, double fractionX, double fractionY);
    const std::string& nameOf(DisplayID number);
    std::string pinnedName() const;

    LiveDesk& desk_;
    DisplayID first_;
    std::optional<DisplayID> other_;
};

} // namespace kestrune::desk
