// Declarative views in windows: what they show, what their controls do, and when they are laid out again.
#include "tests/contract/HostedViews.h"
#include "tests/contract/WindowFixture.h"
#include "ui/View.h"

namespace kestrune::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A size that no font has a part in.
ui::View block(double width, double height) {
    return ui::RoundedRectangle({}).frame({.width = width, .height = height});
}

BundleFiles withStrings() {
    BundleFiles files;
    files.localizedStrings = {
        {"Hello", "Bonjour"}, {"Press **here**", "Appuyez **ici**"}, {"OK", "D'accord"}};
    return files;
}

class HostingContract : public WindowFixture {
protected:
    HostingContract() : WindowFixture(withStrings()) {}

    // Shows what `body` describes, anew after every change of `model_`.
    void host(std::function<ui::View()> body) {
        HostingController controller({std::move(body), model_});
        controller.setSizingOptions(HostingSizingOptions::preferredContentSize);
        window_->setContentViewController(controller);
        show(*window_);
    }

    ShownWindow shown() { return world_.shownWindows().at(0); }

    std::shared_ptr<Counter> model_ = std::make_shared<Counter>();
    std::optional<Window> window_ = makeWindow("one");
};

TEST_F(HostingContract, GivesTheWindowTheSizeOfTheView) {
    host([] { return block(240, 90); });
    EXPECT_EQ(shown().content.size, (Size{240, 90}));
}

TEST_F(HostingContract, LetsTheWindowGrowFromItsTopLeftCorner) {
    host([this] { return block(240, model_->value == 0 ? 90 : 150); });
    const Rect before = shown().content;
    model_->value = 1;
    EXPECT_EQ(shown().content, before);
    world_.runMainQueue();
    const Rect after = shown().content;
    EXPECT_EQ(after.size, (Size{240, 150}));
    EXPECT_EQ(after.minX(), before.minX());
    EXPECT_EQ(after.maxY(), before.maxY());
}

TEST_F(HostingContract, LeavesTheWindowAloneUnlessItIsToFollow) {
    HostingController controller({[this] { return block(240, model_->value == 0 ? 90 : 150); }, model_});
    window_->setContentViewController(controller);
    show(*window_);
    EXPECT_EQ(shown().content.size, (Size{240, 90}));
    model_->value = 1;
    world_.runMainQueue();
    EXPECT_EQ(shown().content.size, (Size{240, 90}));
}

TEST_F(HostingContract, LeavesTheWindowAloneWhenItIsToldNotToFollow) {
    HostingController controller({[this] { return block(240, model_->value == 0 ? 90 : 150); }, model_});
    window_->setContentViewController(controller);
    show(*window_);
    model_->value = 1;
    world_.runMainQueue();
    controller.setSizingOptions(HostingSizingOptions::none);
    world_.runMainQueue();
    EXPECT_EQ(shown().content.size, (Size{240, 90}));
    controller.setSizingOptions(HostingSizingOptions::preferredContentSize);
    world_.runMainQueue();
    EXPECT_EQ(shown().content.size, (Size{240, 150}));
}

TEST_F(HostingContract, ShowsTextsInTheUsersLanguage) {
    host([] {
        return ui::VStack({}, {ui::Text("Hello"), ui::Text("Unknown"), ui::VerbatimText("Hello"),
                               ui::Text("Press **here**")});
    });
    EXPECT_THAT(shown().texts, ElementsAre("Bonjour", "Unknown", "Hello", "Appuyez ici"));
}

TEST_F(HostingContract, ShowsUpperCaseInTheUsersLanguage) {
    host([] { return ui::VerbatimText("étape 2 of 2").textCase(ui::TextCase::uppercase); });
    EXPECT_THAT(shown().texts, ElementsAre("ÉTAPE 2 OF 2"));
}

TEST_F(HostingContract, ShowsWhatTheModelHasBecome) {
    host([this] { return ui::VerbatimText("value " + std::to_string(model_->value)); });
    EXPECT_THAT(shown().texts, ElementsAre("value 0"));
    model_->value = 7;
    world_.runMainQueue();
    EXPECT_THAT(shown().texts, ElementsAre("value 7"));
}

