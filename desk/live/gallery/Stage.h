// Where scenes are played: a desk, and the hand at it.
#pragma once

#include "desk/live/world/LiveDesk.h"
#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/desk/DeskPicture.h"

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {

class Stage;

// A display by its part in the story: the one that was pinned in the beginning, another one, the main one,
// the one that came last, and the one that is pinned now.
enum class Role { first, other, main, latest, pinned };

// Something on the screen that the hand can be sent to, absent while it is not there. In titles and captions
// “{other}” is the name of the display with that role.
struct Thing {
    std::string name; // as in: the menu row “Disable”
    std::function<std::optional<DeskTarget>(Stage&)> find;
};

Thing statusItem(Role display);
Thing menuRow(const std::string& title); // of the open menu, with that in its title
Thing control(const std::string& title); // a button or switch, in the frontmost window that has one
Thing titleBar(const std::string& window);
Thing closeButton(const std::string& window);

// What of the desk a scene shows: all displays, the one with the pointer, what is open, all displays with a
// loupe at the pointer, or only the application's front window, alone.
enum class Frame { everything, display, whatIsOpen, pointer, window };

using Step = std::function<void(Stage&)>;

struct Scene {
    std::string name;
    Frame frame = Frame::everything;
    std::string caption; // what there is to be seen
    std::vector<Step> steps;
};

// The hand moves in small steps, pushes against edges and uses what is on the screen. It leaves alone what is
// not there, and the stage tells of it.
class Stage {
public:
    // The session that it plays in must be the only one.
    explicit Stage(const LiveDeskSetup& setup);

    LiveDesk& desk() { return desk_; }

    // Null while it is not connected. The other one has a bottom edge that the pointer can be pushed against.
    const sim::Display* find(Role role);

    // A text with the names of displays in it.
    std::string told(std::string text);

    // The application's frontmost window.
    std::optional<WindowPicture> window() { return desk_.parts().applicationWindow(); }

    // To a place on a display, by fractions of its width and height.
    void glide(Role display, double fractionX, double fractionY, EventType type = EventType::mouseMoved);

    // Pushes against a display's bottom edge for longer than the Dock waits.
    void push(Role display, EventType type = EventType::mouseMoved);

    // Moves over something, which is to be there; the second also presses the button, the third clicks.
    bool pointAt(const Thing& thing);
    void press(const Thing& thing);
    void click(const Thing& thing);

    // Lets the button go where it was pressed, or beside it, where that does nothing.
    void letGo();
    void drawOff();

    // Tells of something that was not there; only the first is kept.
    void miss(const std::string& name);
    const std::optional<std::string>& missing() const { return missing_; }

    // Plays a scene after those before it. What it shows, with its caption as the story, without keys and,
    // where it is about one window, with no other; or what was not there that it needs first of all.
    std::variant<DeskPicture, std::string> perform(const Scene& scene);

private:
    void glideTo(Point target, EventType type);
    std::optional<Point> bottomEdge(const sim::Display& display);

    LiveDesk desk_;
    DeskHitTest hitTest_;
    sim::Display first_;
    std::optional<sim::Display> other_;
    std::optional<DeskTarget> pointedAt_;
    std::optional<std::string> missing_;
};

// Shows of a picture the closest view that a frame allows and that cuts no window, menu or Dock: a part of
// one display in its own size, that display alone, or all of them.
void applyFrame(Frame frame, DeskPicture& picture);

} // namespace kestrune::desk
