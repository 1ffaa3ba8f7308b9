// The hand that plays the scenes: it moves in small steps, pushes against edges and uses what is on the
// screen. It leaves alone what is not there, and tells of it.
#pragma once

#include "desk/live/world/LiveDesk.h"
#include "desk/paint/desk/DeskParts.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrune::desk {

class TourHand {
public:
    // `desk` must outlive the hand.
    explicit TourHand(LiveDesk& desk) : desk_(desk) {}

    // What it was to use first of all that was not there, as in: the menu row “Disable”.
    const std::optional<std::string>& missing() const { return missing_; }

    // Where the pointer can be pushed against a display's bottom edge, absent where other displays are below
    // all of it.
    std::optional<Point> bottomEdge(DisplayID number);

    // A place on a display, by fractions of its width and height.
    Point onDisplay(DisplayID number, double fractionX, double fractionY);

    void glideTo(Point target, EventType type = EventType::mouseMoved);

    // Pushes for longer than the Dock waits.
    void push(DisplayID number, EventType type = EventType::mouseMoved);

    // Tells of something that was not there.
    void miss(const std::string& name);

    // Moves over a part of the screen; the second also holds the button down there, the third clicks.
    void pointAt(const DeskTarget& target);
    void press(const DeskTarget& target);
    void click(const DeskTarget& target);

    // Opens the application's menu on a display.
    void openMenu(DisplayID number);

    // Moves over the row of the open menu whose title has that in it; the second also clicks there.
    void pointAtRow(std::string_view title);
    void clickRow(std::string_view title);

    // Moves over the button or switch that has that title, in the frontmost window that has one; the second
    // also clicks there, and the third leaves the letting go to another call.
    void pointAtControl(std::string_view title);
    void clickControl(std::string_view title);
    void holdControl(std::string_view title);
    void letGo();

    // The close button of a window, by its title.
    void closeWindow(std::string_view title);

private:
    std::optional<DeskTarget> rowWith(std::string_view title);
    std::optional<DeskTarget> controlWith(std::string_view title);
    bool reach(const std::optional<DeskTarget>& target, const std::string& name);
    void hold(const std::optional<DeskTarget>& target, const std::string& name);
    void use(const std::optional<DeskTarget>& target, const std::string& name);

    LiveDesk& desk_;
    DeskHitTest hitTest_;
    std::optional<DeskTarget> held_;
    std::optional<std::string> missing_;
};

} // namespace kestrune::desk
