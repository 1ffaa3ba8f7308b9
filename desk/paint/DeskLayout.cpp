#include "desk/paint/DeskLayout.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double HorizontalMargin = 48;
constexpr double VerticalMargin = 20;
constexpr double FarthestCoordinate = 1e7;

bool isDrawable(const Rect& bounds) {
    const auto isNear = [](double coordinate) { return std::abs(coordinate) <= FarthestCoordinate; };
    return isNear(bounds.minX()) && isNear(bounds.maxX()) && isNear(bounds.minY()) && isNear(bounds.maxY()) &&
           !bounds.isEmpty();
}

Rect unionOf(const Rect& first, const Rect& second) {
    const double left = std::min(first.minX(), second.minX());
    const double top = std::min(first.minY(), second.minY());
    return {left, top, std::max(first.maxX(), second.maxX()) - left,
            std::max(first.maxY(), second.maxY()) - top};
}

Rect insetBy(const Rect& rect, double distance) {
    return {rect.minX() + distance, rect.minY() + distance, rect.width() - 2 * distance,
            rect.height() - 2 * distance};
}

Rect withWholeEdges(const Rect& rect) {
    const double left = std::round(rect.minX());
    const double top = std::round(rect.minY());
    return {left, top, std::round(rect.maxX()) - left, std::round(rect.maxY()) - top};
}

// Housing and gap shrink with small displays so that most of the slot stays lit. Edges fall on whole pixels
// where the gap hides the rounding.
DisplayPlace placeIn(const Rect& bounds, const Rect& slot) {
    const double shorterSide = std::min(slot.width(), slot.height());
    const double gap = std::min(3.0, shorterSide * 0.025);
    const double bezel = std::min(4.0, shorterSide * 0.03);
    Rect frame = insetBy(slot, gap);
    Rect screen = insetBy(frame, bezel);
    if (gap >= 1) {
        frame = withWholeEdges(frame);
        screen = withWholeEdges(screen);
    }
    const double cornerRadius = std::min(12.0, shorterSide * 0.06);
    return {bounds, slot, frame, screen, cornerRadius, std::max(0.0, cornerRadius - bezel)};
}

Point mapBetween(const Rect& from, const Rect& to, Point point) {
    return {to.minX() + (point.x - from.minX()) * (to.width() / from.width()),
            to.minY() + (point.y - from.minY()) * (to.height() / from.height())};
}

double clampInside(double value, double minimum, double maximum) {
    return std::clamp(value, minimum, std::nextafter(maximum, minimum));
}

} // namespace

DeskLayout::DeskLayout(Size window, std::span<const Rect> displays, bool hasStory) {
    divideWindow(window, hasStory);
    std::optional<Rect> arrangement;
    for (const Rect& bounds : displays) {
        if (isDrawable(bounds)) {
            arrangement = arrangement ? unionOf(*arrangement, bounds) : bounds.standardized();
        }
    }
    if (arrangement) {
        fit(*arrangement);
    }
    for (const Rect& bounds : displays) {
        if (!isDrawable(bounds)) {
            places_.emplace_back();
            continue;
        }
        const Rect slot{bounds.minX() * scale_ + offset_.x, bounds.minY() * scale_ + offset_.y,
                        bounds.width() * scale_, bounds.height() * scale_};
        places_.emplace_back(placeIn(bounds.standardized(), slot));
    }
}

DeskLayout DeskLayout::of(const DeskPicture& picture, Size window) {
    std::vector<Rect> bounds;
    for (const DisplayPicture& display : picture.displays) {
        bounds.push_back(display.bounds);
    }
    return {window, bounds, !picture.story.empty()};
}

void DeskLayout::divideWindow(Size window, bool hasStory) {
    const double storyHeight = hasStory ? StoryHeight : 0;
    header_ = {0, 0, window.width, HeaderHeight};
    story_ = {HorizontalMargin, HeaderHeight, std::max(1.0, window.width - 2 * HorizontalMargin),
              storyHeight};
    footer_ = {0, window.height - FooterHeight, window.width, FooterHeight};
    const double top = HeaderHeight + storyHeight + (hasStory ? VerticalMargin / 2 : 0);
    content_ = {HorizontalMargin, top, std::max(1.0, window.width - 2 * HorizontalMargin),
                std::max(1.0, footer_.minY() - VerticalMargin - top)};
}

void DeskLayout::fit(const Rect& arrangement) {
    scale_ =
        std::min({1.0, content_.width() / arrangement.width(), content_.height() / arrangement.height()});
    offset_ = {content_.minX() + (content_.width() - arrangement.width() * scale_) / 2 -
                   arrangement.minX() * scale_,
               content_.minY() + (content_.height() - arrangement.height() * scale_) / 2 -
                   arrangement.minY() * scale_};
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

Point DeskLayout::toWindow(Point global) const {
    const DisplayPlace* const place = placeContaining(global);
    return place ? mapBetween(place->bounds, place->screen, global)
                 : Point{global.x * scale_ + offset_.x, global.y * scale_ + offset_.y};
}

Point DeskLayout::toGlobal(Point window) const {
    const auto isAt = [window](const auto& place, Rect DisplayPlace::*area) {
        return place && ((*place).*area).contains(window);
    };
    auto found = std::find_if(places_.begin(), places_.end(),
                              [&](const auto& place) { return isAt(place, &DisplayPlace::screen); });
    if (found == places_.end()) {
        found = std::find_if(places_.begin(), places_.end(),
                             [&](const auto& place) { return isAt(place, &DisplayPlace::slot); });
    }
    if (found == places_.end()) {
        return {(window.x - offset_.x) / scale_, (window.y - offset_.y) / scale_};
    }
    const Rect& bounds = (*found)->bounds;
    const Point point = mapBetween((*found)->screen, bounds, window);
    return {clampInside(point.x, bounds.minX(), bounds.maxX()),
            clampInside(point.y, bounds.minY(), bounds.maxY())};
}

} // namespace kestrune::desk
