// What a view has become: placed elements of plain data, in the order in which they are painted and read out.
//
// Frames are in points, in the content's coordinates: origin at its top left corner, y downwards. They lie on
// whole points, and none is smaller than what was measured.
#pragma once

#include "base/Geometry.h"
#include "ui/Font.h"
#include "ui/Style.h"

#include <cstddef>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::ui {

// A part of a text in one weight.
struct TextRun {
    std::string text;
    FontWeight weight = FontWeight::regular;

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

struct StyledText {
    std::vector<TextRun> runs;
    Font font; // its weight is that of the text as a whole; a run has its own
    Color color = Color::primary;
    TextAlignment alignment = TextAlignment::leading;

    // The runs in one piece.
    std::string string() const;

    friend bool operator==(const StyledText&, const StyledText&) = default;
};

struct StyledSymbol {
    std::string name;
    Font font;
    ImageScale scale = ImageScale::medium;
    Color color = Color::primary;

    friend bool operator==(const StyledSymbol&, const StyledSymbol&) = default;
};

struct TextElement {
    Rect frame;
    StyledText text;
    bool isAccessibilityHidden = false; // VoiceOver passes it over

    friend bool operator==(const TextElement&, const TextElement&) = default;
};

// The symbol lies in the middle of its frame.
struct SymbolElement {
    Rect frame;
    StyledSymbol symbol;

    friend bool operator==(const SymbolElement&, const SymbolElement&) = default;
};

struct ShapeElement {
    Rect frame;
    double cornerRadius = 0;
    CornerStyle cornerStyle = CornerStyle::circular;
    Color fill = Color::primary;
    double opacity = 1;
    double lineWidth = 0; // of a line along the inner side of its edge; 0: all of it is filled

    friend bool operator==(const ShapeElement&, const ShapeElement&) = default;
};

using Drawing = std::variant<TextElement, SymbolElement, ShapeElement>;

struct ButtonElement {
    enum class Kind { bordered, link, custom };

    Rect frame;
    Kind kind = Kind::bordered;
    std::string title; // what is read out
    ControlSize size = ControlSize::regular;
    ButtonRole role = ButtonRole::none;
    KeyboardShortcut shortcut = KeyboardShortcut::none;
    std::size_t action = 0; // of `Rendering::actions`

    // A link's text; of a custom button everything that is drawn, at rest and while it is pressed, in the
    // content's coordinates. A bordered button has none: the platform draws it.
    std::vector<Drawing> body;
    std::vector<Drawing> pressedBody;

    friend bool operator==(const ButtonElement&, const ButtonElement&) = default;
};

// The switch alone; its label is a text of its own.
struct ToggleElement {
    Rect frame;
    std::string title; // what is read out
    ControlSize size = ControlSize::regular;
    bool isOn = false;
    std::size_t action = 0; // of `Rendering::switches`

    friend bool operator==(const ToggleElement&, const ToggleElement&) = default;
};

using Element = std::variant<TextElement, SymbolElement, ShapeElement, ButtonElement, ToggleElement>;

struct Scene {
    Size size;
    std::vector<Element> elements;

    friend bool operator==(const Scene&, const Scene&) = default;
};

// A scene and what its controls do. Two renderings with equal scenes look the same, whatever they do.
struct Rendering {
    Scene scene;
    std::vector<std::function<void()>> actions;
    std::vector<std::function<void(bool)>> switches;
};

} // namespace kestrune::ui