TEST_F(HostingContract, DescribesTheViewOncePerTurnHoweverOftenTheModelChanges) {
    int descriptions = 0;
    host([&descriptions] {
        ++descriptions;
        return block(10, 10);
    });
    descriptions = 0;
    model_->value = 1;
    model_->value = 2;
    model_->value = 3;
    EXPECT_EQ(descriptions, 0);
    world_.runMainQueue();
    EXPECT_EQ(descriptions, 1);
    world_.runMainQueue();
    EXPECT_EQ(descriptions, 1);
}

TEST_F(HostingContract, DescribesNothingAfterItsWindowHasGone) {
    int descriptions = 0;
    host([&descriptions] {
        ++descriptions;
        return block(10, 10);
    });
    model_->value = 1;
    descriptions = 0;
    window_.reset();
    world_.runMainQueue();
    model_->value = 2;
    world_.runMainQueue();
    EXPECT_EQ(descriptions, 0);
}

TEST_F(HostingContract, RunsTheActionOfTheButtonThatIsPressed) {
    std::vector<std::string> pressed;
    host([&pressed] {
        return ui::VStack({}, {ui::Button("OK", [&pressed] { pressed.emplace_back("first"); }),
                               ui::Button("Other", [&pressed] { pressed.emplace_back("second"); })});
    });
    EXPECT_THAT(shown().buttons, ElementsAre("D'accord", "Other"));
    world_.clickButton("Other");
    world_.clickButton("D'accord");
    EXPECT_THAT(pressed, ElementsAre("second", "first"));
}

TEST_F(HostingContract, RunsTheActionThatTheViewHasNow) {
    std::vector<int> pressed;
    host([this, &pressed] {
        return ui::Button("OK", [&pressed, value = model_->value.value()] { pressed.push_back(value); });
    });
    world_.clickButton("D'accord");
    model_->value = 5;
    world_.runMainQueue();
    world_.clickButton("D'accord");
    EXPECT_THAT(pressed, ElementsAre(0, 5));
}

TEST_F(HostingContract, PressesButtonsOfEveryStyle) {
    int pressed = 0;
    host([&pressed] {
        return ui::VStack(
            {},
            {ui::Button("filled", [&pressed] { pressed += 1; }).buttonStyle(std::make_shared<FilledStyle>()),
             ui::Button("link", [&pressed] { pressed += 10; }).buttonStyle(ui::ButtonStyle::link())});
    });
    EXPECT_THAT(shown().buttons, ElementsAre("filled", "link"));
    world_.clickButton("filled");
    world_.clickButton("link");
    EXPECT_EQ(pressed, 11);
}

TEST_F(HostingContract, PressesTheDefaultButtonOfTheKeyWindowWithReturn) {
    int pressed = 0;
    host([this, &pressed] {
        const ui::View button =
            ui::Button("filled", [&pressed] { ++pressed; }).buttonStyle(std::make_shared<FilledStyle>());
        return model_->value == 0 ? button : button.keyboardShortcut(ui::KeyboardShortcut::defaultAction);
    });
    world_.pressKey("\r", EventModifierFlags::none);
    EXPECT_EQ(pressed, 0);
    model_->value = 1;
    world_.runMainQueue();
    world_.pressKey("\r", EventModifierFlags::none);
    EXPECT_EQ(pressed, 1);
}

TEST_F(HostingContract, LeavesReturnToTheWindowWithTheKeys) {
    int pressed = 0;
    host([&pressed] {
        return ui::Button("OK", [&pressed] { ++pressed; })
            .keyboardShortcut(ui::KeyboardShortcut::defaultAction);
    });
    Window other = makeWindow("other");
    show(other);
    world_.pressKey("\r", EventModifierFlags::none);
    EXPECT_EQ(pressed, 0);
}

