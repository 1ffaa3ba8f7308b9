// Fonts by the platform's text styles, or by size.
//
// Sizes are in points. Source of sizes and line heights: Apple's Human Interface Guidelines, "Typography",
// macOS built-in text styles.
#pragma once

#include <optional>

namespace kestrune::ui {

enum class TextStyle {
    largeTitle,
    title,
    title2,
    title3,
    headline,
    body,
    callout,
    subheadline,
    footnote,
    caption,
    caption2,
};

enum class FontWeight { ultraLight, thin, light, regular, medium, semibold, bold, heavy, black };

struct Font {
    double size = 13;
    FontWeight weight = FontWeight::regular;

    // Absent for a font of a size of its own.
    std::optional<TextStyle> style = TextStyle::body;

    // The system's font for a text style, in the style's own size and weight.
    static Font preferred(TextStyle style);

    // The system's font.
    static constexpr Font system(double size, FontWeight weight = FontWeight::regular) {
        return {size, weight, std::nullopt};
    }

    friend bool operator==(const Font&, const Font&) = default;
};

// The height of one line in a text style.
double lineHeight(TextStyle style);

} // namespace kestrune::ui
