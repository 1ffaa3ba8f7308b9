#include "desk/paint/toolkit/CachedSprite.h"

#include "tests/desk/paint/PaintedPicture.h"

#include <gtest/gtest.h>

#include <vector>

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

    int alphaAt(int x, int y) const {
        return std::to_integer<int>(
            surface_->pixels()[static_cast<std::size_t>(y * surface_->stride() + x * 4 + 3)]);
    }

    CachedSprite<int> sprite_;
    int paintings_ = 0;
    std::optional<Surface> surface_ = Surface::create({40, 40}, 1);
    std::optional<Surface> fine_ = Surface::create({40, 40}, 2);
};

TEST_F(Sprite, IsPaintedAnewOnlyForAnotherSubjectGridOrResolution) {
    const Rect extent{8, 8, 8, 8};
    paint(surface_->context(), extent, 1);
    paint(surface_->context(), extent, 1);
    EXPECT_EQ(paintings_, 1);
    paint(surface_->context(), extent, 2);
    EXPECT_EQ(paintings_, 2);
    paint(surface_->context(), {8.5, 8, 8, 8}, 2);
    EXPECT_EQ(paintings_, 3);
    paint(fine_->context(), {8.5, 8, 8, 8}, 2);
    EXPECT_EQ(paintings_, 4);
}

TEST_F(Sprite, LeavesWhatItDoesNotCoverAsItWas) {
    paint(surface_->context(), {7.3, 7.6, 12.2, 12.1}, 1);
    EXPECT_EQ(alphaAt(10, 10), 255);
    EXPECT_EQ(alphaAt(13, 13), 255);
    EXPECT_EQ(alphaAt(9, 12), 0);
    EXPECT_EQ(alphaAt(14, 12), 0);
}

TEST_F(Sprite, IsMovedByWholePixelsAsItIs) {
    paint(surface_->context(), {8, 8, 8, 8}, 1);
    cairo_translate(surface_->context(), 20, 10);
    paint(surface_->context(), {8, 8, 8, 8}, 1);
    EXPECT_EQ(paintings_, 1);
    EXPECT_EQ(alphaAt(31, 21), 255);
    EXPECT_EQ(alphaAt(29, 21), 0);
    cairo_translate(surface_->context(), 0.5, 0);
    paint(surface_->context(), {8, 8, 8, 8}, 1);
    EXPECT_EQ(paintings_, 2);
}

TEST_F(Sprite, IsNotKeptWhereItWouldBeVeryLarge) {
    cairo_translate(surface_->context(), -9990, -9990);
    cairo_scale(surface_->context(), 1000, 1000);
    for (const int paintings : {1, 2}) {
        paint(surface_->context(), {10, 10, 8, 8}, 1);
        EXPECT_EQ(paintings_, paintings);
        EXPECT_EQ(alphaAt(12, 12), 255);
        EXPECT_EQ(alphaAt(8, 12), 0);
    }
    EXPECT_EQ(cairo_status(surface_->context()), CAIRO_STATUS_SUCCESS);
}

TEST_F(Sprite, IsNotKeptWhereNextToNothingOfItIsSeen) {
    cairo_rectangle(surface_->context(), 8, 8, 4, 3);
    cairo_clip(surface_->context());
    for (const int paintings : {1, 2}) {
        paint(surface_->context(), {8, 8, 10, 10}, 1);
        EXPECT_EQ(paintings_, paintings);
    }
    EXPECT_EQ(alphaAt(10, 10), 255);
    EXPECT_EQ(alphaAt(12, 10), 0);
    paint(surface_->context(), {8, 8, 9, 9}, 1);
    paint(surface_->context(), {8, 8, 9, 9}, 1);
    EXPECT_EQ(paintings_, 3) << "an eighth is enough";
}

TEST_F(Sprite, IsWhatIsPaintedWithoutItUnderATransformation) {
    cairo_translate(surface_->context(), 3.3, 4.6);
    cairo_scale(surface_->context(), 0.37, 0.37);
    paint(surface_->context(), {8, 8, 8, 8}, 1);
    const auto withSprite = std::vector(surface_->pixels().begin(), surface_->pixels().end());
    cairo_t* const context = surface_->context();
    cairo_set_operator(context, CAIRO_OPERATOR_CLEAR);
    cairo_paint(context);
    cairo_set_operator(context, CAIRO_OPERATOR_OVER);
    cairo_set_source_rgb(context, 1, 0, 0);
    cairo_rectangle(context, 10, 10, 4, 4);
    cairo_fill(context);
    EXPECT_EQ(withSprite, std::vector(surface_->pixels().begin(), surface_->pixels().end()));
}

} // namespace
} // namespace kestrune::desk
