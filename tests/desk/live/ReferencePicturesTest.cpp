// The pictures of the wizard and of Settings must stay as they are in references/, which have boxes in the
// place of letters and are the same with every font.
//
// Wherever a picture is meant to change, look at the new one and then make it the reference:
//
//     KESTRUNE_REWRITE_REFERENCES=1 ctest --test-dir build/gcc -R ReferencePictures
//
// A picture that differs is written to tests/desk/live/differing/ of the build directory.

#include "desk/live/gallery/SettingsPictures.h"
#include "desk/live/gallery/WizardPictures.h"
#include "desk/paint/sheets/ContactSheet.h"
#include "sim/session/FixedAdvanceMeasurer.h"
#include "tests/base/TemporaryFolder.h"
#include "tests/desk/live/PictureDifference.h"
#include "tests/desk/live/WithoutLetters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

using std::filesystem::path;

// For another release of Cairo, which smooths edges in another way. The references were made with 1.16.0 of
// Debian 12.
constexpr double MeanTolerance = 0.25;
constexpr double MaximumTolerance = 8;

path referenceOf(const std::string& name) { return path(KESTRUNE_REFERENCES) / name; }

bool areReferencesRewritten() { return std::getenv("KESTRUNE_REWRITE_REFERENCES") != nullptr; }

using AlbumMaker = std::variant<WindowAlbum, InputError> (*)(const LiveDeskSetup&);

// As if every letter had the same width, which is so wherever the page is made.
const ui::Measurer* evenLetters() {
    static const sim::FixedAdvanceMeasurer measurer;
    return &measurer;
}

AlbumPage pageOf(AlbumMaker makeAlbum, const std::string& name, bool dark, const ui::Measurer* measurer) {
    auto setup = std::get<LiveDeskSetup>(setupOf({}));
    setup.measurer = measurer;
    const auto made = makeAlbum(setup);
    if (const auto* const error = std::get_if<InputError>(&made)) {
        ADD_FAILURE() << error->message;
        return {};
    }
    const auto& pages = std::get<WindowAlbum>(made).pages;
    const auto page = std::find_if(pages.begin(), pages.end(), [&](const AlbumPage& candidate) {
        return candidate.name == name && candidate.dark == dark;
    });
    if (page == pages.end()) {
        ADD_FAILURE() << "no page " << name;
        return {};
    }
    return *page;
}

// With one pixel for each point.
void writePicture(const WindowPicture& window, bool dark, const path& file) {
    std::filesystem::create_directories(file.parent_path());
    const auto error = writeWindowPicture(file, window, dark, 1);
    ASSERT_FALSE(error) << error->message;
}

void writePage(const AlbumPage& page, const path& file) {
    writePicture(withoutLetters(page.window), page.dark, file);
}

// How far the letters of one window are out of the boxes of the other, which has the same layout.
PictureDifference lettersBeside(const WindowPicture& letters, const WindowPicture& boxes) {
    const TemporaryFolder folder;
    const path covered = folder.path() / "covered.png";
    const path without = folder.path() / "without.png";
    writePicture(withCoveredLetters(letters), false, covered);
    writePicture(withOpaqueBoxes(boxes), false, without);
    const auto difference = differenceOfPictures(covered, without);
    EXPECT_TRUE(difference);
    return difference.value_or(PictureDifference{});
}

struct ReferencePage {
    AlbumMaker makeAlbum;
    std::string album; // begins the file's name
    std::string page;
};

void PrintTo(const ReferencePage& reference, std::ostream* stream) {
    *stream << reference.album << ": " << reference.page;
}

class ReferencePictures : public testing::TestWithParam<ReferencePage> {
protected:
    static std::string nameOf(bool dark) {
        return GetParam().album + "-" + GetParam().page + (dark ? "-dark.png" : "-light.png");
    }
    static AlbumPage page(bool dark, const ui::Measurer* measurer = evenLetters()) {
        return pageOf(GetParam().makeAlbum, GetParam().page, dark, measurer);
    }

