#include "desk/paint/MenuBarPainter.h"

#include "desk/paint/Shapes.h"

namespace kestrune::desk {
namespace {

// Bars in place of the titles of an application that is not part of the picture.
void paintTitlesOfSomeApplication(const Canvas& canvas, const MenuBarLayout& layout) {
    const Rect& bar = layout.area;
    const double height = bar.height();
    double x = layout.mark.x + layout.markRadius + height * 0.5;
    for (const double width : {1.9, 1.2, 1.4, 1.1}) {
        const Rect title{x, layout.mark.y - height * 0.09, width * height, height * 0.18};
        if (title.maxX() > bar.minX() + bar.width() * 0.5) {
            break;
        }
        fillRoundedRectangle(canvas.context, title, height, canvas.palette.menuBarText.withAlpha(0.42));
        x = title.maxX() + height * 0.55;
    }
}

void paintTitles(const Canvas& canvas, const MenuBarLayout& layout, const DeskPicture& picture) {
    for (std::size_t index = 0; index < layout.titles.size(); ++index) {
        const Rect& slot = layout.titles[index];
        TextStyle style = menuBarTitleStyle(layout, index);
        style.color = canvas.palette.menuBarText;
        canvas.text.paint(picture.mainMenuTitles[index],
                          {slot.minX() + slot.width() / 2, slot.minY() + slot.height() / 2}, style);
    }
}

void paintStatusItems(const Canvas& canvas, ImageStore& images, const MenuBarLayout& layout,
                      const DeskPicture& picture) {
    for (std::size_t index = 0; index < layout.statusItems.size(); ++index) {
        const StatusItemPicture& item = picture.statusItems[index];
        const Rect& area = layout.statusItems[index].image;
        cairo_surface_t* const image =
            item.imagePath && !area.isNull() ? images.image(*item.imagePath) : nullptr;
        if (!image) {
            continue;
        }
        if (item.isTemplate) {
            paintTemplateImage(canvas.context, image, area, canvas.palette.menuBarText);
        } else {
            paintImage(canvas.context, image, area);
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

void paintMenuBar(const Canvas& canvas, ImageStore& images, const DisplayPlace& place,
                  const MenuBarLayout& layout, const DeskPicture& picture, std::size_t display) {
    const Rect& bar = layout.area;
    if (bar.height() < 3) {
        return;
    }
    const SavedState saved{canvas.context};
    addRoundedRectangle(canvas.context, place.screen, place.screenCornerRadius);
    cairo_clip(canvas.context);
    fillRoundedRectangle(canvas.context, bar, 0, canvas.palette.menuBar);
    if (picture.menu && picture.menu->display == display) {
        paintHighlight(canvas, anchorSlot(layout, picture.menu->anchor));
    }
    fillCircle(canvas.context, layout.mark, layout.markRadius, canvas.palette.menuBarText);
    if (picture.mainMenuTitles.empty()) {
        paintTitlesOfSomeApplication(canvas, layout);
    } else {
        paintTitles(canvas, layout, picture);
    }
    paintStatusItems(canvas, images, layout, picture);
    if (layout.isLegible) {
        TextStyle style = clockStyle(bar);
        style.color = canvas.palette.menuBarText;
        canvas.text.paint(picture.clock, layout.clock, style);
    }
}

} // namespace kestrune::desk
