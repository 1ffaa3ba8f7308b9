#include "desk/paint/MenuBarLayout.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double SmallestHeight = 20;
constexpr double SmallestLegibleHeight = 11;

// As parts of the bar's height.
constexpr double TextSize = 0.56;
constexpr double TallestImage = 0.78;
constexpr double TitlePadding = 0.38;
constexpr double StatusItemPadding = 0.30;

constexpr Size UsualImage{18, 18};

double edgeMargin(const DisplayPlace& place, double height) {
    return std::max(place.screenCornerRadius, height * 0.6);
}

Size usableImageSize(Size size) {
    constexpr double LongestSide = 400;
    const auto isUsable = [](double length) { return length > 0 && length <= LongestSide; };
    return isUsable(size.width) && isUsable(size.height) ? size : UsualImage;
}

// Whole logical pixels, so that the image's edges stay sharp at every whole resolution.
Size drawnImageSize(Size size, double barHeight) {
    const Size points = usableImageSize(size);
    const double scale = std::min(barHeight / MenuBarHeight, TallestImage * barHeight / points.height);
    return {std::max(1.0, std::round(points.width * scale)),
            std::max(1.0, std::round(points.height * scale))};
}

std::vector<StatusItemPlace> placeStatusItems(const Rect& bar, double leadingLimit, double trailing,
                                              const std::vector<StatusItemPicture>& items) {
    std::vector<StatusItemPlace> places(items.size(), {Rect::null(), Rect::null()});
    const double padding = std::round(bar.height() * StatusItemPadding);
    double x = std::floor(trailing);
    for (std::size_t index = items.size(); index-- > 0;) {
        const Size image = drawnImageSize(items[index].imageSize, bar.height());
        const double left = x - image.width - 2 * padding;
        if (left < leadingLimit) {
            break;
        }
        places[index].slot = {left, bar.minY(), x - left, bar.height()};
        places[index].image = {left + padding, std::round(bar.minY() + (bar.height() - image.height) / 2),
                               image.width, image.height};
        x = left;
    }
    return places;
}

double leadingEdgeOf(const std::vector<StatusItemPlace>& items, double otherwise) {
    for (const StatusItemPlace& item : items) {
        if (!item.slot.isNull()) {
            return item.slot.minX();
        }
    }
    return otherwise;
}

} // namespace

Rect menuBarArea(const DisplayPlace& place, double scale) {
    const double height = std::round(std::min(
        std::clamp(MenuBarHeight * scale, SmallestHeight, MenuBarHeight), place.screen.height() * 0.12));
    return {place.screen.minX(), place.screen.minY(), place.screen.width(), height};
}

MenuBarLayout menuBarLayout(TextMeasure& measure, const DisplayPlace& place, double scale,
                            const DeskPicture& picture) {
    MenuBarLayout layout;
    layout.area = menuBarArea(place, scale);
    const Rect& bar = layout.area;
    const double height = bar.height();
    const double middle = bar.minY() + height / 2;
    layout.markRadius = height * 0.18;
    layout.mark = {bar.minX() + edgeMargin(place, height) + layout.markRadius, middle};
    layout.clock = {bar.maxX() - edgeMargin(place, height), middle};
    layout.isLegible = height >= SmallestLegibleHeight;
    if (!layout.isLegible) {
        layout.statusItems.assign(picture.statusItems.size(), {Rect::null(), Rect::null()});
        return layout;
    }

    const double leading = layout.mark.x + layout.markRadius + height * 0.12;
    const double clockLeft = layout.clock.x - measure.width(picture.clock, clockStyle(bar));
    const double itemsTrailing = clockLeft - height * 0.2;
    layout.statusItems = placeStatusItems(bar, leading, itemsTrailing, picture.statusItems);

    const double titlesLimit = leadingEdgeOf(layout.statusItems, itemsTrailing);
    double x = leading;
    for (std::size_t index = 0; index < picture.mainMenuTitles.size(); ++index) {
        const double width = measure.width(picture.mainMenuTitles[index], menuBarTitleStyle(layout, index)) +
                             2 * TitlePadding * height;
        if (x + width > titlesLimit) {
            break;
        }
        layout.titles.emplace_back(x, bar.minY(), width, height);
        x += width;
    }
    return layout;
}

Rect anchorSlot(const MenuBarLayout& layout, const MenuAnchor& anchor) {
    if (const auto* const item = std::get_if<StatusItemAnchor>(&anchor)) {
        return item->item < layout.statusItems.size() ? layout.statusItems[item->item].slot : Rect::null();
    }
    const std::size_t title = std::get<MainMenuTitleAnchor>(anchor).title;
    return title < layout.titles.size() ? layout.titles[title] : Rect::null();
}

TextStyle menuBarTitleStyle(const MenuBarLayout& layout, std::size_t title) {
    return {.size = layout.area.height() * TextSize,
            .weight = title == 0 ? FontWeight::semibold : FontWeight::medium,
            .alignment = TextAlignment::center};
}

TextStyle clockStyle(const Rect& menuBar) {
    return {.size = menuBar.height() * TextSize,
            .weight = FontWeight::medium,
            .alignment = TextAlignment::trailing,
            .tabularNumbers = true,
            .maximumWidth = menuBar.width() * 0.4};
}

} // namespace kestrune::desk
