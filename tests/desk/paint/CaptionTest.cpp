// The names of the displays below their housings.

#include "desk/paint/desk/DisplayPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "tests/desk/paint/PaintedPicture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <vector>

namespace kestrune::desk {
namespace {

std::optional<CaptionPlace> captionOf(const DeskPicture& picture, std::size_t display) {
    const std::optional<Surface> surface = Surface::create({10, 10}, 1);
    TextPainter text{surface->context()};
    const DeskLayout layout = DeskLayout::of(picture, TestWindow);
    return captionPlace(text, *layout.place(display), picture.displays[display], layout.stage());
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
        EXPECT_TRUE(isPinColored(painted.at({centerOf(*caption->badge).x, caption->badge->minY() + 3})));
        const auto other = captionOf(picture, 1 - pinned);
        ASSERT_TRUE(other);
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
            EXPECT_GE(caption->name.minX(), stage.minX()) << cut;
            EXPECT_GE(caption->name.width(), whole->name.width() * 0.9) << cut;
            EXPECT_LE(caption->name.maxY(), stage.maxY()) << cut;
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
    for (const double width : {1512.0, 900.0, 600.0, 400.0, 240.0, 30.0}) {
        picture.displays[0].bounds = {1512 - width, 0, width, 982};
        const auto caption = captionOf(picture, 0);
        const Rect housing = DeskLayout::of(picture, TestWindow).place(0)->housing;
        for (const auto& part : caption
                                    ? std::vector{std::optional(caption->name), caption->size, caption->badge}
                                    : std::vector<std::optional<Rect>>()) {
            EXPECT_TRUE(!part || part->minX() >= housing.minX() - 1e-6) << width;
            EXPECT_TRUE(!part || part->maxX() <= housing.maxX() + 1e-6) << width;
            EXPECT_TRUE(!part || part->minY() >= housing.maxY()) << width;
        }
        captions += caption ? 1 : 0;
    }
    EXPECT_GE(captions, 3);
    EXPECT_LE(captions, 5) << "a very narrow display has none";
}

} // namespace
} // namespace kestrune::desk