TEST_F(HostingContract, FlipsASwitch) {
    std::vector<bool> flips;
    host([this, &flips] {
        return ui::Toggle("Hello", model_->value != 0, [this, &flips](bool isOn) {
            flips.push_back(isOn);
            model_->value = isOn ? 1 : 0;
        });
    });
    EXPECT_THAT(shown().texts, ElementsAre("Bonjour"));
    EXPECT_THAT(shown().switches, ElementsAre(false));
    world_.clickSwitch(0);
    world_.runMainQueue();
    EXPECT_THAT(shown().switches, ElementsAre(true));
    world_.clickSwitch(0);
    world_.runMainQueue();
    EXPECT_THAT(shown().switches, ElementsAre(false));
    EXPECT_THAT(flips, ElementsAre(true, false));
}

TEST_F(HostingContract, TellsVoiceOverWhatToReadAndWhatToPassOver) {
    using Role = AccessibleElement::Role;
    host([] {
        return ui::VStack({},
                          {ui::Text("Hello").accessibilityHidden(), ui::VerbatimText("read"),
                           ui::SystemImage("checkmark.circle.fill"), block(10, 10), ui::Button("OK", [] {}),
                           ui::Button("filled", [] {}).buttonStyle(std::make_shared<FilledStyle>()),
                           ui::Button("link", [] {}).buttonStyle(ui::ButtonStyle::link()),
                           ui::Toggle("Launch", true, [](bool) {})});
    });
    EXPECT_THAT(
        shown().elements,
        ElementsAre(
            AccessibleElement{Role::text, "Bonjour", false}, AccessibleElement{Role::text, "read", true},
            AccessibleElement{Role::image, "", false}, AccessibleElement{Role::shape, "", false},
            AccessibleElement{Role::button, "D'accord", true},
            AccessibleElement{Role::button, "filled", true}, AccessibleElement{Role::button, "link", true},
            AccessibleElement{Role::text, "Launch", false}, // the switch has it
            AccessibleElement{Role::toggle, "Launch", true}));
}

TEST_F(HostingContract, TellsVoiceOverOfATextThatIsHiddenLater) {
    host([this] {
        const ui::View text = ui::VerbatimText("text");
        return model_->value == 0 ? text : text.accessibilityHidden();
    });
    EXPECT_TRUE(shown().elements.at(0).isReadOut);
    model_->value = 1;
    world_.runMainQueue();
    EXPECT_FALSE(shown().elements.at(0).isReadOut);
}

TEST_F(HostingContract, SurvivesAButtonThatLetsGoOfItsWindow) {
    bool isPressed = false;
    host([this, &isPressed] {
        return ui::Button("OK", [this, &isPressed] {
            window_->orderOut();
            window_.reset();
            isPressed = true;
        });
    });
    world_.clickButton("D'accord");
    world_.runMainQueue();
    EXPECT_TRUE(isPressed);
    EXPECT_THAT(world_.shownWindows(), IsEmpty());
}

TEST_F(HostingContract, SurvivesAChangeOfTheModelByItsOwnButton) {
    host([this] {
        return ui::Button("OK", [this] { model_->value = model_->value + 1; })
            .padding(model_->value); // so that it looks different each time
    });
    world_.clickButton("D'accord");
    world_.runMainQueue();
    world_.clickButton("D'accord");
    world_.runMainQueue();
    EXPECT_EQ(model_->value, 2);
}

TEST_F(HostingContract, RendersAgainWhenItsFirstDescriptionChangesTheModel) {
    host([this] {
        if (model_->value < 2) {
            model_->value = model_->value + 1;
        }
        return ui::VerbatimText("value " + std::to_string(model_->value));
    });
    world_.runMainQueue();
    EXPECT_THAT(shown().texts, ElementsAre("value 2"));
    model_->value = 5;
    world_.runMainQueue();
    EXPECT_THAT(shown().texts, ElementsAre("value 5"));
}

TEST_F(HostingContract, MayBeTheContentItselfWhichTheWindowFollows) {
    const HostingView view({[this] { return block(240, model_->value == 0 ? 90 : 150); }, model_});
    window_->setContentView(view);
    show(*window_);
    const Rect before = shown().content;
    EXPECT_EQ(before.size, (Size{240, 90}));
    model_->value = 1;
    world_.runMainQueue();
    EXPECT_EQ(shown().content.size, (Size{240, 150}));
    EXPECT_EQ(shown().content.maxY(), before.maxY());
}

} // namespace
} // namespace kestrune::contract
