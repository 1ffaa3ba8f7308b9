#include "desk/live/gallery/Stage.h"

#include "desk/live/world/LivePicture.h"
#include "desk/live/world/PinnedDisplay.h"
#include "desk/paint/toolkit/RectMath.h"

#include <utility>

namespace kestrune::desk {

namespace {

// Long enough for the marks of a scene to fade before the next.
constexpr sim::Duration Pause = std::chrono::seconds(20);

} // namespace

Stage::Stage(const LiveDeskSetup& setup) : desk_(setup), first_(pinnedDisplay(desk_.session())->displayID) {
    if (!hand_.bottomEdge(first_)) {
        return;
    }
    for (const sim::Display& display : desk_.session().displays().connected()) {
        if (!other_ && display.displayID != first_ && hand_.bottomEdge(display.displayID)) {
            other_ = display.displayID;
        }
    }
}

std::optional<WindowPicture> Stage::window() { return desk_.parts().applicationWindow(); }

std::variant<DeskPicture, std::string> Stage::perform(const Scene& scene) {
    desk_.advance(Pause);
    std::string story = scene.play(*this);
    DeskPicture picture = pictureOf(desk_);
    if (scene.frame == Frame::window) {
        picture.windows.clear();
        if (auto shown = window()) {
            picture.windows.push_back(*std::move(shown));
        } else {
            hand_.miss("a window");
        }
    }
    if (const auto& missing = hand_.missing()) {
        return *missing;
    }
    picture.story = std::move(story);
    picture.shown = framed(scene.frame, picture);
    return picture;
}

std::optional<Rect> framed(Frame frame, const DeskPicture& picture) {
    constexpr double Surroundings = 48;
    const Rect pointer{picture.pointer.x, picture.pointer.y, 0, 0};
    switch (frame) {
    case Frame::everything:
    case Frame::window:
        break;
    case Frame::display:
        for (const DisplayPicture& display : picture.displays) {
            if (display.bounds.contains(picture.pointer)) {
                return enlargedBy(display.bounds, Surroundings);
            }
        }
        break;
    case Frame::whatIsOpen: {
        const auto open = DeskHitTest().openParts(picture);
        return enlargedBy(open ? unionOf(*open, pointer) : pointer, Surroundings);
    }
    case Frame::pointer:
        return enlargedBy(pointer, Surroundings);
    }
    return std::nullopt;
}

} // namespace kestrune::desk
