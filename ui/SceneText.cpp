#include "ui/SceneText.h"

#include "ui/StyleNames.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace kestrune::ui {

namespace {

// Up to three decimals.
std::string number(double value) {
    const long long thousandths = std::llround(std::abs(value) * 1000);
    std::string text = (value < 0 && thousandths > 0 ? "-" : "") + std::to_string(thousandths / 1000);
    if (thousandths % 1000 != 0) {
        const std::string decimals = std::to_string(1000 + thousandths % 1000);
        text += '.' + decimals.substr(1, decimals.find_last_not_of('0'));
    }
    return text;
}

std::string quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '\n') {
            quoted += "\\n";
            continue;
        }
        if (character == '"' || character == '\\') {
            quoted += '\\';
        }
        quoted += character;
    }
    return quoted + '"';
}

std::string sizeText(const Size& size) { return number(size.width) + 'x' + number(size.height); }

std::string placeText(const Rect& frame) {
    return number(frame.origin.x) + ',' + number(frame.origin.y) + ' ' + sizeText(frame.size);
}

template <typename Named>
std::string unlessUsual(Named value, Named usual) {
    if (value == usual) {
        return {};
    }
    return ' ' + std::string(nameOf(value));
}

std::string fontText(const Font& font) {
    if (!font.style) {
        return ' ' + number(font.size) + "pt" + unlessUsual(font.weight, FontWeight::regular);
    }
    const FontWeight usual = Font::preferred(*font.style).weight;
    return ' ' + std::string(nameOf(*font.style)) + unlessUsual(font.weight, usual);
}

std::string line(const TextElement& element) {
    const StyledText& text = element.text;
    std::string line = "text " + placeText(element.frame);
    for (const TextRun& run : text.runs) {
        line += ' ';
        if (run.weight != text.font.weight) {
            line += std::string(nameOf(run.weight)) + ':';
        }
        line += quoted(run.text);
    }
    return line + fontText(text.font) + unlessUsual(text.color, Color::primary) +
           unlessUsual(text.alignment, TextAlignment::leading) +
           (element.isAccessibilityHidden ? " accessibilityHidden" : "");
}

std::string line(const SymbolElement& element) {
    const StyledSymbol& symbol = element.symbol;
    return "symbol " + placeText(element.frame) + ' ' + symbol.name + fontText(symbol.font) +
           unlessUsual(symbol.scale, ImageScale::medium) + unlessUsual(symbol.color, Color::primary);
}

std::string line(const ShapeElement& element) {
    std::string line = "shape " + placeText(element.frame);
    if (element.cornerRadius > 0) {
        line += " radius " + number(element.cornerRadius) +
                unlessUsual(element.cornerStyle, CornerStyle::circular);
    }
    if (element.lineWidth > 0) {
        line += " line " + number(element.lineWidth);
    }
    line += ' ' + std::string(nameOf(element.fill));
    if (element.opacity != 1) {
        line += " opacity " + number(element.opacity);
    }
    return line;
}

std::string_view nameOf(ButtonElement::Kind kind) {
    constexpr std::array<std::string_view, 3> names{"bordered", "link", "custom"};
    return names.at(static_cast<std::size_t>(kind));
}

std::string drawingLines(const std::vector<Drawing>& drawings, std::string_view before) {
    std::string lines;
    for (const Drawing& drawing : drawings) {
        lines += "\n    " + std::string(before) +
                 std::visit([](const auto& placed) { return line(placed); }, drawing);
    }
    return lines;
}

std::string line(const ButtonElement& element) {
    return "button " + placeText(element.frame) + ' ' + quoted(element.title) + ' ' +
           std::string(nameOf(element.kind)) + unlessUsual(element.size, ControlSize::regular) +
           unlessUsual(element.role, ButtonRole::none) +
           unlessUsual(element.shortcut, KeyboardShortcut::none) + " action " +
           std::to_string(element.action) + drawingLines(element.body, "") +
           drawingLines(element.pressedBody, "pressed ");
}

std::string line(const ToggleElement& element) {
    return "toggle " + placeText(element.frame) + ' ' + quoted(element.title) +
           (element.isOn ? " on" : " off") + unlessUsual(element.size, ControlSize::regular) + " switch " +
           std::to_string(element.action);
}

} // namespace

std::string describe(const Scene& scene) {
    std::string text = "scene " + sizeText(scene.size) + '\n';
    for (const Element& element : scene.elements) {
        text += "  " + std::visit([](const auto& placed) { return line(placed); }, element) + '\n';
    }
    return text;
}

} // namespace kestrune::ui
