// Colours, alignments and sizes in the words of SwiftUI. A colour is a name: what it looks like is the
// platform's business, in light and in dark (ui/SystemColor.h).
#pragma once

#include <cstdint>

namespace kestrune::ui {

enum class Color {
    primary,   // of text
    secondary, // of text that explains
    tertiary,  // of text that matters least
    accent,    // the user's accent colour
    green,
    white,
    link,
    sectionFill,   // behind a section of a grouped form; what is behind that shines through
    sectionBorder, // along its edge, over the fill
    separator,     // between its rows
};

// What `foregroundStyle` takes: a colour, or the tint of the place where it is used.
struct ForegroundStyle {
    bool isTint = false;
    Color color = Color::primary;

    constexpr ForegroundStyle(Color named) : color(named) {} // NOLINT(google-explicit-constructor)
    static constexpr ForegroundStyle tint() {
        ForegroundStyle style(Color::accent);
        style.isTint = true;
        return style;
    }

    friend bool operator==(const ForegroundStyle&, const ForegroundStyle&) = default;
};

enum class HorizontalAlignment { leading, center, trailing };
enum class VerticalAlignment { top, center, bottom };

struct Alignment {
    HorizontalAlignment horizontal = HorizontalAlignment::center;
    VerticalAlignment vertical = VerticalAlignment::center;

    friend bool operator==(const Alignment&, const Alignment&) = default;
};

enum class TextAlignment { leading, center, trailing };
enum class TextCase { asWritten, uppercase };
enum class ImageScale { small, medium, large };
enum class ControlSize { mini, small, regular, large };
enum class ButtonRole { none, cancel, destructive };
enum class FormStyle { automatic, grouped };

// `circular` is a quarter of a circle at each corner; `continuous` eases into the edges.
enum class CornerStyle { circular, continuous };

// `defaultAction` is Return.
enum class KeyboardShortcut { none, defaultAction, cancelAction };

// Points; negative values let the content stick out.
struct EdgeInsets {
    double top = 0;
    double leading = 0;
    double bottom = 0;
    double trailing = 0;

    friend bool operator==(const EdgeInsets&, const EdgeInsets&) = default;
};

} // namespace kestrune::ui
