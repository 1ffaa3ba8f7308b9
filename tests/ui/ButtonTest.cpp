#include "tests/ui/LayoutFixture.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace kestrune::ui {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class AButton : public LayoutFixture {};

// A label on a filled shape that fades while it is pressed.
class FilledStyle final : public ButtonStyle {
public:
    View makeBody(const Configuration& configuration) const override {
        const double opacity = configuration.isPressed ? 0.75 : 1;
        return configuration.label.padding(4).background(
            RoundedRectangle({.fill = Color::accent, .opacity = opacity}));
    }
};

// A body from a function.
class StyleFrom final : public ButtonStyle {
public:
    explicit StyleFrom(std::function<View(const Configuration&)> body) : body_(std::move(body)) {}

    View makeBody(const Configuration& configuration) const override { return body_(configuration); }

private:
    std::function<View(const Configuration&)> body_;
};

std::shared_ptr<const ButtonStyle> styleFrom(std::function<View(const ButtonStyle::Configuration&)> body) {
    return std::make_shared<StyleFrom>(std::move(body));
}

View button(ButtonRole role = ButtonRole::none) {
    return Button(
        "Finish", [] {}, role);
}

} // namespace

TEST_F(AButton, IsAPushButtonOfTheSystemUnlessToldOtherwise) {
    EXPECT_EQ(describeView(button(), {.width = 400, .height = 400}),
              "scene 70x22\n"
              "  button 0,0 70x22 \"Finish\" bordered action 0\n");
    EXPECT_THAT(buttonOf(button()).body, IsEmpty());
    EXPECT_THAT(buttonOf(button()).pressedBody, IsEmpty());
}

TEST_F(AButton, OfTheSystemIsAsLargeAsItsControlSizeSays) {
    EXPECT_EQ(sizeOfView(button().controlSize(ControlSize::large)), (Size{70, 28}));
    EXPECT_EQ(sizeOfView(button().controlSize(ControlSize::small)), (Size{70, 18}));
}

TEST_F(AButton, CanBeToldToBeThatOfTheSystem) {
    const View view = button().buttonStyle(ButtonStyle::automatic()).buttonStyle(ButtonStyle::link());
    EXPECT_EQ(buttonOf(view).kind, ButtonElement::Kind::bordered);
}

TEST_F(AButton, HasItsRole) {
    EXPECT_EQ(buttonOf(button(ButtonRole::destructive)).role, ButtonRole::destructive);
    EXPECT_EQ(buttonOf(button()).role, ButtonRole::none);
}

TEST_F(AButton, IsReadOutInTheUsersLanguageWithoutMarkdown) {
    translations["Open"] = "**Jetzt** öffnen";
    EXPECT_EQ(buttonOf(Button("Open", [] {})).title, "Jetzt öffnen");
    EXPECT_EQ(buttonOf(Button("Open", [] {}).textCase(TextCase::uppercase)).title, "Jetzt öffnen");
}

TEST_F(AButton, ThatIsALinkIsATextInTheColourOfLinks) {
    EXPECT_EQ(describeView(button().buttonStyle(ButtonStyle::link()).foregroundStyle(Color::green)),
              "scene 42x16\n"
              "  button 0,0 42x16 \"Finish\" link action 0\n"
              "    text 0,0 42x16 \"Finish\" body link\n");
}

TEST_F(AButton, ThatIsASmallLinkHasASmallerFont) {
    const View link = button().buttonStyle(ButtonStyle::link());
    EXPECT_EQ(describeView(link.controlSize(ControlSize::small)),
              "scene 36x14\n"
              "  button 0,0 36x14 \"Finish\" link small action 0\n"
              "    text 0,0 36x14 \"Finish\" 11pt link\n");
    EXPECT_EQ(sizeOfView(link.controlSize(ControlSize::mini)), (Size{6 * 5, 11}));
    EXPECT_EQ(sizeOfView(link.controlSize(ControlSize::large)), (Size{42, 16}));
}

TEST_F(AButton, ThatIsASmallLinkHasTheFontThatItIsTold) {
    const View link = button().buttonStyle(ButtonStyle::link()).controlSize(ControlSize::small);
    EXPECT_EQ(sizeOfView(link.font(Font::preferred(TextStyle::title))), (Size{66, 26}));
}

