#include "desk/paint/mac/MenuBar.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <cmath>
#include <optional>
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

// The colour is left to the painting.
TextStyle menuBarTitleStyle(std::size_t title) {
    return {.size = SystemTextSize,
            .weight = title == 0 ? FontWeight::bold : FontWeight::medium,
            .alignment = TextAlignment::center};
}

constexpr TextStyle ClockText{.size = SystemTextSize,
                              .weight = FontWeight::medium,
                              .alignment = TextAlignment::trailing,
                              .tabularNumbers = true};

Size imageSize(Size size) {
    constexpr double LongestSide = 400;
    const auto isUsable = [](double length) { return length > 0 && length <= LongestSide; };
    const Size usable = isUsable(size.width) && isUsable(size.height) ? size : UsualImage;
    const double scale = std::min(1.0, TallestImage / usable.height);
    return {usable.width * scale, usable.height * scale};
}

// From the trailing end; gives the leading edge of the first one that has room.
double placeStatusItems(MenuBarLayout& layout, double leadingLimit, double trailing,
                        const std::vector<StatusItemPicture>& items) {
    const Rect& bar = layout.area;
    layout.statusItems.assign(items.size(), {Rect::null(), Rect::null()});
    double x = std::floor(trailing);
    for (std::size_t index = items.size(); index-- > 0;) {
        const Size image = imageSize(items[index].imageSize);
        const double left = std::floor(x - image.width - 2 * StatusItemPadding);
        if (left < leadingLimit) {
            break;
        }
        StatusItemPlace& place = layout.statusItems[index];
        place.slot = {left, bar.minY(), x - left, bar.height()};
        place.image = {left + StatusItemPadding, std::round(bar.minY() + (bar.height() - image.height) / 2),
                       image.width, image.height};
        x = left;
    }
    return x;
}

void paintTitles(const Canvas& canvas, const MenuBarLayout& layout, const MacPicture& picture) {
    for (std::size_t index = 0; index < layout.titles.size(); ++index) {
        TextStyle style = menuBarTitleStyle(index);
        style.color = canvas.palette.menuBarText;
        canvas.text.paint(menuBarTitles(picture)[index], centerOf(layout.titles[index]), style);
    }
}

void paintStatusItems(const Canvas& canvas, const MenuBarLayout& layout, const MacPicture& picture) {
    for (std::size_t index = 0; index < layout.statusItems.size(); ++index) {
        const StatusItemPicture& item = picture.statusItems[index];
        const Rect& area = layout.statusItems[index].image;
        if (cairo_surface_t* const image =
                item.imagePath && !area.isNull() ? canvas.images.image(*item.imagePath) : nullptr) {
            paintImage(canvas.context, image, area,
                       item.isTemplate ? std::optional(canvas.palette.menuBarText) : std::nullopt);
        }
    }
}

void paintHighlight(const Canvas& canvas, const Rect& slot) {
    if (!slot.isNull()) {
        const Rect area{slot.minX(), slot.minY() + 1, slot.width(), slot.height() - 2};
        fillRoundedRectangle(canvas.context, area, 4, canvas.palette.system.menuBarHighlight);
    }
}

} // namespace

MenuBarLayout menuBarLayout(TextPainter& measure, const Rect& display, const MacPicture& picture) {
    MenuBarLayout layout;
    layout.area = {display.minX(), display.minY(), display.width(),
                   std::min(MenuBarHeight, display.height())};
    const Rect& bar = layout.area;
    const double middle = bar.minY() + bar.height() / 2;
    layout.mark = {bar.minX() + EdgeMargin + MenuBarMarkRadius, middle};
    layout.clock = {bar.maxX() - EdgeMargin, middle};
    layout.clockWidth = std::min(measure.width(picture.clock, ClockText), bar.width() * WidestClock);

    const double leading = layout.mark.x + MenuBarMarkRadius + TitlePadding / 2;
    const double itemsTrailing = layout.clock.x - layout.clockWidth - GapBeforeClock;
    const double titlesLimit = placeStatusItems(layout, leading, itemsTrailing, picture.statusItems);
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

const std::vector<std::string>& menuBarTitles(const MacPicture& picture) {
    return picture.mainMenuTitles.empty() ? picture.otherMenuTitles : picture.mainMenuTitles;
}

Rect anchorSlot(const MenuBarLayout& layout, const MenuAnchor& anchor) {
    if (const auto* const item = std::get_if<StatusItemAnchor>(&anchor)) {
        return item->item < layout.statusItems.size() ? layout.statusItems[item->item].slot : Rect::null();
    }
    const std::size_t title = std::get<MainMenuTitleAnchor>(anchor).title;
    return title < layout.openableTitles ? layout.titles[title] : Rect::null();
}

void paintMenuBar(const Canvas& canvas, const MenuBarLayout& layout, const MacPicture& picture,
                  std::size_t display) {
    fillRoundedRectangle(canvas.context, layout.area, 0, canvas.palette.menuBar);
    if (picture.menu && picture.menu->display == display) {
        paintHighlight(canvas, anchorSlot(layout, picture.menu->anchor));
    }
    fillCircle(canvas.context, layout.mark, MenuBarMarkRadius, canvas.palette.menuBarText);
    paintTitles(canvas, layout, picture);
    paintStatusItems(canvas, layout, picture);
    TextStyle style = ClockText;
    style.color = canvas.palette.menuBarText;
    style.maximumWidth = layout.clockWidth + 1; // Against rounding in the measured width.
    canvas.text.paint(picture.clock, layout.clock, style);
}

} // namespace kestrune::desk
