#include "desk/paint/desk/DeskLayout.h"

#include "desk/paint/toolkit/RectMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrune::desk {
namespace {

// In points of the displays.
constexpr double Bezel = 11;
constexpr double HalfGap = 7; // between two housings
constexpr double WidestMargin = Bezel + HalfGap;
constexpr double HighestCaption = 64;
constexpr double ScreenCornerRadius = 12;

// In logical pixels.
constexpr double HorizontalMargin = 48;
constexpr double VerticalMargin = 20;
constexpr double DetailMargin = 28; // beside the stage for a part of the displays
constexpr double FrameMargin = 24;  // around what is shown on the stage

constexpr double FarthestCoordinate = 1e7;

bool isNear(const Rect& rect) {
    const auto isNearEnough = [](double coordinate) { return std::abs(coordinate) <= FarthestCoordinate; };
    return isNearEnough(rect.minX()) && isNearEnough(rect.maxX()) && isNearEnough(rect.minY()) &&
           isNearEnough(rect.maxY());
}

bool isDrawable(const Rect& bounds) { return isNear(bounds) && !bounds.isEmpty(); }

// By how much two intervals have to move apart, as a part of the distance of their middles.
double spreadOf(double distance, double lengths, double wanted) {
    constexpr double Most = 0.5;
    const double gap = distance - lengths / 2;
    return std::max(0.0, std::min(Most, (wanted - gap) / distance));
}

double distanceTo(const Rect& rect, Point point) {
    return std::hypot(std::max({rect.minX() - point.x, 0.0, point.x - rect.maxX()}),
                      std::max({rect.minY() - point.y, 0.0, point.y - rect.maxY()}));
}

// A coordinate on the housing gives the nearest one of the display, and one further away as much less far.
double pastHousing(double value, double minimum, double maximum, double margin) {
    if (value < minimum) {
        return std::min(value + margin, minimum);
    }
    return value < maximum ? value : std::max(value - margin, std::nextafter(maximum, minimum));
}

// Where an interval of a length begins that shows as little as possible beside the whole.
double keptWithin(double start, double length, double wholeStart, double wholeLength) {
    return length >= wholeLength ? wholeStart + (wholeLength - length) / 2
                                 : std::clamp(start, wholeStart, wholeStart + wholeLength - length);
}

} // namespace

Point DisplayPlace::toWindow(Point global) const {
    return {screen.minX() + (global.x - bounds.minX()) * scale,
            screen.minY() + (global.y - bounds.minY()) * scale};
}

Rect DisplayPlace::toWindow(const Rect& global) const {
    const Point corner = toWindow(Point{global.minX(), global.minY()});
    return {corner.x, corner.y, global.width() * scale, global.height() * scale};
}

Point DisplayPlace::toGlobal(Point window) const {
    return {bounds.minX() + (window.x - screen.minX()) / scale,
            bounds.minY() + (window.y - screen.minY()) / scale};
}

DeskLayout::DeskLayout(Size window, std::span<const Rect> displays, bool hasStory, std::optional<Rect> shown,
                       bool isStageAlone) {
    divideWindow(window, hasStory, isStageAlone);
    if (shown) {
        insetStage();
    }
    std::vector<Rect> drawable;
    for (const Rect& bounds : displays) {
        if (isDrawable(bounds)) {
            drawable.push_back(bounds.standardized());
        }
    }
    spreadOut(drawable);
    std::optional<Rect> arrangement;
    for (const Rect& bounds : drawable) {
        Rect room = enlargedBy(onDesk(bounds), margin_);
        room.size.height += captionRoom_;
        arrangement = arrangement ? unionOf(*arrangement, room) : room;
    }
    if (arrangement) {
        show(*arrangement, shown);
    }
    for (const Rect& bounds : displays) {
        places_.push_back(isDrawable(bounds) ? std::optional(placeOf(bounds.standardized())) : std::nullopt);
    }
}

