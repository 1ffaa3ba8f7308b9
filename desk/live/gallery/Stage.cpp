#include "desk/live/gallery/Stage.h"

#include "desk/live/world/LivePicture.h"
#include "desk/live/world/PinnedDisplay.h"
#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/toolkit/RectMath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kestrune::desk {

namespace {

// Long enough for the marks of a scene to fade before the next.
constexpr sim::Duration Pause = std::chrono::seconds(20);

constexpr sim::Duration HandStep = std::chrono::milliseconds(8);
constexpr int GlideSteps = 60;
constexpr int PushSteps = 90;

// A hand keeps going this far below the edge, in points.
constexpr double PushDepth = 24;

// A part of the frontmost window of a title.
Thing partOfWindow(const std::string& title, DeskTarget (*part)(std::size_t)) {
    return {"the window “" + title + "”", [title, part](Stage& stage) {
                const DeskPicture picture = pictureOf(stage.desk());
                const WindowPicture* const window = windowTitled(picture, title);
                return window != nullptr ? std::optional(part(window->number)) : std::nullopt;
            }};
}

} // namespace

Thing statusItem(Role display) {
    return {"a status item", [display](Stage& stage) -> std::optional<DeskTarget> {
                const sim::Display* const shown = stage.find(display);
                const auto& connected = stage.desk().session().displays().connected();
                return shown != nullptr ? std::optional(DeskTarget::statusItem(
                                              static_cast<std::size_t>(shown - connected.data()), 0))
                                        : std::nullopt;
            }};
}

Thing menuRow(const std::string& title) {
    return {"the menu row “" + title + "”", [title](Stage& stage) -> std::optional<DeskTarget> {
                const auto rows = stage.desk().session().menus().rows();
                const auto found = std::find_if(rows.begin(), rows.end(), [&](const sim::MenuRow& row) {
                    return row.title.find(stage.told(title)) != std::string::npos;
                });
                return found != rows.end() ? std::optional(DeskTarget::menuRow(
                                                 static_cast<std::size_t>(found - rows.begin())))
                                           : std::nullopt;
            }};
}

Thing control(const std::string& title) {
    return {"the button or switch “" + title + "”",
            [title](Stage& stage) { return controlTitled(pictureOf(stage.desk()), title); }};
}

Thing titleBar(const std::string& window) { return partOfWindow(window, DeskTarget::titleBar); }

Thing closeButton(const std::string& window) { return partOfWindow(window, DeskTarget::closeButton); }

Stage::Stage(const LiveDeskSetup& setup) : desk_(setup), first_(*pinnedDisplay(desk_.session())) {
    for (const sim::Display& display : desk_.session().displays().connected()) {
        if (!other_ && display.displayID != first_.displayID && bottomEdge(display)) {
            other_ = display;
        }
    }
}

const sim::Display* Stage::find(Role role) {
    const sim::Displays& displays = desk_.session().displays();
    switch (role) {
    case Role::first:
        return displays.withID(first_.displayID);
    case Role::other:
        if (!other_) {
            miss("another display than the pinned one with a free bottom edge");
        }
        return other_ ? displays.withID(other_->displayID) : nullptr;
    case Role::main:
        return &displays.connected().front();
    case Role::latest:
        return &displays.connected().back();
    case Role::pinned:
        return pinnedDisplay(desk_.session());
    }
    return nullptr;
}

std::string Stage::told(std::string text) {
    const std::array<std::pair<std::string_view, const sim::Display*>, 4> names = {{
        {"{first}", &first_},
        {"{other}", other_ ? &*other_ : nullptr},
        {"{latest}", find(Role::latest)},
        {"{pinned}", find(Role::pinned)},
    }};
    for (const auto& [mark, display] : names) {
        const std::size_t place = text.find(mark);
        if (display != nullptr && place != std::string::npos) {
            text.replace(place, mark.size(), display->localizedName);
        }
    }
    return text;
}

// From the middle outwards, so that a picture shows the pointer where people look.
std::optional<Point> Stage::bottomEdge(const sim::Display& display) {
    const Rect& bounds = display.bounds;
    for (const double fraction : {0.46, 0.3, 0.7, 0.15, 0.85, 0.02, 0.98}) {
        const Point edge{std::round(bounds.minX() + fraction * bounds.width()), bounds.maxY()};
        if (desk_.session().displays().containing(edge) == nullptr &&
            bounds.contains({edge.x, bounds.minY()})) {
            return edge;
        }
    }
    return std::nullopt;
}

void Stage::glideTo(Point target, EventType type) {
    const Point start = desk_.session().pointer();
    for (int step = 1; step <= GlideSteps; ++step) {
        const double fraction = static_cast<double>(step) / GlideSteps;
        desk_.advance(HandStep);
        desk_.movePointerTowards(
            {start.x + (target.x - start.x) * fraction, start.y + (target.y - start.y) * fraction}, type);
    }
}

void Stage::glide(Role display, double fractionX, double fractionY, EventType type) {
    if (const sim::Display* const shown = find(display)) {
        const Rect& bounds = shown->bounds;
        glideTo({bounds.minX() + fractionX * bounds.width(), bounds.minY() + fractionY * bounds.height()},
                type);
    }
}

void Stage::push(Role display, EventType type) {
    const sim::Display* const shown = find(display);
    const std::optional<Point> edge = shown != nullptr ? bottomEdge(*shown) : std::nullopt;
    if (!edge) {
        miss("a free bottom edge to push against");
        return;
    }
    glideTo({edge->x, centerOf(shown->bounds).y}, type);
    for (int step = 0; step < PushSteps; ++step) {
        desk_.advance(HandStep);
        desk_.movePointerTowards({edge->x, desk_.session().pointer().y + PushDepth}, type);
    }
}

