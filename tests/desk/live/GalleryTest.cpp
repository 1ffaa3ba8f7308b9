#include "desk/live/gallery/Gallery.h"

#include "desk/live/world/LivePicture.h"
#include "desk/paint/sheets/Sheet.h"
#include "tests/base/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::desk {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct PngSize {
    unsigned width = 0;
    unsigned height = 0;

    friend bool operator==(const PngSize&, const PngSize&) = default;
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

class DrawnGallery : public testing::Test {
protected:
    // What is said of it.
    std::string draw(const std::vector<std::string>& scenes, const Options& options = {}) {
        const auto error = drawGallery(folder.string(), scenes, options);
        return error ? error->message : "drawn";
    }

    std::vector<std::string> files() {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                names.insert(entry.path().lexically_relative(folder).string());
            }
        }
        return {names.begin(), names.end()};
    }

    TemporaryFolder temporary;
    std::filesystem::path folder = temporary.path() / "made" / "on the way";
};

TEST_F(DrawnGallery, HasTheScenesThatWereNamed) {
    ASSERT_EQ(draw({"tour/the-dock-leaves", "wizard/waiting", "settings/long"}), "drawn");
    EXPECT_THAT(files(), ElementsAre("settings/long-light.png", "tour/the-dock-leaves-light.png",
                                     "wizard/waiting-light.png"));
    EXPECT_EQ(sizeOfPng(folder / "tour/the-dock-leaves-light.png"), (PngSize{2880, 1800}));
    EXPECT_EQ(sizeOfPng(folder / "wizard/waiting-light.png").width, 2U * (460 + 2 * 40));
    EXPECT_EQ(sizeOfPng(folder / "settings/long-light.png").width, 2U * (440 + 2 * 40));
}

TEST_F(DrawnGallery, HasTheSheetOfAChapterInDarkColors) {
    Options options;
    options.dark = true;
    ASSERT_EQ(draw({"settings"}, options), "drawn");
    EXPECT_THAT(files(), ElementsAre("settings-dark.png"));
    const PngSize size = sizeOfPng(folder / "settings-dark.png");
    EXPECT_EQ(size.width, 5U * 520 + 4 * 20 + 2 * 40) << "five windows in a row";
}

TEST_F(DrawnGallery, HasEverySceneOnItsSheetOnce) {
    std::set<std::string> names;
    std::vector<std::size_t> counts;
    for (const Chapter& chapter : chapters()) {
        std::size_t count = 0;
        for (const Story& story : chapter.stories) {
            for (const Scene& scene : story.scenes) {
                EXPECT_TRUE(names.insert(chapter.nameOf(scene)).second) << scene.name;
                ++count;
            }
        }
        EXPECT_EQ(count % chapter.columns, 0U) << "the last row is full";
        counts.push_back(count);
    }
    EXPECT_THAT(counts, ElementsAre(30, 20, 10));
}

TEST_F(DrawnGallery, HasACaptionForEveryScene) {
    const auto setup = std::get<LiveDeskSetup>(setupOf({}));
    for (const Chapter& chapter : chapters()) {
        for (const Story& story : chapter.stories) {
            LiveDeskSetup prepared = setup;
            story.prepare(prepared);
            Stage stage(prepared);
            for (const Scene& scene : story.scenes) {
                const auto performed = stage.perform(scene);
                ASSERT_TRUE(std::holds_alternative<DeskPicture>(performed))
                    << std::get<std::string>(performed);
                const auto& shown = std::get<DeskPicture>(performed);
                EXPECT_FALSE(shown.story.empty()) << scene.name;
            }
        }
    }
}

TEST_F(DrawnGallery, TellsWhichScenesThereAre) {
    EXPECT_THAT(
        draw({"wizard/intro", "tour/hold"}),
        AllOf(StartsWith("--gallery: no scene is called \"tour/hold\"; there are tour, tour/first-launch, "),
              HasSubstr(", wizard, wizard/intro, "), HasSubstr(", settings/without-copyright")));
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(DrawnGallery, NeedsAnotherDisplayToPushAgainst) {
    const std::string missing =
        "the scene tour/the-dock-leaves expected another display than the pinned one with a free bottom edge";
    Options options;
    options.displays = {{0, 0, 1000, 600}};
    EXPECT_EQ(draw({"tour"}, options), missing);
    options.displays = {{0, 0, 1000, 600}, {0, -500, 800, 500}};
    EXPECT_EQ(draw({"tour"}, options), missing);
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(DrawnGallery, TellsWhatASceneDidNotFind) {
    Options options;
    // On displays as small as these no menu bar has room for the icon.
    options.displays = {{0, 0, 8, 8}, {8, 0, 8, 8}};
    EXPECT_EQ(draw({"tour/held"}, options), "the scene tour/menu-before-setup expected a status item");
}

TEST_F(DrawnGallery, TellsThatAFolderCannotBeMade) {
    folder = temporary.file("taken", "") / "gallery";
    EXPECT_THAT(draw({"settings/in-front"}), AllOf(StartsWith(folder.string() + "/settings: "),
                                                   HasSubstr("expected a folder that can be written")));
}

TEST_F(DrawnGallery, TellsThatAPictureCannotBeWritten) {
    std::filesystem::create_directories(folder / "settings/in-front-light.png");
    EXPECT_THAT(draw({"settings/in-front"}), HasSubstr("settings/in-front-light.png: "));
    EXPECT_THAT(files(), IsEmpty());
}

} // namespace
} // namespace kestrune::desk
