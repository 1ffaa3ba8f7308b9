// Text in the desk's typeface, Inter, or the system's sans-serif where Inter is not installed.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/Color.h"
#include "ui/Scene.h"

#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrune::desk {

using ui::FontWeight;
using ui::TextAlignment;

// Of a single line.
struct TextStyle {
    double size = 13; // in user units
    FontWeight weight = FontWeight::regular;
    Color color = {};
    TextAlignment alignment = TextAlignment::leading;
    bool tabularNumbers = false;
    double maximumWidth = std::numeric_limits<double>::infinity(); // longer text ends in an ellipsis
};

// Sets text for one context, which must outlive it: what is measured is what is painted. Text is UTF-8;
// ill-formed bytes become replacement characters. Sizes are in user units.
class TextPainter {
public:
    // For measuring alone. Keep one: making it costs more than measuring.
    TextPainter();
    explicit TextPainter(cairo_t* context);

    double width(std::string_view text, const TextStyle& style);

    // Paints one line. `anchor` is the line's leading end, centre or trailing end by the style's alignment,
    // and halfway up its capital letters, so that text is centred optically beside shapes. Gives the painted
    // width.
    double paint(std::string_view text, Point anchor, const TextStyle& style);

    // A text of a scene, in one line for each paragraph, or wrapped at a width: between words, and inside a
    // word that is wider. Lines of a text style are as high as the style says.
    Size size(const ui::StyledText& text, std::optional<double> width);
    void paint(const ui::StyledText& text, const Rect& frame, const Color& color);

private:
    explicit TextPainter(ContextHandle own);

    void setLine(std::string_view text, const TextStyle& style);
    void setRuns(const std::vector<ui::TextRun>& runs, double size, PangoAttribute* more);
    void fill(Point topLeft, const Color& color);
    Size setSize() const;

    ContextHandle own_;
    cairo_t* context_;
    TextLayoutHandle layout_;
};

} // namespace kestrune::desk
