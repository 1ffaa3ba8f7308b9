#include "desk/paint/mac/MenuBarPainter.h"

#include "desk/paint/mac/Measures.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"

namespace kestrune::desk {
namespace {

void paintTitles(const Canvas& canvas, const MenuBarLayout& layout, const DeskPicture& picture) {
    for (std::size_t index = 0; index < layout.titles.size(); ++index) {
        TextStyle style = menuBarTitleStyle(index);
        style.color = canvas.palette.menuBarText;
        canvas.text.paint(menuBarTitles(picture)[index], centerOf(layout.titles[index]), style);
    }
}

void paintStatusItems(const Canvas& canvas, const MenuBarLayout& layout, const DeskPicture& picture) {
    for (std::size_t index = 0; index < layout.statusItems.size(); ++index) {
        const StatusItemPicture& item = picture.statusItems[index];
        const Rect& area = layout.statusItems[index].image;
        cairo_surface_t* const image =
            item.imagePath && !area.isNull() ? canvas.images.image(*item.imagePath) : nullptr;
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

void paintMenuBar(const Canvas& canvas, const MenuBarLayout& layout, const DeskPicture& picture,
                  std::size_t display) {
    fillRoundedRectangle(canvas.context, layout.area, 0, canvas.palette.menuBar);
    if (picture.menu && picture.menu->display == display) {
        paintHighlight(canvas, anchorSlot(layout, picture.menu->anchor));
    }
    fillCircle(canvas.context, layout.mark, MenuBarMarkRadius, canvas.palette.menuBarText);
    paintTitles(canvas, layout, picture);
    paintStatusItems(canvas, layout, picture);
    TextStyle style = clockStyle();
    style.color = canvas.palette.menuBarText;
    style.maximumWidth = layout.clockWidth + 1; // Against rounding in the measured width.
    canvas.text.paint(picture.clock, layout.clock, style);
}

} // namespace kestrune::desk
