#include "desk/paint/sheets/Sheet.h"

#include "tests/base/Overlap.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/desk/paint/PaintedCanvas.h"
#include "tests/desk/paint/WindowPictures.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kestrune::desk {
namespace {

Sheet sheetOf(std::size_t cells, std::size_t columns, double scale = 1) {
    Sheet sheet{"Windows", columns, scale, false, {}};
    for (std::size_t index = 0; index < cells; ++index) {
        WindowPicture window = windowWithControls();
        window.frame.size.height += 40.0 * static_cast<double>(index % 3);
        sheet.cells.push_back({"A window", pictureOfWindow(window, index % 2 == 1)});
    }
    return sheet;
}

TEST(Sheet, PlacesEveryPictureAndItsCaptionInARoomOfItsOwn) {
    for (const std::size_t columns : {0U, 1U, 3U, 20U}) {
        const Sheet sheet = sheetOf(7, columns, 0.5);
        const SheetLayout layout = layOut(sheet);
        ASSERT_EQ(layout.pictures.size(), 7U);
        ASSERT_EQ(layout.captions.size(), 7U);
        std::vector<Rect> all = layout.pictures;
        all.insert(all.end(), layout.captions.begin(), layout.captions.end());
        for (std::size_t one = 0; one < all.size(); ++one) {
            EXPECT_TRUE(encloses({0, 0, layout.size.width, layout.size.height}, all[one]));
            for (std::size_t other = one + 1; other < all.size(); ++other) {
                EXPECT_FALSE(overlap(all[one], all[other])) << one << " " << other;
            }
        }
        for (std::size_t cell = 0; cell < 7; ++cell) {
            const Size size = sheet.cells[cell].picture.size;
            EXPECT_NEAR(layout.pictures[cell].width(), size.width / 2, 1);
            EXPECT_NEAR(layout.pictures[cell].height(), size.height / 2, 1);
            EXPECT_EQ(layout.captions[cell].minY(), layout.pictures[cell].maxY());
        }
    }
}

TEST(Sheet, FillsRowAfterRow) {
    const SheetLayout layout = layOut(sheetOf(5, 3));
    EXPECT_EQ(layout.pictures[0].minY(), layout.pictures[2].minY());
    EXPECT_EQ(layout.pictures[0].minX(), layout.pictures[3].minX());
    EXPECT_GT(layout.pictures[3].minY(), layout.captions[2].maxY()) << "the highest of its row";
}

TEST(Sheet, HasCaptionsOfAsManyLinesAsTheyNeed) {
    Sheet sheet = sheetOf(6, 3);
    const SheetLayout before = layOut(sheet);
    EXPECT_GE(before.captionSize, before.size.width / 900 * 10.5) << "legible 900 pixels wide";
    sheet.cells[2].caption = "A window of which there is much more to say than there is room for in one line";
    const SheetLayout layout = layOut(sheet);
    EXPECT_GT(layout.captions[2].height(), 2 * before.captionSize);
    EXPECT_LE(layout.captions[2].width(), layout.pictures[2].width());
    EXPECT_GT(layout.pictures[4].minY(), before.pictures[4].minY());
    EXPECT_GE(layout.pictures[4].minY(), layout.captions[2].maxY());
}

TEST(Sheet, ShowsOfTheDeskWhatIsOnItsStage) {
    const DeskPicture desk = twoDisplays();
    const Picture whole = pictureOfDesk(desk, TestWindow);
    const Picture stage = pictureOfStage(desk, TestWindow);
    EXPECT_EQ(stage.size.width, whole.size.width);
    EXPECT_EQ(stage.size.height, DeskLayout::of(desk, TestWindow).stage().height());
}

TEST(Sheet, ShowsEachWindowInItsAppearance) {
    for (const double scale : {1.0, 0.5}) {
        const Picture sheet = pictureOfSheet(sheetOf(2, 2, scale));
        const SheetLayout layout = layOut(sheetOf(2, 2, scale));
        const PaintedCanvas painted{sheet.size, [&](const Canvas& canvas) { sheet.paint(canvas.context); }};
        const auto inCorner = [&](std::size_t cell) {
            const double inside = 52 * scale; // the window begins 40 points from the edge
            return painted.at({layout.pictures[cell].maxX() - inside, layout.pictures[cell].maxY() - inside});
        };
        EXPECT_TRUE(isNear(inCorner(0), 0xEC, 0xEC, 0xEC, 2)) << scale;
        EXPECT_TRUE(isNear(inCorner(1), 0x32, 0x32, 0x32, 2)) << scale;
    }
}

TEST(Sheet, IsWrittenToAFileOrSaysWhyNot) {
    const TemporaryFolder folder;
    const std::string path = folder.path() / "sheet.png";
    EXPECT_FALSE(writePicture(path, pictureOfSheet(sheetOf(2, 2)), 1));
    EXPECT_GT(std::filesystem::file_size(path), 10'000U);
    const Picture window = pictureOfWindow(windowWithControls(), true);
    EXPECT_FALSE(writePicture(path, window, 2));
    EXPECT_GT(std::filesystem::file_size(path), 10'000U);
    EXPECT_TRUE(writePicture("/no/such/folder/window.png", window, 1));
    const auto error = writePicture(path, pictureOfSheet(sheetOf(90, 90)), 1);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, path + ": the picture's size is out of range");
}

} // namespace
} // namespace kestrune::desk