    static void compare(bool dark) {
        if (areReferencesRewritten()) {
            writePage(page(dark), referenceOf(nameOf(dark)));
            GTEST_SKIP() << "The reference was written anew; nothing was compared.";
        }
        const path fresh = path(KESTRUNE_DIFFERING) / nameOf(dark);
        writePage(page(dark), fresh);
        const auto difference = differenceOfPictures(fresh, referenceOf(nameOf(dark)));
        ASSERT_TRUE(difference) << "The reference cannot be read or has another size. Now: " << fresh;
        EXPECT_LE(difference->mean, MeanTolerance);
        EXPECT_LE(difference->maximum, MaximumTolerance);
        if (HasFailure()) {
            ADD_FAILURE() << "Compare " << fresh << " with " << referenceOf(nameOf(dark));
        } else {
            std::filesystem::remove(fresh);
        }
    }
};

TEST_P(ReferencePictures, AreWhatTheWindowLooksLikeInLightColors) { compare(false); }

TEST_P(ReferencePictures, AreWhatTheWindowLooksLikeInDarkColors) { compare(true); }

TEST_P(ReferencePictures, DifferBetweenLightAndDarkAllOver) {
    constexpr double AllOver = 100;
    const auto difference = differenceOfPictures(referenceOf(nameOf(false)), referenceOf(nameOf(true)));
    ASSERT_TRUE(difference);
    EXPECT_GT(difference->mean, AllOver);
}

// They are laid out again, for the widths that letters have here.
TEST_P(ReferencePictures, HaveRoomForTheLettersOfTheFontThatIsThere) {
    const WindowPicture window = page(false, nullptr).window;
    EXPECT_LE(lettersBeside(window, window).maximum, MaximumTolerance);
}

