// The names of the displays below their housings.

#include "desk/paint/desk/Chrome.h"
#include "desk/paint/toolkit/RectMath.h"
#include "tests/desk/paint/PaintedPicture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <variant>

namespace kestrune::desk {
namespace {

struct Caption {
    Rect all;
    std::optional<Rect> name;
    std::optional<Rect> size;
    std::optional<Rect> badge; // its pin
};

std::optional<Caption> captionOf(const DeskPicture& picture, std::size_t display) {
    const DeskLayout layout = DeskLayout::of(picture, TestWindow);
    const auto placed =
        captionOf(PangoMeasurer(), *layout.place(display), picture.displays[display], layout.stage());
    if (!placed) {
        return std::nullopt;
    }
    Caption caption{{placed->origin.x, placed->origin.y, placed->scene.size.width, placed->scene.size.height},
                    {},
                    {},
                    {}};
    for (const ui::Element& element : placed->scene.elements) {
        if (const auto* const text = std::get_if<ui::TextElement>(&element)) {
            const Rect frame = movedBy(text->frame, placed->origin);
            if (text->text.string() == picture.displays[display].name) {
                caption.name = frame;
            } else if (text->text.string().find(" × ") != std::string::npos) {
                caption.size = frame;
            }
        } else if (const auto* const pin = std::get_if<ui::SymbolElement>(&element)) {
            caption.badge = movedBy(pin->frame, placed->origin);
        }
    }
    return caption;
}

bool isPinColored(Pixel pixel) {
    const Color accent = paletteFor(false).accent;
    return isNear(pixel, static_cast<int>(std::lround(accent.red * 255)),
                  static_cast<int>(std::lround(accent.green * 255)),
                  static_cast<int>(std::lround(accent.blue * 255)), 2);
}

TEST(Caption, HasTheBadgeOfThePinnedDisplayOnly) {
    DeskPicture picture = twoDisplays();
    for (const std::size_t pinned : {0U, 1U}) {
        picture.displays[0].pinned = pinned == 0;
        picture.displays[1].pinned = pinned == 1;
        const PaintedPicture painted{picture};
        const auto caption = captionOf(picture, pinned);
        ASSERT_TRUE(caption && caption->badge);
        EXPECT_TRUE(isPinColored(painted.at({centerOf(*caption->badge).x, caption->all.minY() + 3})));
        const auto other = captionOf(picture, 1 - pinned);
        ASSERT_TRUE(other);
        EXPECT_TRUE(other->name && other->size);
        EXPECT_FALSE(other->badge);
        const Rect housing = DeskLayout::of(picture, TestWindow).place(1 - pinned)->housing;
        EXPECT_EQ(painted.count({housing.minX(), housing.maxY(), housing.width(), 30}, isPinColored), 0);
    }
}

TEST(Caption, IsWhereTheHousingIsSeen) {
    DeskPicture picture = twoDisplays();
    const Rect first = picture.displays[0].bounds;
    const auto stage = DeskLayout::of(picture, TestWindow).stage();
    const auto whole = captionOf(picture, 0);
    ASSERT_TRUE(whole);
    // Ever less of the display, cut at its left edge.
    bool wasSeen = true;
    for (double cut = 0; cut < 2 * first.width(); cut += 40) {
        picture.shown = Rect{first.minX() + cut, first.maxY() - 300, 500, 360};
        const auto caption = captionOf(picture, 0);
        EXPECT_LE(caption.has_value(), wasSeen) << "it does not come back";
        wasSeen = caption.has_value();
        if (caption) {
            ASSERT_TRUE(caption->name) << cut;
            EXPECT_GE(caption->name->minX(), stage.minX()) << cut;
            EXPECT_GE(caption->name->width(), whole->name->width() * 0.9) << cut;
            EXPECT_LE(caption->name->maxY(), stage.maxY()) << cut;
        }
    }
    EXPECT_FALSE(wasSeen) << "there is no room for it";
    picture.shown = Rect{first.minX(), first.minY(), 400, 300};
    EXPECT_FALSE(captionOf(picture, 0)) << "the lower edge is not seen";
}

TEST(Caption, IsBelowTheHousingWhateverTheNameAndSize) {
    DeskPicture picture = twoDisplays();
    picture.displays[0].name =
        "A display with a name that is much longer than anybody would ever want to read";
    int captions = 0;
    int names = 0;
    for (const double width : {1512.0, 900.0, 600.0, 400.0, 240.0, 30.0}) {
        picture.displays[0].bounds = {1512 - width, 0, width, 982};
        const auto caption = captionOf(picture, 0);
        const Rect housing = DeskLayout::of(picture, TestWindow).place(0)->housing;
        if (caption) {
            EXPECT_GE(caption->all.minX(), housing.minX()) << width;
            EXPECT_LE(caption->all.maxX(), housing.maxX()) << width;
            EXPECT_GE(caption->all.minY(), housing.maxY()) << width;
            EXPECT_TRUE(caption->name || caption->size) << width;
        }
        captions += caption ? 1 : 0;
        names += caption && caption->name ? 1 : 0;
    }
    EXPECT_GE(names, 1);
    EXPECT_LT(names, captions) << "where it has no room the name goes";
    EXPECT_GE(captions, 3);
    EXPECT_LE(captions, 5) << "a very narrow display has none";
}

} // namespace
} // namespace kestrune::desk
