// The Settings form, laid out with a font of which every character is equally wide.
#include "Kestrune/SettingsView.h"

#include "Kestrune/AppVersion.h"
#include "sim/session/FixedAdvanceMeasurer.h"
#include "tests/Kestrune/SettingsFixture.h"
#include "tests/ui/SceneParts.h"
#include "ui/SceneText.h"
#include "ui/layout/Layout.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kestrune {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class SettingsForm : public SettingsFixture {
protected:
    explicit SettingsForm(sim::BundleContents bundle = bundleOfVersion("2.1", "57"))
        : SettingsFixture(std::move(bundle)) {}

    ui::Rendering layOut(const ui::ProposedSize& offered = {}) {
        const ui::LayoutContext context{measurer, [this](std::string_view key) { return translation(key); },
                                        [](std::string_view text) { return std::string(text); }};
        return ui::layOut(SettingsView{model}.body(), offered, context);
    }

    std::string translation(std::string_view key) {
        keys.emplace_back(key);
        return std::string(key) + std::string(static_cast<std::size_t>(extraCharacters), 'x');
    }

    std::vector<std::string> texts() { return ui::shownTexts(layOut().scene); }

    sim::FixedAdvanceMeasurer measurer;
    std::shared_ptr<SettingsViewModel> model = std::make_shared<SettingsViewModel>(false, nullptr);
    std::vector<std::string> keys; // that were looked up
    int extraCharacters = 0;
};

class SettingsFormWithoutValues : public SettingsForm {
protected:
    SettingsFormWithoutValues() : SettingsForm(sim::BundleContents()) {}
};

TEST_F(SettingsForm, IsLaidOutFromTopToBottom) {
    EXPECT_EQ(ui::describe(layOut().scene), R"scene(scene 440x215
  shape 20,20 400x36 radius 10 continuous sectionFill
  shape 20,20 400x36 radius 10 continuous line 1 sectionBorder
  text 30,30 105x16 "Launch at login" body accessibilityHidden
  toggle 378,29 32x18 "Launch at login" off small switch 0
  shape 20,76 400x73 radius 10 continuous sectionFill
  shape 20,76 400x73 radius 10 continuous line 1 sectionBorder
  button 30,83 168x22 "Check for Updates…" bordered action 0
  shape 30,112 380x1 separator
  button 30,120 133x22 "Report a Bug…" bordered action 1
  text 169,169 102x15 "Kestrune 2.1 (57)" callout secondary center
  text 158,186 125x13 "Copyright © 2026 Kestrune" caption tertiary center
)scene");
}

TEST_F(SettingsForm, ShowsItsLabelsAndItsFooter) {
    EXPECT_THAT(texts(), ElementsAre("Launch at login", "Kestrune 2.1 (57)", "Copyright © 2026 Kestrune"));
    EXPECT_THAT(ui::buttonTitles(layOut().scene), ElementsAre("Check for Updates…", "Report a Bug…"));
}

TEST_F(SettingsForm, LooksUpEveryTextButTheCopyright) {
    layOut();
    EXPECT_THAT(std::set(keys.begin(), keys.end()),
                ::testing::UnorderedElementsAre("Launch at login", "Check for Updates…", "Report a Bug…",
                                                "Kestrune %@"));
}

TEST_F(SettingsForm, ReadsTheVersionInOrder) {
    EXPECT_EQ(appVersionString(), "2.1 (57)");
    EXPECT_THAT(callsOf(appVersionString),
                ElementsAre("NSBundle.mainBundle", "-[NSBundle infoDictionary][CFBundleShortVersionString]",
                            "-[NSBundle infoDictionary][CFBundleVersion]"));
}

TEST_F(SettingsForm, IsAsWideWithLongTexts) {
    const double height = layOut().scene.size.height;
    extraCharacters = 40;
    const ui::Rendering longer = layOut();
    EXPECT_EQ(longer.scene.size.width, 440);
    EXPECT_GE(longer.scene.size.height, height);
}

