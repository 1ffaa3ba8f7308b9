// Windows with a scene, for the tests of their painting.
#pragma once

#include "desk/paint/mac/ScenePainter.h"
#include "desk/paint/mac/SystemPicture.h"
#include "tests/desk/paint/SystemPictures.h"

#include <cmath>
#include <string>

namespace kestrune::desk {

// Elements of the scene, by their places in it.
inline constexpr std::size_t Sentence = 0;
inline constexpr std::size_t Link = 1;
inline constexpr std::size_t Main = 2;
inline constexpr std::size_t Switch = 3;
inline constexpr std::size_t Push = 4;

// An own-drawn button as AccentProminentButtonStyle makes it.
inline ui::ButtonElement customButton(const Rect& frame, const std::string& title) {
    ui::ButtonElement button;
    button.frame = frame;
    button.kind = ui::ButtonElement::Kind::custom;
    button.title = title;
    button.shortcut = ui::KeyboardShortcut::defaultAction;
    ui::ShapeElement fill{frame, 6, ui::CornerStyle::continuous, ui::Color::accent, 1};
    const ui::TextElement label{{frame.minX() + 16, frame.minY() + 8, frame.width() - 32, 16},
                                {{{title, ui::FontWeight::semibold}}, {}, ui::Color::white}};
    button.body = {fill, label};
    fill.opacity = 0.75;
    button.pressedBody = {fill, label};
    return button;
}

// 300 × 200 points.
inline ui::Scene sceneWithControls() {
    ui::StyledText sentence;
    sentence.runs = {{"Kestrune needs a permission.", ui::FontWeight::regular}};
    ui::StyledText linkText = sentence;
    linkText.runs.front().text = "Settings";
    linkText.color = ui::Color::link;
    ui::ButtonElement link;
    link.frame = {20, 60, 70, 16};
    link.kind = ui::ButtonElement::Kind::link;
    link.title = "Settings";
    link.body = {ui::TextElement{link.frame, linkText}};
    link.pressedBody = link.body;
    ui::ToggleElement toggle;
    toggle.frame = {20, 100, 38, 22};
    toggle.title = "Launch at login";
    toggle.isOn = true;
    ui::ButtonElement push;
    push.frame = {20, 150, 90, 22};
    push.title = "Cancel";
    push.shortcut = ui::KeyboardShortcut::cancelAction;
    return {{300, 200},
            {ui::TextElement{{20, 20, 260, 16}, sentence}, link, customButton({120, 50, 150, 32}, "Continue"),
             toggle, push}};
}

// On the first of two displays.
inline WindowPicture windowWithControls() {
    WindowPicture window;
    window.number = 7;
    window.frame = {600, 400, 300, 228};
    window.title = "Kestrune";
    window.titleBarHeight = 28;
    window.isKey = true;
    window.scene = sceneWithControls();
    return window;
}

inline DeskPicture withWindow() {
    DeskPicture picture = withStatusItem();
    picture.windows = {windowWithControls()};
    return picture;
}

} // namespace kestrune::desk
