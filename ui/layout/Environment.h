// What a view inherits from the views around it.
#pragma once

#include "ui/Font.h"
#include "ui/Style.h"
#include "ui/View.h"
#include "ui/layout/Axis.h"

#include <memory>
#include <optional>

namespace kestrune::ui {

// What nobody has said is absent where the default depends on the view that asks.
struct Environment {
    std::optional<Font> font;
    std::optional<FontWeight> fontWeight;
    ForegroundStyle foregroundStyle = Color::primary;
    Color tint = Color::accent;
    TextCase textCase = TextCase::asWritten;
    TextAlignment multilineTextAlignment = TextAlignment::leading;
    ImageScale imageScale = ImageScale::medium;
    std::optional<ControlSize> controlSize;
    std::shared_ptr<const ButtonStyle> buttonStyle = ButtonStyle::automatic();
    FormStyle formStyle = FormStyle::automatic;
    KeyboardShortcut keyboardShortcut = KeyboardShortcut::none;

    // Of the stack around; a spacer grows along it.
    std::optional<Axis> stackAxis;

    bool isInGroupedForm = false;

    bool isAccessibilityHidden = false;

    // The font with the weight that was asked for apart from it.
    Font effectiveFont() const {
        Font effective = font ? *font : Font{};
        effective.weight = fontWeight.value_or(effective.weight);
        return effective;
    }

    Color foregroundColor() const { return foregroundStyle.isTint ? tint : foregroundStyle.color; }
};

} // namespace kestrune::ui