void Stage::miss(const std::string& name) {
    if (!missing_) {
        missing_ = name;
    }
}

// Only what is on the screen can be reached.
bool Stage::pointAt(const Thing& thing) {
    const std::optional<DeskTarget> target = thing.find(*this);
    const auto area = target ? hitTest_.areaOf(pictureOf(desk_), *target) : std::nullopt;
    if (!area) {
        miss(told(thing.name));
        return false;
    }
    glideTo(centerOf(*area), EventType::mouseMoved);
    desk_.hover(target);
    pointedAt_ = target;
    return true;
}

void Stage::press(const Thing& thing) {
    if (pointAt(thing)) {
        desk_.pressButton(pointedAt_);
    }
}

void Stage::letGo() { desk_.releaseButton(std::exchange(pointedAt_, std::nullopt)); }

void Stage::click(const Thing& thing) {
    if (pointAt(thing)) {
        desk_.pressButton(pointedAt_);
        letGo();
    }
}

void Stage::drawOff() {
    pointedAt_.reset();
    desk_.hover(std::nullopt);
    letGo();
}

std::variant<DeskPicture, std::string> Stage::perform(const Scene& scene) {
    desk_.advance(Pause);
    desk_.announce({});
    for (const Step& step : scene.steps) {
        step(*this);
    }
    DeskPicture picture = pictureOf(desk_);
    if (scene.frame == Frame::window) {
        const auto shown = window();
        if (!shown) {
            miss("a window");
        }
        picture.windows.assign(shown ? 1 : 0, shown.value_or(WindowPicture()));
    }
    if (missing_) {
        return *missing_;
    }
    picture.story = told(scene.caption);
    applyFrame(scene.frame, picture);
    return picture;
}

namespace {

bool isWithin(const Rect& part, const Rect& whole) {
    return part.minX() >= whole.minX() && part.maxX() <= whole.maxX() && part.minY() >= whole.minY() &&
           part.maxY() <= whole.maxY();
}

// What a stage can show at 100 % around a place, or a little smaller when that is a display's whole width;
// nothing beside the display's housing.
Rect seenAround(Point place, const Rect& display, Size stage) {
    constexpr double Housing = 12;
    constexpr double Little = 1.2;
    const Rect room = enlargedBy(display, Housing);
    const double growth = std::max(1.0, room.width() / stage.width);
    const Size seen = growth < Little ? Size{stage.width * growth, stage.height * growth} : stage;
    const auto keptWithin = [](double middle, double length, double least, double most) {
        return length < most - least ? std::clamp(middle - length / 2, least, most - length)
                                     : (least + most - length) / 2;
    };
    return {keptWithin(place.x, seen.width, room.minX(), room.maxX()),
            keptWithin(place.y, seen.height, room.minY(), room.maxY()), seen.width, seen.height};
}

// All that must not be cut.
std::vector<Rect> framesOfParts(const DeskPicture& picture) {
    TextPainter measure;
    std::vector<Rect> frames;
    for (const DeskPart& part : partsOf(picture, measure)) {
        if (part.kind != DeskPart::Kind::menuBar) {
            frames.push_back(part.frame);
        }
    }
    return frames;
}

void leaveOnly(std::size_t display, DeskPicture& picture) {
    picture.displays = {picture.displays[display]};
    picture.dockDisplay = 0;
    picture.dockMoveMark.reset();
    if (picture.menu) {
        picture.menu->display = 0;
    }
    if (picture.toolTip) {
        picture.toolTip->display = 0;
    }
}

} // namespace

void applyFrame(Frame frame, DeskPicture& picture) {
    if (frame == Frame::pointer) {
        picture.loupe = picture.pointer;
        return;
    }
    Rect wanted{picture.pointer.x, picture.pointer.y, 0, 0};
    if (frame == Frame::whatIsOpen) {
        wanted = unionOf(wanted, DeskHitTest().openParts(picture).value_or(wanted));
    }
    const auto display = std::find_if(
        picture.displays.begin(), picture.displays.end(),
        [&wanted](const DisplayPicture& candidate) { return isWithin(wanted, candidate.bounds); });
    if (frame == Frame::everything || frame == Frame::window || display == picture.displays.end()) {
        return;
    }
    const Rect bounds = display->bounds;
    const std::vector<Rect> parts = framesOfParts(picture);
    picture.shown = wanted;
    const Size stage = DeskLayout::of(picture, UsualWindow).stage().size;
    const Rect seen = seenAround(centerOf(wanted), bounds, stage);
    const bool isAnyCut = std::any_of(parts.begin(), parts.end(), [&](const Rect& part) {
        return doOverlap(part, seen) && !isWithin(overlapOf(part, bounds), seen);
    });
    if (frame != Frame::display && isWithin(wanted, seen) && !isAnyCut) {
        // The stage has a margin around what is shown, and displays stand further apart on it than they are.
        const Point middle = centerOf(seen);
        picture.shown = enlargedBy(seen, -40);
        const double tooLarge = DeskLayout::of(picture, UsualWindow).scale() * seen.width() / stage.width;
        const Size size{picture.shown->width() * tooLarge, picture.shown->height() * tooLarge};
        picture.shown = Rect{middle.x - size.width / 2, middle.y - size.height / 2, size.width, size.height};
        return;
    }
    picture.shown.reset();
    if (std::all_of(parts.begin(), parts.end(), [&](const Rect& part) { return isWithin(part, bounds); })) {
        leaveOnly(static_cast<std::size_t>(display - picture.displays.begin()), picture);
    }
}

} // namespace kestrune::desk
