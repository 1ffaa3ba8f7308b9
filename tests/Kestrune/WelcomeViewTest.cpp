// The wizard's pages, laid out with a font of which every character is equally wide.
#include "Kestrune/WelcomeView.h"

#include "Kestrune/AccentProminentButtonStyle.h"
#include "sim/session/FixedAdvanceMeasurer.h"
#include "tests/base/FileContent.h"
#include "tests/ui/SceneParts.h"
#include "ui/SceneText.h"
#include "ui/layout/Layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace kestrune {
namespace {

using Step = WelcomeViewModel::Step;

// In a language whose texts are so many times as long as the keys.
ui::Rendering layOut(const ui::View& view, double lengthened = 1) {
    static const sim::FixedAdvanceMeasurer measurer;
    const ui::LayoutContext context{
        measurer,
        [lengthened](std::string_view key) {
            std::string text(key);
            const auto more = static_cast<std::size_t>(static_cast<double>(key.size()) * (lengthened - 1));
            for (std::size_t added = 0; added < more; ++added) {
                text += added % 8 == 0 ? ' ' : 'x';
            }
            return text;
        },
        [](std::string_view text) {
            std::string upper(text);
            for (char& letter : upper) {
                letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
            }
            return upper;
        }};
    return ui::layOut(view, {}, context);
}

struct PageState {
    std::string name;
    Step step = Step::intro;
    bool isTrusted = false;
    bool hasRequested = false;
};

const std::vector<PageState>& pageStates() {
    static const std::vector<PageState> states = {
        {"Introduction", Step::intro, true, false},
        {"BeforeTheRequest", Step::accessibility, false, false},
        {"AfterTheRequest", Step::accessibility, false, true},
        {"Granted", Step::accessibility, true, true},
        {"GrantedWithoutRequest", Step::accessibility, true, false},
    };
    return states;
}

std::shared_ptr<WelcomeViewModel> modelFor(const PageState& state) {
    auto model = std::make_shared<WelcomeViewModel>(state.step, state.isTrusted);
    model->hasRequestedPermission = state.hasRequested;
    return model;
}

ui::Scene sceneOf(const PageState& state, double width = 460, double lengthened = 1) {
    return layOut(WelcomeView{modelFor(state), width}.body(), lengthened).scene;
}

Rect frameOf(const ui::Element& element) {
    return std::visit([](const auto& placed) { return placed.frame; }, element);
}

// The second page above its status row.
const std::string SecondPageHead =
    "scene 460x286\n"
    "  text 24,16 55x13 \"STEP 2 OF 2\" caption medium secondary\n"
    "  text 24,49 300x22 \"Grant Accessibility permission\" title2 semibold\n"
    "  text 24,75 412x30 \"Kestrune needs to observe window events from other apps so it can "
    "keep the Dock pinned where you want it.\" callout secondary\n"
    "  text 24,121 412x45 \"macOS will show a permission dialog. Click \" bold:\"Open System "
    "Settings\" \" in that dialog, then enable \" bold:\"Kestrune\" \" in the Accessibility "
    "list. We never read your screen content or keystrokes.\" callout secondary\n";

TEST(WelcomeView, ShowsTheIntroduction) {
    EXPECT_EQ(ui::describe(sceneOf(pageStates()[0])),
              "scene 460x340\n"
              "  symbol 24,24 53x53 dock.rectangle 44pt light accent\n"
              "  text 24,95 228x26 \"Welcome to Kestrune\" title semibold\n"
              "  text 24,139 412x48 \"Thanks for picking up Kestrune. You're about to get the Mac Dock "
              "to stay exactly where you want it. No more jumping between screens.\" body secondary\n"
              "  text 24,209 192x15 \"Two quick steps and you're done:\" callout medium\n"
              "  symbol 25,242 16x16 2.circle.fill body secondary\n"
              "  text 47,242 210x16 \"Grant Accessibility permission\" body secondary\n"
              "  button 316,284 120x32 \"Get started\" custom large defaultAction action 0\n"
              "    shape 316,284 120x32 radius 6 continuous accent\n"
              "    text 332,292 88x16 \"Get started\" body semibold white\n"
              "    pressed shape 316,284 120x32 radius 6 continuous accent opacity 0.75\n"
              "    pressed text 332,292 88x16 \"Get started\" body semibold white\n");
}

TEST(WelcomeView, ShowsTheRequest) {
    EXPECT_EQ(ui::describe(sceneOf(pageStates()[1])),
              SecondPageHead + "  symbol 24,186 20x20 circle.dashed body large secondary\n"
                               "  text 54,188 161x16 \"Waiting for permission…\" body secondary\n"
                               "  button 24,230 176x32 \"Request permission\" custom large action 0\n"
                               "    shape 24,230 176x32 radius 6 continuous accent\n"
                               "    text 40,238 144x16 \"Request permission\" body semibold white\n"
                               "    pressed shape 24,230 176x32 radius 6 continuous accent opacity 0.75\n"
                               "    pressed text 40,238 144x16 \"Request permission\" body semibold white\n");
}

TEST(WelcomeView, ShowsThatItWaits) {
    EXPECT_EQ(ui::describe(sceneOf(pageStates()[2])),
              SecondPageHead +
                  "  symbol 24,186 20x20 circle.dashed body large secondary\n"
                  "  text 54,188 161x16 \"Waiting for permission…\" body secondary\n"
                  "  button 24,239 120x14 \"Open System Settings\" link small action 0\n"
                  "    text 24,239 120x14 \"Open System Settings\" 11pt link\n"
                  "  button 156,230 176x32 \"Request permission\" custom large action 1\n"
                  "    shape 156,230 176x32 radius 6 continuous accent\n"
                  "    text 172,238 144x16 \"Request permission\" body semibold white\n"
                  "    pressed shape 156,230 176x32 radius 6 continuous accent opacity 0.75\n"
                  "    pressed text 172,238 144x16 \"Request permission\" body semibold white\n");
}

TEST(WelcomeView, ShowsTheEnd) {
    EXPECT_EQ(ui::describe(sceneOf(pageStates()[3])),
              SecondPageHead + "  symbol 24,186 20x20 checkmark.circle.fill body large green\n"
                               "  text 54,188 126x16 \"Permission granted\" body secondary\n"
                               "  button 24,230 80x32 \"Finish\" custom large defaultAction action 0\n"
                               "    shape 24,230 80x32 radius 6 continuous accent\n"
                               "    text 40,238 48x16 \"Finish\" body semibold white\n"
                               "    pressed shape 24,230 80x32 radius 6 continuous accent opacity 0.75\n"
                               "    pressed text 40,238 48x16 \"Finish\" body semibold white\n");
}

TEST(WelcomeView, OffersTheEndWheneverThePermissionIsThere) {
    EXPECT_EQ(sceneOf(pageStates()[3]), sceneOf(pageStates()[4]));
}

class WelcomePages : public ::testing::TestWithParam<PageState> {};

INSTANTIATE_TEST_SUITE_P(EveryState, WelcomePages, ::testing::ValuesIn(pageStates()),
                         [](const auto& page) { return page.param.name; });

TEST_P(WelcomePages, KeepEverythingBetweenTheirMarginsAtEveryWidth) {
    for (double width = 320; width <= 760; width += 20) {
        for (const double lengthened : {1.0, 1.4, 2.0}) {
            const ui::Scene scene = sceneOf(GetParam(), width, lengthened);
            EXPECT_EQ(scene.size.width, width);
            for (const ui::Element& element : scene.elements) {
                const Rect frame = frameOf(element);
                EXPECT_GE(frame.minX(), 24) << ui::describe(scene);
                EXPECT_LE(frame.maxX(), width - 24) << "width " << width << ", " << lengthened << " times\n"
                                                    << ui::describe(scene);
                EXPECT_GE(frame.minY(), 16);
                EXPECT_LE(frame.maxY(), scene.size.height - 24);
            }
        }
    }
}

TEST_P(WelcomePages, PutNothingOnTopOfAnythingElse) {
    for (double width = 320; width <= 760; width += 40) {
        const ui::Scene scene = sceneOf(GetParam(), width, width > 500 ? 1.4 : 2);
        for (std::size_t one = 0; one < scene.elements.size(); ++one) {
            for (std::size_t other = one + 1; other < scene.elements.size(); ++other) {
                const Rect first = frameOf(scene.elements[one]);
                const Rect second = frameOf(scene.elements[other]);
                EXPECT_TRUE(first.maxX() <= second.minX() || second.maxX() <= first.minX() ||
                            first.maxY() <= second.minY() || second.maxY() <= first.minY())
                    << one << " and " << other << " in\n"
                    << ui::describe(scene);
            }
        }
    }
}

TEST_P(WelcomePages, GrowDownwardsWithTheirTexts) {
    EXPECT_GT(sceneOf(GetParam(), 460, 2).size.height, sceneOf(GetParam()).size.height);
    EXPECT_GE(sceneOf(GetParam(), 360).size.height, sceneOf(GetParam(), 460).size.height);
}

TEST(WelcomeView, ShowsEveryTextInTheUsersLanguageButTheCaption) {
    static const sim::FixedAdvanceMeasurer measurer;
    const ui::LayoutContext marking{measurer,
                                    [](std::string_view key) { return "[" + std::string(key) + "]"; },
                                    [](std::string_view text) { return std::string(text); }};
    for (const PageState& state : pageStates()) {
        const ui::Scene scene = ui::layOut(WelcomeView{modelFor(state), 460}.body(), {}, marking).scene;
        std::vector<std::string> texts = ui::shownTexts(scene);
        if (state.step == Step::accessibility) {
            ASSERT_EQ(texts.at(0), "Step 2 of 2");
            texts.erase(texts.begin());
        }
        for (const std::string& title : ui::buttonTitles(scene)) {
            texts.push_back(title);
        }
        EXPECT_THAT(texts,
                    ::testing::Each(::testing::AllOf(::testing::StartsWith("["), ::testing::EndsWith("]"))));
    }
}

// All of it as text, at several widths and in a language with longer texts. KESTRUNE_REWRITE=1 in the
// environment writes the file anew.
TEST(WelcomeView, IsLaidOutAsItWas) {
    std::string layouts;
    for (const PageState& state : pageStates()) {
        for (const double width : {360.0, 460.0, 600.0}) {
            for (const double lengthened : {1.0, 1.4}) {
                layouts += state.name + ", " + std::to_string(static_cast<int>(width)) +
                           " points wide, texts " + (lengthened == 1 ? "in English" : "1.4 times as long") +
                           "\n" + ui::describe(sceneOf(state, width, lengthened)) + "\n";
            }
        }
    }
    layouts.pop_back(); // the empty line at the end
    if (std::getenv("KESTRUNE_REWRITE") != nullptr) {
        std::ofstream(KESTRUNE_WELCOME_LAYOUTS) << layouts;
    }
    EXPECT_EQ(layouts, contentOf(KESTRUNE_WELCOME_LAYOUTS));
}

TEST(WelcomeView, CallsTheActionsOfItsModel) {
    std::vector<std::string> called;
    const auto press = [&called](const PageState& state) {
        const auto model = modelFor(state);
        model->advanceFromIntro = [&called] { called.emplace_back("advanceFromIntro"); };
        model->requestPermissions = [&called] { called.emplace_back("requestPermissions"); };
        model->openAccessibilitySettings = [&called] { called.emplace_back("openAccessibilitySettings"); };
        model->finish = [&called] { called.emplace_back("finish"); };
        for (const auto& action : layOut(WelcomeView{model, 460}.body()).actions) {
            action();
        }
    };
    press(pageStates()[0]);
    press(pageStates()[2]);
    press(pageStates()[3]);
    EXPECT_THAT(called, ::testing::ElementsAre("advanceFromIntro", "openAccessibilitySettings",
                                               "requestPermissions", "finish"));
}

TEST(WelcomeView, GivesReturnToGetStartedAndFinishAlone) {
    const auto shortcut = [](const PageState& state) {
        return ui::elementsOf<ui::ButtonElement>(sceneOf(state)).back().shortcut;
    };
    EXPECT_EQ(shortcut(pageStates()[0]), ui::KeyboardShortcut::defaultAction);
    EXPECT_EQ(shortcut(pageStates()[1]), ui::KeyboardShortcut::none);
    EXPECT_EQ(shortcut(pageStates()[2]), ui::KeyboardShortcut::none);
    EXPECT_EQ(shortcut(pageStates()[3]), ui::KeyboardShortcut::defaultAction);
}

const ui::ShapeElement& fillOf(const std::vector<ui::Drawing>& body) {
    return std::get<ui::ShapeElement>(body.at(0));
}

TEST(AccentProminentButtonStyle, DimsNothingButItsFillWhileItIsPressed) {
    const ui::ButtonElement button = ui::elementsOf<ui::ButtonElement>(sceneOf(pageStates()[0])).at(0);
    ASSERT_EQ(button.body.size(), 2U);
    ASSERT_EQ(button.pressedBody.size(), 2U);
    EXPECT_EQ(fillOf(button.body).opacity, 1);
    EXPECT_EQ(fillOf(button.pressedBody).opacity, 0.75);
    EXPECT_EQ(button.body[1], button.pressedBody[1]);
}

TEST(AccentProminentButtonStyle, FillsItsButtonBehindTheLabel) {
    const ui::ButtonElement button = ui::elementsOf<ui::ButtonElement>(sceneOf(pageStates()[0])).at(0);
    const ui::ShapeElement& fill = fillOf(button.body);
    EXPECT_EQ(fill.frame, button.frame);
    EXPECT_EQ(fill.cornerRadius, 6);
    EXPECT_EQ(fill.cornerStyle, ui::CornerStyle::continuous);
    EXPECT_EQ(fill.fill, ui::Color::accent);
    const auto& label = std::get<ui::TextElement>(button.body.at(1));
    EXPECT_EQ(label.text.color, ui::Color::white);
    EXPECT_EQ(label.text.font, (ui::Font{13, ui::FontWeight::semibold, ui::TextStyle::body}));
    EXPECT_EQ(button.frame.height(), 32); // a line of 16 between 8 and 8
    EXPECT_EQ(button.frame.width(), label.frame.width() + 32);
}

TEST(AccentProminentButtonStyle, TakesTheColoursItIsGiven) {
    const AccentProminentButtonStyle style(ui::Color::green, ui::Color::primary);
    const ui::Scene scene = layOut(style.makeBody({ui::VerbatimText("label")})).scene;
    EXPECT_EQ(std::get<ui::ShapeElement>(scene.elements.at(0)).fill, ui::Color::green);
    EXPECT_EQ(std::get<ui::TextElement>(scene.elements.at(1)).text.color, ui::Color::primary);
}

} // namespace
} // namespace kestrune
