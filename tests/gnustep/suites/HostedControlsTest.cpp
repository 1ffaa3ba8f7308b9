// What a button's and a switch's properties are to the platform.
#include "mac/hosting/Accessibility.h"
#include "mac/hosting/PlatformMeasurer.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/standins/appkit/Accessibility.h"
#include "tests/gnustep/standins/appkit/ControlMetrics.h"
#include "tests/gnustep/suites/ShownScene.h"

#include <string>

namespace kestrune::gnustep {
namespace {

using Kind = ui::ButtonElement::Kind;

// NSControlSize.
constexpr mac::Unsigned Regular = 0;
constexpr mac::Unsigned Small = 1;
constexpr mac::Unsigned Mini = 2;
constexpr mac::Unsigned Large = 3;

// NSCellStyleMask.
constexpr mac::Integer NothingChanges = 0;
constexpr mac::Integer PushesInAndChangesGrey = 2 | 4;

ui::ButtonElement buttonOf(Kind kind) {
    ui::ButtonElement element;
    element.frame = {20, 30, 100, 24};
    element.kind = kind;
    element.title = "OK";
    return element;
}

ui::ToggleElement toggleOf(ui::ControlSize size) {
    ui::ToggleElement element;
    element.frame = {20, 30, 38, 22};
    element.title = "switch";
    element.size = size;
    return element;
}

class HostedControlsOnGNUstep : public ShownScene {
protected:
    mac::Unsigned shownSize(ui::ControlSize size) {
        ui::ButtonElement element = buttonOf(Kind::bordered);
        element.size = size;
        return controlSize(show(element));
    }

    bool isDestructive(ui::ButtonRole role) {
        ui::ButtonElement element = buttonOf(Kind::bordered);
        element.role = role;
        return hasDestructiveAction(show(element));
    }

    std::string keyOf(Kind kind, ui::KeyboardShortcut shortcut) {
        ui::ButtonElement element = buttonOf(kind);
        element.shortcut = shortcut;
        return mac::textOf(send(show(element), "keyEquivalent"));
    }

