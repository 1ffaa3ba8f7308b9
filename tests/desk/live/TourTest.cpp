#include "desk/live/gallery/Tour.h"

#include "tests/base/FileContent.h"
#include "tests/base/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

struct PngSize {
    unsigned width = 0;
    unsigned height = 0;
};

// Width and height stand in the first chunk, in big-endian order.
PngSize sizeOfPng(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<char, 24> head{};
    file.read(head.data(), head.size());
    const auto number = [&head](std::size_t offset) {
        unsigned value = 0;
        for (std::size_t index = offset; index < offset + 4; ++index) {
            value = value << 8 | static_cast<unsigned char>(head[index]);
        }
        return value;
    };
    const bool isPng = file && std::string_view(head.data() + 1, 3) == "PNG";
    return isPng ? PngSize{number(16), number(20)} : PngSize{};
}

std::vector<std::filesystem::path> picturesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> pictures;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".png") {
            pictures.push_back(entry.path());
        }
    }
    std::sort(pictures.begin(), pictures.end());
    return pictures;
}

TEST(Tour, WritesAPictureForEachSceneAndTellsThemAll) {
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.path() / "made" / "on the way";
    const auto error = runTour(folder, {});
    ASSERT_FALSE(error) << error->message;

    auto pictures = picturesIn(folder);
    ASSERT_EQ(pictures.size(), 31U);
    EXPECT_EQ(pictures.front().filename(), "01-first-launch.png");
    EXPECT_EQ(pictures[29].filename(), "30-launched-again.png") << "the last scene";
    EXPECT_EQ(pictures.back().filename(), "all.png");
    // Five small pictures in a row, six rows.
    EXPECT_EQ(sizeOfPng(pictures.back()).width, 5U * 576 + 4 * 20 + 2 * 40);
    EXPECT_EQ(sizeOfPng(pictures.back()).height, 56U + 6 * (360 + 34) + 5 * 20 + 2 * 40);
    pictures.pop_back();
    const std::string report = contentOf(folder / "report.txt");
    for (const auto& picture : pictures) {
        EXPECT_EQ(sizeOfPng(picture).width, 2880U) << picture;
        EXPECT_EQ(sizeOfPng(picture).height, 1800U) << picture;
        EXPECT_GT(std::filesystem::file_size(picture), 100'000U) << picture;
        EXPECT_THAT(report, HasSubstr("\n" + picture.filename().string() + "\n"));
    }
    EXPECT_THAT(report, HasSubstr("the pointer pulls the Dock over.\n    The Dock moved to Display 2.\n"
                                  "    Events 150, held 0, Dock moves 1, against the rule 0."));
    EXPECT_THAT(report, HasSubstr("and the Dock stays.\n    Held at 977 on Display 2.\n"
                                  "    Events 150, held 68, Dock moves 0, against the rule 0."));
    EXPECT_THAT(report, HasSubstr("within a second the guard runs by itself.\n"
                                  "    Guard on: only Built-in Display may have the Dock.\n"));
    EXPECT_THAT(report, HasSubstr("and there the Dock may go.\n    The Dock moved to Display 2.\n"));
    EXPECT_THAT(report,
                HasSubstr("Display 2 was unplugged; the pin and the Dock moved to Built-in Display."));
    EXPECT_THAT(report, HasSubstr("\nviolations             0  against the rule\nDock moves             3 "));
}

TEST(Tour, CannotBePlayedWithoutAnotherDisplayToPushAgainst) {
    const TemporaryFolder folder;
    Options options;
    options.displays = {{0, 0, 1000, 600}};
    const auto error = runTour(folder.path(), options);
    ASSERT_TRUE(error);
    EXPECT_THAT(error->message, StartsWith("--tour: expected another display"));

    options.displays = {{0, 0, 1000, 600}, {0, -500, 800, 500}};
    EXPECT_TRUE(runTour(folder.path(), options));
    options.pinned = 1;
    EXPECT_TRUE(runTour(folder.path(), options));
    EXPECT_TRUE(picturesIn(folder.path()).empty());
}

TEST(Tour, TellsWhatASceneDidNotFind) {
    const TemporaryFolder folder;
    Options options;
    // On displays as small as these no menu bar has room for the icon.
    options.displays = {{0, 0, 8, 8}, {8, 0, 8, 8}};
    const auto error = runTour(folder.path(), options);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "--tour: the scene \"menu-before-setup\" expected a status item");
}

TEST(Tour, TellsThatAFolderCannotBeMade) {
    const TemporaryFolder folder;
    const auto file = folder.file("taken", "");
    const auto error = runTour(file / "tour", {});
    ASSERT_TRUE(error);
    EXPECT_THAT(error->message, AllOf(StartsWith(file.string() + "/tour: "), testing::Not(HasSubstr("\n"))));
}

TEST(Tour, TellsThatAPictureCannotBeWritten) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "01-first-launch.png");
    const auto error = runTour(folder.path(), {});
    ASSERT_TRUE(error);
    EXPECT_THAT(error->message, HasSubstr("01-first-launch.png: "));
}

} // namespace
} // namespace kestrune::desk
