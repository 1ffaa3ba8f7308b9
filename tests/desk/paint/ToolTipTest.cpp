#include "desk/paint/mac/Menu.h"
#include "tests/desk/paint/SystemPictures.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

std::optional<Rect> toolTipOf(const DeskPicture& picture) {
    TextPainter measure;
    return toolTipArea(measure, picture);
}

TEST(ToolTip, StandsBelowItsStatusItemOnItsDisplay) {
    DeskPicture picture = withStatusItem();
    for (const char* const text :
         {"Kestrune", "A tool tip that has so much to tell that it cannot be shown"}) {
        for (const std::size_t display : {0U, 1U}) {
            picture.toolTip = ToolTipPicture{display, 0, text};
            const Rect slot = menuBarOf(picture, display).statusItems[0].slot;
            const std::optional<Rect> area = toolTipOf(picture);
            ASSERT_TRUE(area);
            EXPECT_GT(area->minY(), slot.maxY());
            EXPECT_TRUE(encloses(picture.displays[display].bounds, *area));
        }
    }
}

TEST(ToolTip, IsAbsentWithoutTextOrStatusItem) {
    DeskPicture picture = withStatusItem();
    picture.toolTip = ToolTipPicture{0, 0, ""};
    EXPECT_FALSE(toolTipOf(picture));
    picture.toolTip = ToolTipPicture{0, 1, "Kestrune"};
    EXPECT_FALSE(toolTipOf(picture));
    picture.toolTip = ToolTipPicture{4, 0, "Kestrune"};
    EXPECT_FALSE(toolTipOf(picture));
}

} // namespace
} // namespace kestrune::desk
