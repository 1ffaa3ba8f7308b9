// The wizard's pictures must stay as they are in references/.
//
// Wherever a picture is meant to change, look at the new one and then make it the reference:
//
//     KESTRUNE_REWRITE_REFERENCES=1 ctest --test-dir build/gcc -R WizardReferences
//
// A picture that differs is written to tests/desk/live/differing/ of the build directory.

#include "desk/live/WizardTour.h"
#include "desk/paint/ContactSheet.h"
#include "tests/desk/live/PictureDifference.h"
#include "tests/desk/recording/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <tuple>

namespace kestrune::desk {
namespace {

using std::filesystem::path;

// The references were made with Cairo 1.16.0, Pango 1.50.12, FreeType 2.12.1 and Inter 4.0 of Debian 12.
// Texts are painted as outlines without hinting, so that another build of these libraries only smooths edges
// in another way. Fitting every outline to the pixels (a font configuration with full automatic hinting), the
// most that has been tried, makes a maximum of 31.4. One wrong letter in the title makes one of 33.5. Another
// version of the font needs other references.
constexpr double MeanTolerance = 1;
constexpr double MaximumTolerance = 32;

path referenceOf(const std::string& name) { return path(KESTRUNE_REFERENCES) / name; }

bool areReferencesRewritten() { return std::getenv("KESTRUNE_REWRITE_REFERENCES") != nullptr; }

// In the key window, with one pixel for each point.
void writeState(const std::string& state, bool dark, const path& file) {
    const auto shots = takeWizardTour(std::get<LiveDeskSetup>(setupOf({})));
    const auto shot = std::find_if(shots.begin(), shots.end(), [&](const WizardShot& candidate) {
        return candidate.state == state && candidate.look == WizardLook::inFront;
    });
    ASSERT_NE(shot, shots.end());
    std::filesystem::create_directories(file.parent_path());
    const auto error = writeWindowPicture(file, shot->window, dark, 1);
    ASSERT_FALSE(error) << error->message;
}

class WizardReferences : public testing::TestWithParam<std::tuple<const char*, bool>> {
protected:
    static std::string state() { return std::get<0>(GetParam()); }
    static bool isDark() { return std::get<1>(GetParam()); }
    static std::string name() { return state() + (isDark() ? "-dark.png" : "-light.png"); }
};

TEST_P(WizardReferences, AreWhatTheWizardLooksLike) {
    if (areReferencesRewritten()) {
        writeState(state(), isDark(), referenceOf(name()));
        GTEST_SKIP() << "The reference was written anew; nothing was compared.";
    }
    const path fresh = path(KESTRUNE_DIFFERING) / name();
    writeState(state(), isDark(), fresh);
    const auto difference = differenceOfPictures(fresh, referenceOf(name()));
    ASSERT_TRUE(difference) << "The reference cannot be read or has another size. Now: " << fresh;
    EXPECT_LE(difference->mean, MeanTolerance);
    EXPECT_LE(difference->maximum, MaximumTolerance);
    if (HasFailure()) {
        ADD_FAILURE() << "Compare " << fresh << " with " << referenceOf(name());
    } else {
        std::filesystem::remove(fresh);
    }
}

INSTANTIATE_TEST_SUITE_P(States, WizardReferences,
                         testing::Combine(testing::Values("intro", "permission", "waiting", "granted"),
                                          testing::Bool()),
                         [](const auto& instance) {
                             const bool isDark = std::get<1>(instance.param);
                             return std::string(std::get<0>(instance.param)) + (isDark ? "Dark" : "Light");
                         });

// Whether the tolerances notice what a person would, too.
class WizardDifference : public testing::Test {
protected:
    // The request for the permission, changed.
    template <typename Change>
    PictureDifference differenceAfter(Change&& change) {
        auto shots = takeWizardTour(std::get<LiveDeskSetup>(setupOf({})));
        const auto shot = std::find_if(shots.begin(), shots.end(), [](const WizardShot& candidate) {
            return candidate.state == "permission" && candidate.look == WizardLook::inFront;
        });
        const path before = folder_.path() / "before.png";
        const path after = folder_.path() / "after.png";
        EXPECT_FALSE(writeWindowPicture(before, shot->window, false, 1));
        change(shot->window);
        EXPECT_FALSE(writeWindowPicture(after, shot->window, false, 1));
        const auto difference = differenceOfPictures(before, after);
        EXPECT_TRUE(difference);
        return difference.value_or(PictureDifference{});
    }

    static ui::ButtonElement& buttonOf(WindowPicture& window) {
        auto& elements = window.scene.elements;
        const auto button = std::find_if(elements.begin(), elements.end(), [](const ui::Element& element) {
            return std::holds_alternative<ui::ButtonElement>(element);
        });
        return std::get<ui::ButtonElement>(*button);
    }

private:
    TemporaryFolder folder_;
};

TEST_F(WizardDifference, IsNothingBetweenPicturesOfTheSame) {
    const PictureDifference none = differenceAfter([](WindowPicture&) {});
    EXPECT_EQ(none.mean, 0);
    EXPECT_EQ(none.maximum, 0);
}

TEST_F(WizardDifference, IsTooLargeAfterOneLetter) {
    const PictureDifference letter =
        differenceAfter([](WindowPicture& window) { window.title = "Welcome to Kestrone"; });
    EXPECT_GT(letter.maximum, MaximumTolerance);
}

TEST_F(WizardDifference, IsTooLargeWhenAnElementIsOnePointLower) {
    const PictureDifference lower = differenceAfter([](WindowPicture& window) {
        for (auto& part : buttonOf(window).body) {
            if (auto* const shape = std::get_if<ui::ShapeElement>(&part)) {
                shape->frame.origin.y += 1;
            }
        }
    });
    EXPECT_GT(lower.maximum, MaximumTolerance);
}

TEST_F(WizardDifference, IsTooLargeWhenTheButtonIsPale) {
    const PictureDifference pale = differenceAfter([](WindowPicture& window) {
        for (auto& part : buttonOf(window).body) {
            if (auto* const shape = std::get_if<ui::ShapeElement>(&part)) {
                shape->opacity = 0.75;
            }
        }
    });
    EXPECT_GT(pale.maximum, MaximumTolerance);
}

TEST_F(WizardDifference, IsUnknownWithoutAFileAndBetweenSizes) {
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
