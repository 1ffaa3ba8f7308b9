#include "desk/live/gallery/TourHand.h"

#include "desk/live/world/LivePicture.h"
#include "desk/paint/toolkit/RectMath.h"

#include <cmath>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr sim::Duration HandStep = std::chrono::milliseconds(8);
constexpr int GlideSteps = 60;
constexpr int PushSteps = 90;

// A hand keeps going this far below the edge, in points.
constexpr double PushDepth = 24;

std::string quoted(std::string_view title) { return "“" + std::string(title) + "”"; }

std::string nameOfRow(std::string_view title) { return "the menu row " + quoted(title); }

std::string nameOfControl(std::string_view title) { return "the button or switch " + quoted(title); }

std::string nameOf(const DeskTarget& target) {
    return target.kind == DeskTarget::Kind::statusItem ? "a status item" : "a part of the screen";
}

} // namespace

std::optional<Point> TourHand::bottomEdge(DisplayID number) {
    const sim::Displays& displays = desk_.session().displays();
    const Rect bounds = displays.withID(number)->bounds;
    // From the middle outwards, so that a picture shows the pointer where people look.
    for (const double fraction : {0.46, 0.3, 0.7, 0.15, 0.85, 0.02, 0.98}) {
        const Point edge{std::round(bounds.minX() + fraction * bounds.width()), bounds.maxY()};
        if (displays.containing(edge) == nullptr && bounds.contains({edge.x, bounds.minY()})) {
            return edge;
        }
    }
    return std::nullopt;
}

Point TourHand::onDisplay(DisplayID number, double fractionX, double fractionY) {
    const Rect bounds = desk_.session().displays().withID(number)->bounds;
    return {bounds.minX() + fractionX * bounds.width(), bounds.minY() + fractionY * bounds.height()};
}

void TourHand::glideTo(Point target, EventType type) {
    const Point start = desk_.session().pointer();
    for (int step = 1; step <= GlideSteps; ++step) {
        const double fraction = static_cast<double>(step) / GlideSteps;
        desk_.advance(HandStep);
        desk_.movePointerTowards(
            {start.x + (target.x - start.x) * fraction, start.y + (target.y - start.y) * fraction}, type);
    }
}

void TourHand::push(DisplayID number, EventType type) {
    const std::optional<Point> edge = bottomEdge(number);
    if (!edge) {
        miss("a free bottom edge of display " + std::to_string(number));
        return;
    }
    glideTo({edge->x, onDisplay(number, 0, 0.5).y}, type);
    for (int step = 0; step < PushSteps; ++step) {
        desk_.advance(HandStep);
        desk_.movePointerTowards({edge->x, desk_.session().pointer().y + PushDepth}, type);
    }
}

void TourHand::press(const DeskTarget& target) {
    pointAt(target);
    if (!missing_) {
        desk_.pressButton(target);
    }
}

void TourHand::miss(const std::string& name) {
    if (!missing_) {
        missing_ = name;
    }
}

// Only what is on the screen can be reached.
bool TourHand::reach(const std::optional<DeskTarget>& target, const std::string& name) {
    const auto area = target ? hitTest_.areaOf(pictureOf(desk_), *target) : std::nullopt;
    if (!area) {
        miss(name);
        return false;
    }
    glideTo(centerOf(*area));
    desk_.hover(target);
    return true;
}

void TourHand::hold(const std::optional<DeskTarget>& target, const std::string& name) {
    if (reach(target, name)) {
        held_ = target;
        desk_.pressButton(held_);
    }
}

void TourHand::letGo() { desk_.releaseButton(std::exchange(held_, std::nullopt)); }

void TourHand::use(const std::optional<DeskTarget>& target, const std::string& name) {
    hold(target, name);
    if (held_) {
        letGo();
    }
}

void TourHand::pointAt(const DeskTarget& target) { reach(target, nameOf(target)); }

void TourHand::click(const DeskTarget& target) { use(target, nameOf(target)); }

void TourHand::openMenu(DisplayID number) {
    const auto& connected = desk_.session().displays().connected();
    const sim::Display* display = desk_.session().displays().withID(number);
    if (display == nullptr) {
        miss("display " + std::to_string(number));
        return;
    }
    click(DeskTarget::statusItem(static_cast<std::size_t>(display - connected.data()), 0));
}

std::optional<DeskTarget> TourHand::rowWith(std::string_view title) {
    const auto rows = desk_.session().menus().rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].title.find(title) != std::string::npos) {
            return DeskTarget::menuRow(row);
        }
    }
    return std::nullopt;
}

void TourHand::pointAtRow(std::string_view title) { reach(rowWith(title), nameOfRow(title)); }

void TourHand::clickRow(std::string_view title) { use(rowWith(title), nameOfRow(title)); }

std::optional<DeskTarget> TourHand::controlWith(std::string_view title) {
    return controlTitled(pictureOf(desk_), title);
}

void TourHand::pointAtControl(std::string_view title) { reach(controlWith(title), nameOfControl(title)); }

void TourHand::holdControl(std::string_view title) { hold(controlWith(title), nameOfControl(title)); }

void TourHand::clickControl(std::string_view title) { use(controlWith(title), nameOfControl(title)); }

void TourHand::closeWindow(std::string_view title) {
    const DeskPicture picture = pictureOf(desk_);
    const WindowPicture* const window = windowTitled(picture, title);
    use(window != nullptr ? std::optional(DeskTarget::closeButton(window->number)) : std::nullopt,
        "the window " + quoted(title));
}

} // namespace kestrune::desk