TEST_F(AButton, OfACustomStyleIsDrawnAtRestAndPressed) {
    EXPECT_EQ(describeView(button().buttonStyle(std::make_shared<FilledStyle>()).padding(10)),
              "scene 70x44\n"
              "  button 10,10 50x24 \"Finish\" custom action 0\n"
              "    shape 10,10 50x24 accent\n"
              "    text 14,14 42x16 \"Finish\" body\n"
              "    pressed shape 10,10 50x24 accent opacity 0.75\n"
              "    pressed text 14,14 42x16 \"Finish\" body\n");
}

TEST_F(AButton, OfACustomStyleIsNotLargerForItsControlSize) {
    const View large = button().buttonStyle(std::make_shared<FilledStyle>()).controlSize(ControlSize::large);
    EXPECT_EQ(sizeOfView(large), (Size{50, 24}));
    EXPECT_EQ(buttonOf(large).size, ControlSize::large);
}

TEST_F(AButton, OfACustomStyleHasTheSizeThatItHasAtRest) {
    const auto style = styleFrom(
        [](const auto& configuration) { return configuration.isPressed ? Box(60, 40) : Box(40, 20); });
    EXPECT_EQ(describeView(button().buttonStyle(style)), "scene 40x20\n"
                                                         "  button 0,0 40x20 \"Finish\" custom action 0\n"
                                                         "    shape 0,0 40x20 primary\n"
                                                         "    pressed shape -10,-10 60x40 primary\n");
}

TEST_F(AButton, OfACustomStyleKnowsItsRole) {
    const auto style = styleFrom([](const auto& configuration) {
        return configuration.role == ButtonRole::cancel ? Box(40, 20) : Box(1, 1);
    });
    EXPECT_EQ(sizeOfView(button(ButtonRole::cancel).buttonStyle(style)), (Size{40, 20}));
}

TEST_F(AButton, OfACustomStyleInheritsWhatHoldsInItsPlace) {
    const View view = button().buttonStyle(std::make_shared<FilledStyle>()).foregroundStyle(Color::white);
    EXPECT_EQ(std::get<TextElement>(buttonOf(view).body.at(1)).text.color, Color::white);
}

TEST_F(AButton, OfACustomStyleWrapsItsLabelWhereThereIsLittleRoom) {
    const View view = Button("The Dock stays", [] {}).buttonStyle(std::make_shared<FilledStyle>());
    EXPECT_EQ(sizeOfView(view, {.width = 70}), (Size{70, 40}));
    EXPECT_EQ(buttonOf(view, {.width = 70}).frame, (Rect{0, 0, 70, 40}));
}

TEST_F(AButton, DrawsSymbolsAndLeavesControlsOutOfItsBody) {
    const auto style = styleFrom([](const auto& configuration) {
        return HStack({}, {SystemImage("a"), configuration.label, Button("Inside", [] {}),
                           Toggle("Inside", true, [](bool) {})});
    });
    const Rendering rendering = render(button().buttonStyle(style));
    EXPECT_THAT(rendering.scene.elements, SizeIs(1));
    EXPECT_THAT(rendering.actions, SizeIs(1));
    EXPECT_THAT(rendering.switches, IsEmpty());
    const auto& body = std::get<ButtonElement>(rendering.scene.elements[0]).body;
    ASSERT_THAT(body, SizeIs(3));
    EXPECT_EQ(std::get<SymbolElement>(body[0]).symbol.name, "a");
    EXPECT_EQ(std::get<TextElement>(body[1]).text.string(), "Finish");
    EXPECT_EQ(std::get<TextElement>(body[2]).text.string(), "Inside");
}

TEST_F(AButton, HasAnActionInTheOrderOfTheElements) {
    std::vector<int> pressed;
    const auto record = [&pressed](int number) { return [&pressed, number] { pressed.push_back(number); }; };
    const Rendering rendering =
        render(HStack({}, {Button("a", record(1)), Text("between"),
                           Button("b", record(2)).buttonStyle(std::make_shared<FilledStyle>()),
                           Button("c", record(3)).buttonStyle(ButtonStyle::link())}));
    ASSERT_THAT(rendering.actions, SizeIs(3));
    for (const Element& element : rendering.scene.elements) {
        if (const auto* const button = std::get_if<ButtonElement>(&element)) {
            rendering.actions.at(button->action)();
        }
    }
    EXPECT_THAT(pressed, ElementsAre(1, 2, 3));
}

TEST(ButtonStyle, OfTheSystemShowsTheLabelItself) {
    const View label = Text("Finish");
    EXPECT_EQ(&ButtonStyle::automatic()->makeBody({label}).node(), &label.node());
}

} // namespace kestrune::ui