    void expectAction(id control, const char* action, mac::Integer tag) {
        EXPECT_EQ(send(control, "target"), content());
        EXPECT_STREQ(sel_getName(send<SEL>(control, "action")), action);
        EXPECT_EQ(send<mac::Integer>(control, "tag"), tag);
    }
};

TEST_F(HostedControlsOnGNUstep, HaveThePlatformsNumberForEverySize) {
    EXPECT_EQ(shownSize(ui::ControlSize::mini), Mini);
    EXPECT_EQ(shownSize(ui::ControlSize::small), Small);
    EXPECT_EQ(shownSize(ui::ControlSize::regular), Regular);
    EXPECT_EQ(shownSize(ui::ControlSize::large), Large);
    for (const auto& [size, number] :
         {std::pair(ui::ControlSize::mini, Mini), std::pair(ui::ControlSize::small, Small),
          std::pair(ui::ControlSize::large, Large), std::pair(ui::ControlSize::regular, Regular)}) {
        EXPECT_EQ(controlSize(show(toggleOf(size))), number);
    }
}

TEST_F(HostedControlsOnGNUstep, SetATitleInTheFontOfTheirSize) {
    ui::ButtonElement element = buttonOf(Kind::bordered);
    for (const auto& [size, number] :
         {std::pair(ui::ControlSize::small, Small), std::pair(ui::ControlSize::regular, Regular)}) {
        element.size = size;
        EXPECT_EQ(send<double>(send(show(element), "font"), "pointSize"),
                  send<double>(classObject("NSFont"), "systemFontSizeForControlSize:", number));
    }
}

TEST_F(HostedControlsOnGNUstep, AreMeasuredInTheirSize) {
    const mac::PlatformMeasurer measurer;
    EXPECT_LT(measurer.measurePushButton("OK", ui::ControlSize::mini).width,
              measurer.measurePushButton("OK", ui::ControlSize::regular).width);
    EXPECT_GT(measurer.measurePushButton("A longer title", ui::ControlSize::regular).width,
              measurer.measurePushButton("OK", ui::ControlSize::regular).width);
    EXPECT_EQ(measurer.measureSwitch(ui::ControlSize::mini), (Size{26, 15}));
    EXPECT_EQ(measurer.measureSwitch(ui::ControlSize::regular), (Size{38, 22}));
}

TEST_F(HostedControlsOnGNUstep, AreDestructiveInThatRoleAlone) {
    EXPECT_TRUE(isDestructive(ui::ButtonRole::destructive));
    EXPECT_FALSE(isDestructive(ui::ButtonRole::cancel));
    EXPECT_TRUE(isDestructive(ui::ButtonRole::destructive));
    EXPECT_FALSE(isDestructive(ui::ButtonRole::none));
}

TEST_F(HostedControlsOnGNUstep, HaveTheKeyOfTheirShortcut) {
    for (const Kind kind : {Kind::bordered, Kind::custom, Kind::link}) {
        EXPECT_EQ(keyOf(kind, ui::KeyboardShortcut::defaultAction), "\r");
        EXPECT_EQ(keyOf(kind, ui::KeyboardShortcut::cancelAction), "\x1b");
        EXPECT_EQ(keyOf(kind, ui::KeyboardShortcut::none), "");
    }
}

TEST_F(HostedControlsOnGNUstep, SendTheirActionWithItsNumber) {
    for (const Kind kind : {Kind::bordered, Kind::custom, Kind::link}) {
        ui::ButtonElement button = buttonOf(kind);
        button.action = 3;
        expectAction(show(button), "pressButton:", 3);
        button.action = 5;
        expectAction(show(button), "pressButton:", 5);
    }
    ui::ToggleElement toggle = toggleOf(ui::ControlSize::regular);
    toggle.action = 4;
    expectAction(show(toggle), "flipSwitch:", 4);
}

TEST_F(HostedControlsOnGNUstep, DrawABorderedButtonWithThePlatformsBezel) {
    constexpr mac::Unsigned Push = 1; // NSBezelStylePush
    const id button = show(buttonOf(Kind::bordered));
    EXPECT_EQ(send<mac::Unsigned>(send(button, "cell"), "bezelStyle"), Push);
    EXPECT_NE(send<BOOL>(button, "isBordered"), 0);
    EXPECT_EQ(mac::textOf(send(button, "title")), "OK");
    EXPECT_EQ(send<Rect>(button, "frame"), Rect(20, 30, 100, 24));
}

TEST_F(HostedControlsOnGNUstep, DrawNoBorderAroundAButtonThatBringsItsLook) {
    for (const Kind kind : {Kind::custom, Kind::link}) {
        const id button = show(buttonOf(kind));
        EXPECT_EQ(send<BOOL>(button, "isBordered"), 0);
        EXPECT_EQ(send<BOOL>(button, "wantsUpdateLayer"), 0);
        EXPECT_NE(send<BOOL>(button, "isFlipped"), 0);
        EXPECT_EQ(send<Rect>(button, "frame"), Rect(20, 30, 100, 24));
    }
}

TEST_F(HostedControlsOnGNUstep, AreButtonsThatGoBackWhenTheyAreLetGo) {
    for (const Kind kind : {Kind::bordered, Kind::custom}) {
        const id cell = send(show(buttonOf(kind)), "cell");
        EXPECT_EQ(send<mac::Integer>(cell, "showsStateBy"), NothingChanges);
        EXPECT_EQ(send<mac::Integer>(cell, "highlightsBy"), PushesInAndChangesGrey);
    }
}

TEST_F(HostedControlsOnGNUstep, AreFlippedWhereTheyAreEnabled) {
    ui::ToggleElement element = toggleOf(ui::ControlSize::regular);
    element.isOn = true;
    const id toggle = show(element);
    EXPECT_NE(send<BOOL>(toggle, "isEnabled"), 0);
    EXPECT_EQ(send<mac::Integer>(toggle, "state"), 1);
    EXPECT_EQ(accessibilityLabel(toggle), "switch");
    element.isOn = false;
    EXPECT_EQ(show(element), toggle);
    EXPECT_EQ(send<mac::Integer>(toggle, "state"), 0);
}

TEST_F(HostedControlsOnGNUstep, MoveToTheirPlace) {
    for (const Kind kind : {Kind::bordered, Kind::custom}) {
        ui::ButtonElement element = buttonOf(kind);
        const id button = show(element);
        element.frame = {40, 50, 120, 28};
        EXPECT_EQ(show(element), button);
        EXPECT_EQ(send<Rect>(button, "frame"), Rect(40, 50, 120, 28));
    }
    ui::ToggleElement element = toggleOf(ui::ControlSize::regular);
    const id toggle = show(element);
    EXPECT_EQ(send<Rect>(toggle, "frame"), Rect(20, 30, 38, 22));
    element.frame = {40, 50, 38, 22};
    EXPECT_EQ(show(element), toggle);
    EXPECT_EQ(send<Rect>(toggle, "frame"), Rect(40, 50, 38, 22));
}

TEST_F(HostedControlsOnGNUstep, AreLeftAloneWhenTheirElementIsTheSame) {
    for (const Kind kind : {Kind::bordered, Kind::custom}) {
        const id button = show(buttonOf(kind));
        send<void>(button, "setTitle:", mac::nsString("somebody else's").get());
        send<void>(button, "setKeyEquivalent:", mac::nsString("x").get());
        send<void>(button, "setControlSize:", Mini);
        send<void>(button, "setHasDestructiveAction:", mac::truth(true));
        send<void>(button, "setFrame:", Rect(1, 2, 3, 4));
        EXPECT_EQ(show(buttonOf(kind)), button);
        EXPECT_EQ(mac::textOf(send(button, "title")), "somebody else's");
        EXPECT_EQ(mac::textOf(send(button, "keyEquivalent")), "x");
        EXPECT_EQ(controlSize(button), Mini);
        EXPECT_TRUE(hasDestructiveAction(button));
        EXPECT_EQ(send<Rect>(button, "frame"), Rect(1, 2, 3, 4));
    }
    const id toggle = show(toggleOf(ui::ControlSize::regular));
    send<void>(toggle, "setControlSize:", Mini);
    mac::setAccessibilityLabel(toggle, "somebody else's");
    send<void>(toggle, "setFrame:", Rect(1, 2, 3, 4));
    EXPECT_EQ(show(toggleOf(ui::ControlSize::regular)), toggle);
    EXPECT_EQ(controlSize(toggle), Mini);
    EXPECT_EQ(accessibilityLabel(toggle), "somebody else's");
    EXPECT_EQ(send<Rect>(toggle, "frame"), Rect(1, 2, 3, 4));
}

// What is no control has no cell that is asked.
TEST_F(HostedControlsOnGNUstep, AreReadOutAsIsSaidOfTheView) {
    const mac::Retained view = mac::newObject(mac::appKit.view);
    for (const bool isElement : {true, false}) {
        mac::setAccessibilityElement(view.get(), isElement);
        EXPECT_EQ(isAccessibilityElement(view.get()), isElement);
    }
    mac::setAccessibilityLabel(view.get(), "label");
    EXPECT_EQ(accessibilityLabel(view.get()), "label");
}

TEST_F(HostedControlsOnGNUstep, KeepTheirOrderUntilThereAreOthers) {
    const id button = show(buttonOf(Kind::custom));
    EXPECT_EQ(send(content(), "nextKeyView"), button);
    send<void>(content(), "setNextKeyView:", content());
    show(buttonOf(Kind::custom));
    EXPECT_EQ(send(content(), "nextKeyView"), content());
    ui::ButtonElement other = buttonOf(Kind::custom);
    other.title = "Cancel";
    EXPECT_NE(show(other), button);
    EXPECT_EQ(send(content(), "nextKeyView"), show(other));
}

TEST_F(HostedControlsOnGNUstep, AreOthersWithAnotherTitle) {
    ui::ToggleElement toggle = toggleOf(ui::ControlSize::regular);
    const mac::Retained first = mac::Retained::retaining(show(toggle));
    toggle.title = "other";
    EXPECT_NE(show(toggle), first.get());
    ui::ButtonElement button = buttonOf(Kind::custom);
    const mac::Retained second = mac::Retained::retaining(show(button));
    button.kind = Kind::link;
    EXPECT_NE(show(button), second.get());
}

} // namespace
} // namespace kestrune::gnustep
