#include "desk/paint/toolkit/Surface.h"

#include "desk/paint/sheets/Sheet.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/base/UnusualNumbers.h"
#include "tests/desk/paint/PaintedPicture.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <limits>

namespace kestrune::desk {
namespace {

TEST(Surface, HasThePixelsOfItsWindowAndScale) {
    const std::optional<Surface> surface = Surface::create({300, 200.5}, 2);
    ASSERT_TRUE(surface);
    EXPECT_EQ(surface->pixelWidth(), 600);
    EXPECT_EQ(surface->pixelHeight(), 401);
    EXPECT_GE(surface->stride(), 600 * 4);
    EXPECT_EQ(surface->pixels().size(), static_cast<std::size_t>(surface->stride()) * 401);
}

TEST(Surface, IsNotMadeInAnImpossibleSize) {
    EXPECT_FALSE(Surface::create({0, 100}, 1));
    EXPECT_FALSE(Surface::create({100, -1}, 1));
    EXPECT_FALSE(Surface::create({-100, -100}, -1));
    EXPECT_FALSE(Surface::create({100, 100}, 0));
    EXPECT_FALSE(Surface::create({20000, 100}, 1));
    EXPECT_FALSE(Surface::create({NotANumber, 100}, 1));
    EXPECT_FALSE(Surface::create({100, 100}, std::numeric_limits<double>::infinity()));
}

TEST(Surface, CoversEveryPixel) {
    const PaintedPicture painted{twoDisplays(), {333, 241.5}, 1.5};
    const auto alpha = [&](int x, int y) { return painted.valueAt(x, y) >> 24; };
    EXPECT_EQ(alpha(0, 0), 255U);
    EXPECT_EQ(alpha(painted.width() / 2, painted.height() / 2), 255U);
    EXPECT_EQ(alpha(painted.width() - 2, painted.height() - 2), 255U);
}

TEST(WrittenPicture, HasThePaintedPixels) {
    const TemporaryFolder folder;
    const std::string path = folder.path() / "picture.png";
    ASSERT_FALSE(writePicture(path, pictureOfDesk(twoDisplays(), TestWindow), 1));
    const SurfaceHandle read{cairo_image_surface_create_from_png(path.c_str())};
    ASSERT_EQ(cairo_surface_status(read.get()), CAIRO_STATUS_SUCCESS);
    const PaintedPicture painted{twoDisplays()};
    ASSERT_EQ(cairo_image_surface_get_width(read.get()), painted.width());
    ASSERT_EQ(cairo_image_surface_get_height(read.get()), painted.height());
    for (int row = 0; row < painted.height(); ++row) {
        const unsigned char* const readRow =
            cairo_image_surface_get_data(read.get()) + row * cairo_image_surface_get_stride(read.get());
        for (int column = 0; column < painted.width(); ++column) {
            std::uint32_t value = 0;
            std::memcpy(&value, readRow + column * 4, sizeof value);
            // The file of an opaque picture may come back without an alpha channel.
            ASSERT_EQ(value & 0xFFFFFF, painted.valueAt(column, row) & 0xFFFFFF) << column << ", " << row;
        }
    }
}

TEST(WrittenPicture, TellsWhyItsFileCannotBeWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.path() / "no-such-folder/picture.png";
    const std::optional<PaintError> error = writePicture(path, pictureOfDesk(twoDisplays(), TestWindow), 1);
    ASSERT_TRUE(error);
    EXPECT_NE(error->message.find(path), std::string::npos);
    EXPECT_GT(error->message.size(), path.size() + 5);
}

TEST(WrittenPicture, HasNoImpossibleSize) {
    const TemporaryFolder folder;
    const std::string path = folder.path() / "impossible.png";
    EXPECT_TRUE(writePicture(path, pictureOfDesk(twoDisplays(), {0, 0}), 1));
    EXPECT_FALSE(std::filesystem::exists(path));
}

} // namespace
} // namespace kestrune::desk
