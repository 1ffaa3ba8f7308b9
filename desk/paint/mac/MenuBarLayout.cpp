#include "desk/paint/mac/MenuBarLayout.h"

#include "desk/paint/mac/Measures.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace kestrune::desk {
namespace {

constexpr double EdgeMargin = 14;
constexpr double TitlePadding = 9;
constexpr double StatusItemPadding = 7;
constexpr double TallestImage = 22;
constexpr double GapBeforeClock = 6;
constexpr double WidestClock = 0.4; // of the bar

constexpr Size UsualImage{18, 18};

Size imageSize(Size size) {
    constexpr double LongestSide = 400;
    const auto isUsable = [](double length) { return length > 0 && length <= LongestSide; };
    const Size usable = isUsable(size.width) && isUsable(size.height) ? size : UsualImage;
    const double scale = std::min(1.0, TallestImage / usable.height);
    return {usable.width * scale, usable.height * scale};
}

std::vector<StatusItemPlace> placeStatusItems(const Rect& bar, double leadingLimit, double trailing,
                                              const std::vector<StatusItemPicture>& items) {
    std::vector<StatusItemPlace> places(items.size(), {Rect::null(), Rect::null()});
    double x = std::floor(trailing);
    for (std::size_t index = items.size(); index-- > 0;) {
        const Size image = imageSize(items[index].imageSize);
        const double left = std::floor(x - image.width - 2 * StatusItemPadding);
        if (left < leadingLimit) {
            break;
        }
        places[index].slot = {left, bar.minY(), x - left, bar.height()};
        places[index].image = {left + StatusItemPadding,
                               std::round(bar.minY() + (bar.height() - image.height) / 2), image.width,
                               image.height};
        x = left;
    }
    return places;
}

double leadingEdgeOf(const std::vector<StatusItemPlace>& items, double otherwise) {
    const auto first = std::find_if(items.begin(), items.end(),
                                    [](const StatusItemPlace& item) { return !item.slot.isNull(); });
    return first != items.end() ? first->slot.minX() : otherwise;
}

} // namespace

Rect menuBarArea(const Rect& display) {
    return {display.minX(), display.minY(), display.width(), std::min(MenuBarHeight, display.height())};
}

MenuBarLayout menuBarLayout(TextMeasure& measure, const Rect& display, const DeskPicture& picture) {
    MenuBarLayout layout;
    layout.area = menuBarArea(display);
    const Rect& bar = layout.area;
    const double middle = bar.minY() + bar.height() / 2;
    layout.mark = {bar.minX() + EdgeMargin + MenuBarMarkRadius, middle};
    layout.clock = {bar.maxX() - EdgeMargin, middle};
    layout.clockWidth = std::min(measure.width(picture.clock, clockStyle()), bar.width() * WidestClock);

    const double leading = layout.mark.x + MenuBarMarkRadius + TitlePadding / 2;
    const double itemsTrailing = layout.clock.x - layout.clockWidth - GapBeforeClock;
    layout.statusItems = placeStatusItems(bar, leading, itemsTrailing, picture.statusItems);

    const double titlesLimit = leadingEdgeOf(layout.statusItems, itemsTrailing);
    double x = leading;
    for (const std::string& title : menuBarTitles(picture)) {
        const double width =
            std::ceil(measure.width(title, menuBarTitleStyle(layout.titles.size()))) + 2 * TitlePadding;
        if (x + width > titlesLimit) {
            break;
        }
        layout.titles.emplace_back(x, bar.minY(), width, bar.height());
        x += width;
    }
    layout.openableTitles = std::min(layout.titles.size(), picture.mainMenuTitles.size());
    return layout;
}

const std::vector<std::string>& menuBarTitles(const DeskPicture& picture) {
    return picture.mainMenuTitles.empty() ? picture.otherMenuTitles : picture.mainMenuTitles;
}

Rect anchorSlot(const MenuBarLayout& layout, const MenuAnchor& anchor) {
    if (const auto* const item = std::get_if<StatusItemAnchor>(&anchor)) {
        return item->item < layout.statusItems.size() ? layout.statusItems[item->item].slot : Rect::null();
    }
    const std::size_t title = std::get<MainMenuTitleAnchor>(anchor).title;
    return title < layout.openableTitles ? layout.titles[title] : Rect::null();
}

TextStyle menuBarTitleStyle(std::size_t title) {
    return {.size = SystemTextSize,
            .weight = title == 0 ? FontWeight::bold : FontWeight::medium,
            .alignment = TextAlignment::center};
}

TextStyle clockStyle() {
    return {.size = SystemTextSize,
            .weight = FontWeight::medium,
            .alignment = TextAlignment::trailing,
            .tabularNumbers = true};
}

} // namespace kestrune::desk
