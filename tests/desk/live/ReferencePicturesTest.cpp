// The pictures of the wizard and of Settings must stay as they are in references/, which have boxes in the
// place of letters and are the same with every font.
//
// Wherever a picture is meant to change, look at the new one and then make it the reference:
//
//     KESTRUNE_REWRITE_REFERENCES=1 ctest --test-dir build/gcc -R ReferencePictures
//
// A picture that differs is written to tests/desk/live/differing/ of the build directory.

#include "desk/live/gallery/Gallery.h"
#include "desk/paint/sheets/Sheet.h"
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

// As if every letter had the same width, which is so wherever the page is made.
const ui::Measurer* evenLetters() {
    static const sim::FixedAdvanceMeasurer measurer;
    return &measurer;
}

bool hasScene(const Story& story, const std::string& name) {
    return std::any_of(story.scenes.begin(), story.scenes.end(),
                       [&](const Scene& scene) { return scene.name == name; });
}

// The window of a scene.
WindowPicture pageOf(const Chapter& chapter, const std::string& name, const ui::Measurer* measurer) {
    const auto story = std::find_if(chapter.stories.begin(), chapter.stories.end(),
                                    [&](const Story& candidate) { return hasScene(candidate, name); });
    if (story == chapter.stories.end()) {
        ADD_FAILURE() << "no scene " << name;
        return {};
    }
    auto setup = std::get<LiveDeskSetup>(setupOf({}));
    setup.measurer = measurer;
    story->prepare(setup);
    Stage stage(setup);
    for (const Scene& scene : story->scenes) {
        const auto performed = stage.perform(scene);
        if (const auto* const missing = std::get_if<std::string>(&performed)) {
            ADD_FAILURE() << scene.name << " expected " << *missing;
            return {};
        }
        if (scene.name == name) {
            return std::get<DeskPicture>(performed).windows.front();
        }
    }
    return {};
}

// With one pixel for each point.
void writeWindow(const WindowPicture& window, bool dark, const path& file) {
    std::filesystem::create_directories(file.parent_path());
    const auto error = writePicture(file, pictureOfWindow(window, dark), 1);
    ASSERT_FALSE(error) << error->message;
}

void writePage(const WindowPicture& page, bool dark, const path& file) {
    writeWindow(withoutLetters(page), dark, file);
}

// How far the letters of one window are out of the boxes of the other, which has the same layout.
PictureDifference lettersBeside(const WindowPicture& letters, const WindowPicture& boxes) {
    const TemporaryFolder folder;
    const path covered = folder.path() / "covered.png";
    const path without = folder.path() / "without.png";
    writeWindow(withCoveredLetters(letters), false, covered);
    writeWindow(withOpaqueBoxes(boxes), false, without);
    const auto difference = differenceOfPictures(covered, without);
    EXPECT_TRUE(difference);
    return difference.value_or(PictureDifference{});
}

struct ReferencePage {
    Chapter (*chapter)();
    std::string page;

    // As a file's name has it.
    std::string name() const { return chapter().name + "-" + page; }
};

void PrintTo(const ReferencePage& reference, std::ostream* stream) { *stream << reference.name(); }

class ReferencePictures : public testing::TestWithParam<ReferencePage> {
protected:
    static std::string nameOf(bool dark) { return GetParam().name() + (dark ? "-dark.png" : "-light.png"); }
    static WindowPicture page(const ui::Measurer* measurer = evenLetters()) {
        return pageOf(GetParam().chapter(), GetParam().page, measurer);
    }

    static void compare(bool dark) {
        if (areReferencesRewritten()) {
            writePage(page(), dark, referenceOf(nameOf(dark)));
            GTEST_SKIP() << "The reference was written anew; nothing was compared.";
        }
        const path fresh = path(KESTRUNE_DIFFERING) / nameOf(dark);
        writePage(page(), dark, fresh);
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
    const WindowPicture window = page(nullptr);
    EXPECT_LE(lettersBeside(window, window).maximum, MaximumTolerance);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, ReferencePictures,
    testing::Values(ReferencePage{wizardChapter, "intro"}, ReferencePage{wizardChapter, "permission"},
                    ReferencePage{wizardChapter, "waiting"}, ReferencePage{wizardChapter, "granted"},
                    ReferencePage{settingsChapter, "in-front"}, ReferencePage{settingsChapter, "on"},
                    ReferencePage{settingsChapter, "switch-dragged"},
                    ReferencePage{settingsChapter, "button-focused"}),
    [](const auto& instance) {
        std::string name = instance.param.name();
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    });

// Whether the tolerances notice what a person would, too.
class PageDifference : public testing::Test {
protected:
    // A page in light colours, changed.
    template <typename Change>
    PictureDifference differenceAfter(WindowPicture page, Change&& change) {
        const path before = folder_.path() / "before.png";
        const path after = folder_.path() / "after.png";
        writePage(page, false, before);
        change(page);
        writePage(page, false, after);
        const auto difference = differenceOfPictures(before, after);
        EXPECT_TRUE(difference);
        return difference.value_or(PictureDifference{});
    }

    static WindowPicture wizardPage(const ui::Measurer* measurer = evenLetters()) {
        return pageOf(wizardChapter(), "permission", measurer);
    }
    static WindowPicture settingsPage() { return pageOf(settingsChapter(), "in-front", evenLetters()); }

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
    const WindowPicture window = wizardPage(nullptr);
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
    ASSERT_FALSE(writePicture(small, pictureOfWindow(window, false), 1));
    ASSERT_FALSE(writePicture(large, pictureOfWindow(window, false), 2));
    EXPECT_TRUE(differenceOfPictures(small, small));
    EXPECT_FALSE(differenceOfPictures(small, large));
}

} // namespace
} // namespace kestrune::desk