DeskLayout DeskLayout::of(const DeskPicture& picture, Size window) {
    std::vector<Rect> bounds;
    for (const DisplayPicture& display : picture.displays) {
        bounds.push_back(display.bounds);
    }
    return {window, bounds, !picture.story.empty(), picture.shown, picture.stageOnly};
}

void DeskLayout::divideWindow(Size window, bool hasStory, bool isStageAlone) {
    const double headerHeight = isStageAlone ? 0 : HeaderHeight;
    const double storyHeight = hasStory && !isStageAlone ? StoryHeight : 0;
    const double footerHeight = isStageAlone ? 0 : FooterHeight;
    header_ = {0, 0, window.width, headerHeight};
    story_ = {HorizontalMargin, headerHeight, std::max(1.0, window.width - 2 * HorizontalMargin),
              storyHeight};
    footer_ = {0, window.height - footerHeight, window.width, footerHeight};
    const double top = headerHeight + storyHeight;
    stage_ = {0, top, window.width, std::max(1.0, footer_.minY() - top)};
}

// A part of the displays is seen as through a window of its own.
void DeskLayout::insetStage() {
    stage_ = {stage_.minX() + DetailMargin, stage_.minY() + DetailMargin / 4,
              std::max(1.0, stage_.width() - 2 * DetailMargin),
              std::max(1.0, stage_.height() - DetailMargin)};
    stageCornerRadius_ = 10;
}

// The shortest side decides how much room there is for a housing. Neighbours then move apart in the direction
// in which they are neighbours.
void DeskLayout::spreadOut(std::span<const Rect> displays) {
    double shortest = std::numeric_limits<double>::max();
    for (const Rect& bounds : displays) {
        shortest = std::min({shortest, bounds.width(), bounds.height()});
    }
    margin_ = std::min(WidestMargin, 0.055 * shortest);
    captionRoom_ = std::min(HighestCaption, 0.2 * shortest);
    constexpr double AlmostAll = 1 - 1e-9; // against rounding where edges meet
    for (std::size_t first = 0; first < displays.size(); ++first) {
        for (std::size_t second = first + 1; second < displays.size(); ++second) {
            const Rect& one = displays[first];
            const Rect& other = displays[second];
            const double across = std::abs(centerOf(one).x - centerOf(other).x);
            const double down = std::abs(centerOf(one).y - centerOf(other).y);
            const double widths = one.width() + other.width();
            const double heights = one.height() + other.height();
            if (2 * across >= widths * AlmostAll) {
                spread_.width = std::max(spread_.width, 1 + spreadOf(across, widths, 2 * margin_));
            } else if (2 * down >= heights * AlmostAll) {
                spread_.height =
                    std::max(spread_.height, 1 + spreadOf(down, heights, 2 * margin_ + captionRoom_));
            }
        }
    }
}

// In points, but spread out.
Rect DeskLayout::onDesk(const Rect& bounds) const {
    const Point center = centerOf(bounds);
    return movedBy(bounds, {(spread_.width - 1) * center.x, (spread_.height - 1) * center.y});
}

void DeskLayout::show(const Rect& arrangement, const std::optional<Rect>& shown) {
    const double horizontal = shown ? FrameMargin : HorizontalMargin;
    const double vertical = shown ? FrameMargin : VerticalMargin;
    const Rect room{stage_.minX() + horizontal, stage_.minY() + vertical,
                    std::max(1.0, stage_.width() - 2 * horizontal),
                    std::max(1.0, stage_.height() - 2 * vertical)};
    const auto fitting = [&room](const Rect& part) {
        return std::min({1.0, room.width() / part.width(), room.height() / part.height()});
    };
    Rect wanted = arrangement;
    scale_ = fitting(arrangement);
    if (shown && isNear(*shown)) {
        wanted = {shown->minX() * spread_.width, shown->minY() * spread_.height,
                  shown->width() * spread_.width, shown->height() * spread_.height};
        scale_ = std::max(scale_, fitting(wanted)); // More than all displays is nothing to see.
    }
    const Size seen{room.width() / scale_, room.height() / scale_};
    const Point middle = centerOf(wanted);
    const double left =
        keptWithin(middle.x - seen.width / 2, seen.width, arrangement.minX(), arrangement.width());
    const double top =
        keptWithin(middle.y - seen.height / 2, seen.height, arrangement.minY(), arrangement.height());
    offset_ = {room.minX() - left * scale_, room.minY() - top * scale_};
}