INSTANTIATE_TEST_SUITE_P(Pages, ReferencePictures,
                         testing::Values(ReferencePage{wizardAlbum, "wizard", "intro"},
                                         ReferencePage{wizardAlbum, "wizard", "permission"},
                                         ReferencePage{wizardAlbum, "wizard", "waiting"},
                                         ReferencePage{wizardAlbum, "wizard", "granted"},
                                         ReferencePage{settingsAlbum, "settings", "in-front"},
                                         ReferencePage{settingsAlbum, "settings", "on"},
                                         ReferencePage{settingsAlbum, "settings", "switch-dragged"},
                                         ReferencePage{settingsAlbum, "settings", "button-focused"}),
                         [](const auto& instance) {
                             std::string name = instance.param.album + "_" + instance.param.page;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

// Whether the tolerances notice what a person would, too.
class PageDifference : public testing::Test {
protected:
    // A page in light colours, changed.
    template <typename Change>
    PictureDifference differenceAfter(AlbumPage page, Change&& change) {
        const path before = folder_.path() / "before.png";
        const path after = folder_.path() / "after.png";
        writePage(page, before);
        change(page.window);
        writePage(page, after);
        const auto difference = differenceOfPictures(before, after);
        EXPECT_TRUE(difference);
        return difference.value_or(PictureDifference{});
    }

    static AlbumPage wizardPage(const ui::Measurer* measurer = evenLetters()) {
        return pageOf(wizardAlbum, "permission", false, measurer);
    }
    static AlbumPage settingsPage() { return pageOf(settingsAlbum, "in-front", false, evenLetters()); }

    template <typename Change>
    PictureDifference differenceInWizardAfter(Change&& change) {
        return differenceAfter(wizardPage(), std::forward<Change>(change));
    }

    template <typename Change>
    PictureDifference differenceInSettingsAfter(Change&& change) {
        return differenceAfter(settingsPage(), std::forward<Change>(change));
    }

    template <typename Wanted>
    static Wanted& firstIn(WindowPicture& window) {
        auto& elements = window.scene.elements;
        const auto found = std::find_if(elements.begin(), elements.end(), [](const ui::Element& element) {
            return std::holds_alternative<Wanted>(element);
        });
        return std::get<Wanted>(*found);
    }

private:
    TemporaryFolder folder_;
};

TEST_F(PageDifference, IsNothingBetweenPicturesOfTheSame) {
    const PictureDifference none = differenceInWizardAfter([](WindowPicture&) {});
    EXPECT_EQ(none.mean, 0);
    EXPECT_EQ(none.maximum, 0);
}

TEST_F(PageDifference, IsTooLargeWhenATextIsOnePointLowerOrFurtherRight) {
    const PictureDifference lower = differenceInWizardAfter(
        [](WindowPicture& window) { firstIn<ui::TextElement>(window).frame.origin.y += 1; });
    EXPECT_GT(lower.maximum, MaximumTolerance);
    const PictureDifference further = differenceInWizardAfter(
        [](WindowPicture& window) { firstIn<ui::TextElement>(window).frame.origin.x += 1; });
    EXPECT_GT(further.maximum, MaximumTolerance);
}

TEST_F(PageDifference, IsTooLargeWhenATextIsOnePointWider) {
    const PictureDifference wider = differenceInSettingsAfter(
        [](WindowPicture& window) { firstIn<ui::TextElement>(window).frame.size.width += 1; });
    EXPECT_GT(wider.maximum, MaximumTolerance);
}

TEST_F(PageDifference, IsTooLargeWhenASwitchIsOnePointFurtherLeft) {
    const PictureDifference further = differenceInSettingsAfter(
        [](WindowPicture& window) { firstIn<ui::ToggleElement>(window).frame.origin.x -= 1; });
    EXPECT_GT(further.maximum, MaximumTolerance);
}

TEST_F(PageDifference, IsTooLargeWhenAnElementIsOnePointLower) {
    const PictureDifference lower = differenceInWizardAfter([](WindowPicture& window) {
        for (auto& part : firstIn<ui::ButtonElement>(window).body) {
            if (auto* const shape = std::get_if<ui::ShapeElement>(&part)) {
                shape->frame.origin.y += 1;
            }
        }
    });
    EXPECT_GT(lower.maximum, MaximumTolerance);
}

TEST_F(PageDifference, IsTooLargeWhenTheButtonIsPale) {
    const PictureDifference pale = differenceInWizardAfter([](WindowPicture& window) {
        for (auto& part : firstIn<ui::ButtonElement>(window).body) {
            if (auto* const shape = std::get_if<ui::ShapeElement>(&part)) {
                shape->opacity = 0.75;
            }
        }
    });
    EXPECT_GT(pale.maximum, MaximumTolerance);
}

TEST_F(PageDifference, IsTooLargeWhenTheSwitchIsOnTheOtherSide) {
    const PictureDifference flipped = differenceInSettingsAfter(
        [](WindowPicture& window) { firstIn<ui::ToggleElement>(window).isOn = true; });
    EXPECT_GT(flipped.maximum, MaximumTolerance);
}

TEST_F(PageDifference, IsTooLargeWithoutTheFillOfTheForm) {
    const PictureDifference bare = differenceInSettingsAfter([](WindowPicture& window) {
        std::erase_if(window.scene.elements, [](const ui::Element& element) {
            return std::holds_alternative<ui::ShapeElement>(element);
        });
    });
    EXPECT_GT(bare.mean, MeanTolerance);
}

TEST_F(PageDifference, IsTooLargeWhenLettersAreLargerOrElsewhereThanTheirBox) {
    const WindowPicture window = wizardPage(nullptr).window;
    WindowPicture larger = window;
    for (ui::Element& element : larger.scene.elements) {
        if (auto* const text = std::get_if<ui::TextElement>(&element)) {
            text->text.font.size *= 1.05;
        }
    }
    EXPECT_GT(lettersBeside(larger, window).maximum, MaximumTolerance);
}

TEST_F(PageDifference, IsUnknownWithoutAFileAndBetweenSizes) {
    const TemporaryFolder folder;
    const path missing = folder.path() / "missing.png";
    EXPECT_FALSE(differenceOfPictures(missing, missing));
    WindowPicture window;
    window.frame = {0, 0, 20, 20};
    const path small = folder.path() / "small.png";
    const path large = folder.path() / "large.png";
    ASSERT_FALSE(writeWindowPicture(small, window, false, 1));
    ASSERT_FALSE(writeWindowPicture(large, window, false, 2));
    EXPECT_TRUE(differenceOfPictures(small, small));
    EXPECT_FALSE(differenceOfPictures(small, large));
}

} // namespace
} // namespace kestrune::desk
