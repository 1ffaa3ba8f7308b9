#include "desk/paint/CachedSprite.h"

#include "tests/desk/paint/PaintedPicture.h"

#include <gtest/gtest.h>

namespace kestrune::desk {
namespace {

class Sprite : public testing::Test {
protected:
    void paint(cairo_t* context, const Rect& extent, int subject) {
        sprite_.paint(context, extent, subject, [&](cairo_t* own) {
            ++paintings_;
            cairo_set_source_rgb(own, 1, 0, 0);
            cairo_rectangle(own, 10, 10, 4, 4);
            cairo_fill(own);
        });
    }

    CachedSprite<int> sprite_;
    int paintings_ = 0;
    std::optional<Surface> surface_ = Surface::create({40, 40}, 1);
    std::optional<Surface> fine_ = Surface::create({40, 40}, 2);
};

TEST_F(Sprite, IsPaintedAnewOnlyForAnotherSubjectPlaceOrResolution) {
    const Rect extent{8, 8, 8, 8};
    paint(surface_->context(), extent, 1);
    paint(surface_->context(), extent, 1);
    EXPECT_EQ(paintings_, 1);
    paint(surface_->context(), extent, 2);
    EXPECT_EQ(paintings_, 2);
    paint(surface_->context(), {9, 8, 8, 8}, 2);
    EXPECT_EQ(paintings_, 3);
    paint(fine_->context(), {9, 8, 8, 8}, 2);
    EXPECT_EQ(paintings_, 4);
    sprite_.forget();
    paint(fine_->context(), {9, 8, 8, 8}, 2);
    EXPECT_EQ(paintings_, 5);
}

TEST_F(Sprite, LeavesWhatItDoesNotCoverAsItWas) {
    paint(surface_->context(), {7.3, 7.6, 12.2, 12.1}, 1);
    const auto pixels = surface_->pixels();
    const auto alpha = [&](int x, int y) {
        return std::to_integer<int>(pixels[static_cast<std::size_t>(y * surface_->stride() + x * 4 + 3)]);
    };
    EXPECT_EQ(alpha(10, 10), 255);
    EXPECT_EQ(alpha(13, 13), 255);
    EXPECT_EQ(alpha(9, 12), 0);
    EXPECT_EQ(alpha(14, 12), 0);
}

TEST(OnDevicePixels, EnlargesToWholePixelsOfTheResolution) {
    EXPECT_EQ(onDevicePixels({1.3, 2.6, 2, 2}, 1), (Rect{1, 2, 3, 3}));
    EXPECT_EQ(onDevicePixels({1.3, 2.6, 2, 2}, 2), (Rect{1, 2.5, 2.5, 2.5}));
    EXPECT_EQ(onDevicePixels({1, 2, 3, 4}, 2), (Rect{1, 2, 3, 4}));
}

} // namespace
} // namespace kestrune::desk