DisplayPlace DeskLayout::placeOf(const Rect& bounds) const {
    const Rect desk = onDesk(bounds);
    DisplayPlace place;
    place.bounds = bounds;
    place.scale = scale_;
    place.screen = {desk.minX() * scale_ + offset_.x, desk.minY() * scale_ + offset_.y, desk.width() * scale_,
                    desk.height() * scale_};
    if (scale_ == 1) { // Whole points are whole pixels, and the gap hides the rounding.
        place.screen.origin = {std::round(place.screen.minX()), std::round(place.screen.minY())};
    }
    const double bezel = margin_ * Bezel / WidestMargin;
    place.housing = enlargedBy(place.screen, bezel * scale_);
    const double shorterSide = std::min(bounds.width(), bounds.height());
    const double radius = std::min(ScreenCornerRadius, 0.05 * shorterSide);
    place.screenCornerRadius = radius * scale_;
    place.housingCornerRadius = (radius + bezel) * scale_;
    place.captionRoom = captionRoom_ * scale_;
    return place;
}

const DisplayPlace* DeskLayout::place(std::size_t display) const {
    return display < places_.size() && places_[display] ? &*places_[display] : nullptr;
}

bool DeskLayout::isEmpty() const {
    return std::none_of(places_.begin(), places_.end(), [](const auto& place) { return place.has_value(); });
}

const DisplayPlace* DeskLayout::placeContaining(Point global) const {
    const auto found = std::find_if(places_.begin(), places_.end(), [global](const auto& place) {
        return place && place->bounds.contains(global);
    });
    return found != places_.end() ? &**found : nullptr;
}

std::optional<Point> DeskLayout::pointAt(Point window) const {
    for (const auto& place : places_) {
        if (place && place->screen.contains(window) && stage_.contains(window)) {
            return place->toGlobal(window);
        }
    }
    return std::nullopt;
}

Point DeskLayout::toGlobal(Point window) const {
    const DisplayPlace* nearest = nullptr;
    for (const auto& place : places_) {
        if (place &&
            (nearest == nullptr || distanceTo(place->screen, window) < distanceTo(nearest->screen, window))) {
            nearest = &*place;
        }
    }
    if (nearest == nullptr) {
        return window;
    }
    const Rect& bounds = nearest->bounds;
    const Point point = nearest->toGlobal(window);
    return {pastHousing(point.x, bounds.minX(), bounds.maxX(), margin_),
            pastHousing(point.y, bounds.minY(), bounds.maxY(), margin_)};
}

Point DeskLayout::centerAfter(Point way) const {
    const Point center = centerOf(stage_);
    return {(center.x + way.x - offset_.x) / scale_ / spread_.width,
            (center.y + way.y - offset_.y) / scale_ / spread_.height};
}

Point DeskLayout::centerFor(Point pointer) const {
    constexpr double EdgeWidth = 90;
    constexpr double Haste = 0.3;
    const auto wayFor = [&](double place, double minimum, double maximum) {
        const double width = std::min(EdgeWidth, (maximum - minimum) / 4);
        return Haste * (std::min(0.0, place - minimum - width) + std::max(0.0, place - maximum + width));
    };
    return centerAfter(
        {wayFor(pointer.x, stage_.minX(), stage_.maxX()), wayFor(pointer.y, stage_.minY(), stage_.maxY())});
}

} // namespace kestrune::desk
