// Where scenes are played: a desk, and the hand at it.
#pragma once

#include "desk/live/gallery/TourHand.h"
#include "desk/live/world/LiveDesk.h"
#include "desk/live/world/LiveDeskSetup.h"
#include "desk/paint/desk/DeskPicture.h"
#include "replay/recording/InputError.h"

#include <functional>
#include <optional>
#include <string>
#include <variant>

namespace kestrune::desk {

class Stage;

// What of the desk a scene shows: all displays, the one with the pointer, what is open, all displays with a
// loupe at the pointer, or only the application's front window, alone.
enum class Frame { everything, display, whatIsOpen, pointer, window };

struct Scene {
    std::string name;
    std::function<std::string(Stage&)> play; // tells in a few words what there is to be seen
    Frame frame = Frame::everything;
};

class Stage {
public:
    // The session that it plays in must be the only one.
    explicit Stage(const LiveDeskSetup& setup);

    LiveDesk& desk() { return desk_; }
    TourHand& hand() { return hand_; }

    // The display that was pinned in the beginning.
    DisplayID first() const { return first_; }

    // Another one; absent unless both have a bottom edge that the pointer can be pushed against.
    std::optional<DisplayID> other() const { return other_; }

    // The application's frontmost window.
    std::optional<WindowPicture> window();

    // Plays a scene after those before it. What it shows, with its words as the story, without keys and,
    // where it is about one window, with no other; or what was not there that it needs, as in: the menu row
    // “Disable”.
    std::variant<DeskPicture, std::string> perform(const Scene& scene);

private:
    LiveDesk desk_;
    TourHand hand_{desk_};
    DisplayID first_;
    std::optional<DisplayID> other_;
};

// The part of the displays that a frame is about; absent for all of them.
std::optional<Rect> framed(Frame frame, const DeskPicture& picture);

} // namespace kestrune::desk
