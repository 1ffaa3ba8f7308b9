#include "desk/paint/sheets/ContactSheet.h"

#include "tests/base/Overlap.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/desk/paint/PaintedCanvas.h"
#include "tests/desk/paint/WindowPictures.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kestrune::desk {
namespace {

ContactSheet sheetOf(std::size_t cells, std::size_t columns) {
    ContactSheet sheet{"Windows", columns, {}};
    for (std::size_t index = 0; index < cells; ++index) {
        SheetCell cell{"A window", windowWithControls(), index % 2 == 1};
        cell.window.frame.size.height += 40.0 * static_cast<double>(index % 3);
        sheet.cells.push_back(cell);
    }
    return sheet;
}

TEST(ContactSheet, PlacesEveryWindowInACellOfItsOwn) {
    for (const std::size_t columns : {0U, 1U, 3U, 20U}) {
        const ContactSheet sheet = sheetOf(7, columns);
        const ContactSheetLayout layout = contactSheetLayout(sheet);
        ASSERT_EQ(layout.cells.size(), 7U);
        ASSERT_EQ(layout.windows.size(), 7U);
        for (std::size_t one = 0; one < 7; ++one) {
            EXPECT_TRUE(encloses({0, 0, layout.size.width, layout.size.height}, layout.cells[one]));
            EXPECT_TRUE(encloses(layout.cells[one], layout.windows[one]));
            EXPECT_EQ(layout.windows[one].size, sheet.cells[one].window.frame.size);
            for (std::size_t other = one + 1; other < 7; ++other) {
                EXPECT_FALSE(overlap(layout.cells[one], layout.cells[other])) << one << " " << other;
            }
        }
    }
}

TEST(ContactSheet, FillsRowAfterRow) {
    const ContactSheetLayout layout = contactSheetLayout(sheetOf(5, 3));
    EXPECT_EQ(layout.cells[0].minY(), layout.cells[2].minY());
    EXPECT_EQ(layout.cells[0].height(), layout.cells[2].height());
    EXPECT_EQ(layout.cells[0].minX(), layout.cells[3].minX());
    EXPECT_GT(layout.cells[3].minY(), layout.cells[0].maxY());
}

TEST(ContactSheet, ShowsEachWindowInItsAppearance) {
    const ContactSheet sheet = sheetOf(2, 2);
    const ContactSheetLayout layout = contactSheetLayout(sheet);
    const PaintedCanvas painted{layout.size,
                                [&](const Canvas& canvas) { paintContactSheet(canvas.context, sheet); }};
    const auto inCorner = [&](std::size_t cell) {
        return painted.at({layout.windows[cell].maxX() - 12, layout.windows[cell].maxY() - 12});
    };
    EXPECT_TRUE(isNear(inCorner(0), 0xEC, 0xEC, 0xEC, 2));
    EXPECT_TRUE(isNear(inCorner(1), 0x32, 0x32, 0x32, 2));
}

TEST(ContactSheet, IsWrittenToAFileOrSaysWhyNot) {
    const TemporaryFolder folder;
    const std::string path = folder.path() / "sheet.png";
    EXPECT_FALSE(writeContactSheet(path, sheetOf(2, 2), 1));
    EXPECT_GT(std::filesystem::file_size(path), 10'000U);
    EXPECT_FALSE(writeWindowPicture(path, windowWithControls(), true, 2));
    EXPECT_GT(std::filesystem::file_size(path), 10'000U);
    std::filesystem::remove(path);
    EXPECT_TRUE(writeWindowPicture("/no/such/folder/window.png", windowWithControls(), false, 1));
    const auto error = writeContactSheet(path, sheetOf(90, 90), 1);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, path + ": expected a picture with room for every window in it");
}

} // namespace
} // namespace kestrune::desk
