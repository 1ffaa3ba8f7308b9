#include "tests/ui/LayoutFixture.h"

namespace kestrune::ui {

namespace {

class AGroupedForm : public LayoutFixture {
protected:
    static View form(std::vector<View> sections) {
        return Form(std::move(sections)).formStyle(FormStyle::grouped);
    }
};

class APlainForm : public LayoutFixture {};

View launchToggle() {
    return Toggle("Launch", true, [](bool) {});
}

} // namespace

TEST_F(AGroupedForm, HasABoxWithAMarginAroundEachSection) {
    EXPECT_EQ(describeView(form({Section({launchToggle()})}), {.width = 440}),
              "scene 440x76\n"
              "  shape 20,20 400x36 radius 10 continuous sectionFill\n"
              "  shape 20,20 400x36 radius 10 continuous line 1 sectionBorder\n"
              "  text 30,30 42x16 \"Launch\" body accessibilityHidden\n"
              "  toggle 378,29 32x18 \"Launch\" on small switch 0\n");
}

TEST_F(AGroupedForm, SeparatesTheRowsOfASection) {
    EXPECT_EQ(describeView(form({Section({Button("One", [] {}), Button("Two", [] {})})}), {.width = 440}),
              "scene 440x113\n"
              "  shape 20,20 400x73 radius 10 continuous sectionFill\n"
              "  shape 20,20 400x73 radius 10 continuous line 1 sectionBorder\n"
              "  button 30,27 49x22 \"One\" bordered action 0\n"
              "  shape 30,56 380x1 separator\n"
              "  button 30,64 49x22 \"Two\" bordered action 1\n");
}

TEST_F(AGroupedForm, LeavesTwentyPointsBetweenSections) {
    const View view = form({Section({Text("a")}), Section({Text("b")})});
    EXPECT_EQ(frameOf(view, 0, {.width = 440}), (Rect{20, 20, 400, 36}));
    EXPECT_EQ(frameOf(view, 3, {.width = 440}), (Rect{20, 76, 400, 36}));
    EXPECT_EQ(sizeOfView(view, {.width = 440}), (Size{440, 132}));
}

TEST_F(AGroupedForm, HasHigherRowsForHigherContent) {
    // 60 points of room: 32 + 2 * 7 for the lines.
    EXPECT_EQ(sizeOfView(form({Section({Text("The Dock stays")})}), {.width = 120}), (Size{120, 40 + 46}));
}

TEST_F(AGroupedForm, IsAsWideAsItsWidestRowWhenNothingIsOffered) {
    EXPECT_EQ(describeView(form({Section({Box(100, 10)}), Section({Text("a"), launchToggle()})})),
              "scene 160x169\n"
              "  shape 20,20 120x36 radius 10 continuous sectionFill\n"
              "  shape 20,20 120x36 radius 10 continuous line 1 sectionBorder\n"
              "  shape 30,33 100x10 primary\n"
              "  shape 20,76 120x73 radius 10 continuous sectionFill\n"
              "  shape 20,76 120x73 radius 10 continuous line 1 sectionBorder\n"
              "  text 30,86 7x16 \"a\" body\n"
              "  shape 30,112 100x1 separator\n"
              "  text 30,123 42x16 \"Launch\" body accessibilityHidden\n"
              "  toggle 98,122 32x18 \"Launch\" on small switch 0\n");
}

TEST_F(AGroupedForm, TakesTheHeightThatItIsOfferedWithItsRowsAtTheTop) {
    const View view = form({Section({Text("a")})});
    EXPECT_EQ(sizeOfView(view, {.width = 440, .height = 1000}), (Size{440, 1000}));
    EXPECT_EQ(frameOf(view, 0, {.width = 440, .height = 1000}), (Rect{20, 20, 400, 36}));
}

TEST_F(AGroupedForm, IsNeverLessHighThanItsRows) {
    const View view = form({Section({Text("a")})});
    EXPECT_EQ(sizeOfView(view, {.width = 440, .height = 10}), (Size{440, 76}));
    EXPECT_EQ(sizeOfView(form({Section({Box(10, 50)})}), {.width = 440, .height = 10}), (Size{440, 104}));
}

TEST_F(AGroupedForm, HasASwitchOfTheSizeThatItIsTold) {
    const Scene scene = render(form({Section({launchToggle().controlSize(ControlSize::mini)})})).scene;
    EXPECT_EQ(std::get<ToggleElement>(scene.elements.at(3)).size, ControlSize::mini);
}

TEST_F(AGroupedForm, CanHaveASectionWithoutRows) {
    EXPECT_EQ(describeView(form({Section({})}), {.width = 100}), "scene 40x40\n");
}

TEST_F(APlainForm, StandsItsRowsUnderOneAnother) {
    EXPECT_EQ(describeView(Form({Section({Text("a"), launchToggle()}), Section({Button("One", [] {})})}),
                           {.width = 440}),
              "scene 88x88\n"
              "  text 0,0 7x16 \"a\" body\n"
              "  text 0,27 42x16 \"Launch\" body accessibilityHidden\n"
              "  toggle 50,24 38x22 \"Launch\" on switch 0\n"
              "  button 0,66 49x22 \"One\" bordered action 0\n");
}

TEST_F(APlainForm, StandsTheRowsOfASectionOfItsOwnUnderOneAnother) {
    EXPECT_EQ(sizeOfView(Section({Box(30, 20), Box(40, 20)}).formStyle(FormStyle::grouped)), (Size{40, 48}));
}

} // namespace kestrune::ui
