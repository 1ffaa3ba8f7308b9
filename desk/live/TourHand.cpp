#include "desk/live/TourHand.h"

#include "desk/live/LivePicture.h"
#include "desk/paint/DeskLayout.h"

#include <cmath>

namespace kestrune::desk {

namespace {

constexpr sim::Duration HandStep = std::chrono::milliseconds(8);
constexpr int GlideSteps = 60;
constexpr int PushSteps = 90;

// A hand keeps going this far below the edge, in points.
constexpr double PushDepth = 24;

// As it will be shown: a story takes room above the displays.
DeskPicture pictureWithStory(LiveDesk& desk) {
    DeskPicture picture = pictureOf(desk);
    picture.story = " ";
    return picture;
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
        return;
    }
    glideTo({edge->x, onDisplay(number, 0, 0.5).y}, type);
    for (int step = 0; step < PushSteps; ++step) {
        desk_.advance(HandStep);
        desk_.movePointerTowards({edge->x, desk_.session().pointer().y + PushDepth}, type);
    }
}

void TourHand::pointAt(const DeskTarget& target) {
    const DeskPicture picture = pictureWithStory(desk_);
    if (const auto area = hitTest_.areaOf(picture, UsualWindow, target)) {
        const Point middle{area->minX() + area->width() / 2, area->minY() + area->height() / 2};
        glideTo(DeskLayout::of(picture, UsualWindow).toGlobal(middle));
        place_ = middle;
        desk_.placeHand(place_);
    }
    desk_.hover(target);
}

void TourHand::click(const DeskTarget& target) {
    pointAt(target);
    desk_.pressButton(target);
    desk_.releaseButton(target);
}

void TourHand::openMenu(DisplayID number) {
    const auto& connected = desk_.session().displays().connected();
    const sim::Display* display = desk_.session().displays().withID(number);
    click(StatusItemTarget{static_cast<std::size_t>(display - connected.data()), 0});
}

std::optional<DeskTarget> TourHand::rowWith(std::string_view title) {
    const auto rows = desk_.session().menus().rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].title.find(title) != std::string::npos) {
            return MenuRowTarget{row};
        }
    }
    return std::nullopt;
}

void TourHand::pointAtRow(std::string_view title) {
    if (const auto row = rowWith(title)) {
        pointAt(*row);
    }
}

void TourHand::clickRow(std::string_view title) {
    if (const auto row = rowWith(title)) {
        click(*row);
    }
}

std::optional<DeskTarget> TourHand::controlWith(std::string_view title) {
    const DeskPicture picture = pictureOf(desk_);
    for (const WindowPicture& window : picture.windows) {
        for (std::size_t element = 0; element < window.scene.elements.size(); ++element) {
            if (titleOfControl(window.scene.elements[element]) == title) {
                return WindowControlTarget{window.number, element};
            }
        }
    }
    return std::nullopt;
}

void TourHand::pointAtControl(std::string_view title) {
    if (const auto control = controlWith(title)) {
        pointAt(*control);
    }
}

void TourHand::closeWindow(std::string_view title) {
    for (const WindowPicture& window : pictureOf(desk_).windows) {
        if (window.title == title) {
            click(WindowCloseTarget{window.number});
            return;
        }
    }
}

void TourHand::clickControl(std::string_view title) {
    if (const auto control = controlWith(title)) {
        click(*control);
    }
}

} // namespace kestrune::desk