TEST_F(SettingsForm, IsAsLargeAsItsContentsWhateverItIsOffered) {
    const ui::Scene wanted = layOut().scene;
    for (const double height : {0.0, 100.0, 1000.0}) {
        EXPECT_EQ(layOut({.width = 200, .height = height}).scene, wanted) << height;
    }
}

TEST_F(SettingsForm, ShowsTheStateOfItsModel) {
    for (const bool isOn : {true, false}) {
        model->launchAtLogin = isOn;
        EXPECT_EQ(ui::elementsOf<ui::ToggleElement>(layOut().scene).at(0).isOn, isOn);
    }
}

TEST_F(SettingsForm, AssignsWhatTheSwitchSays) {
    std::vector<bool> changes;
    model->onLaunchAtLoginChanged = [&](bool isOn) { changes.push_back(isOn); };
    layOut().switches.at(0)(true);
    EXPECT_THAT(changes, ElementsAre(true));
    EXPECT_TRUE(model->launchAtLogin);
}

TEST_F(SettingsForm, RunsTheActionsThatItsModelHasWhenTheyArePressed) {
    const ui::Rendering before = layOut();
    std::vector<std::string> pressed;
    model->checkForUpdates = [&] { pressed.emplace_back("updates"); };
    model->reportBug = [&] { pressed.emplace_back("bug"); };
    before.actions.at(0)();
    before.actions.at(1)();
    EXPECT_THAT(pressed, ElementsAre("updates", "bug"));
}

TEST_F(SettingsForm, DoesNothingWhenNobodyHasFilledInItsActions) {
    const ui::Rendering form = layOut();
    form.actions.at(0)();
    form.actions.at(1)();
    EXPECT_THAT(session.openedURLs(), ::testing::IsEmpty());
    EXPECT_FALSE(session.updates().isShowingAlert());
}

TEST_F(SettingsFormWithoutValues, ShowsQuestionMarksAndNoCopyright) {
    EXPECT_THAT(texts(), ElementsAre("Launch at login", "Kestrune ? (?)"));
}

struct BundleExample {
    std::string name;
    sim::PropertyListDictionary infoDictionary;
    std::vector<std::string> footer;
};

void PrintTo(const BundleExample& example, std::ostream* out) { *out << example.name; }

const BundleExample BundleExamples[] = {
    {"NoBuild", {{"CFBundleShortVersionString", {std::string("2.1")}}}, {"Kestrune 2.1 (?)"}},
    {"NoVersion", {{"CFBundleVersion", {std::string("57")}}}, {"Kestrune ? (57)"}},
    {"NumbersForTexts",
     {{"CFBundleShortVersionString", {2.1}},
      {"CFBundleVersion", {std::int64_t{57}}},
      {"NSHumanReadableCopyright", {std::int64_t{2026}}}},
     {"Kestrune ? (?)"}},
    {"Nothing", {}, {"Kestrune ? (?)"}},
    {"PercentSigns",
     {{"CFBundleShortVersionString", {std::string("100%@")}},
      {"CFBundleVersion", {std::string("**5**")}},
      {"NSHumanReadableCopyright", {std::string("© **all** %@")}}},
     {"Kestrune 100%@ (**5**)", "© **all** %@"}},
};

class SettingsFooterOf : public SettingsForm, public ::testing::WithParamInterface<BundleExample> {
protected:
    SettingsFooterOf() : SettingsForm({.infoDictionary = GetParam().infoDictionary}) {}
};

TEST_P(SettingsFooterOf, SaysWhatTheBundleHas) {
    std::vector<std::string> expected = GetParam().footer;
    expected.insert(expected.begin(), "Launch at login");
    EXPECT_THAT(texts(), ElementsAreArray(expected));
}

INSTANTIATE_TEST_SUITE_P(Bundles, SettingsFooterOf, ::testing::ValuesIn(BundleExamples),
                         [](const auto& example) { return example.param.name; });

} // namespace
} // namespace kestrune
