// Text in the desk's typeface, Inter, or the system's sans-serif where Inter is not installed.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Palette.h"
#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/PangoText.h"
#include "ui/Font.h"
#include "ui/Style.h"

#include <limits>
#include <string>
#include <string_view>

namespace kestrune::desk {

using ui::FontWeight;
using ui::TextAlignment;

struct TextStyle {
    double size = 13; // in user units
    FontWeight weight = FontWeight::regular;
    Color color = {};
    TextAlignment alignment = TextAlignment::leading;
    bool tabularNumbers = false;
    double maximumWidth = std::numeric_limits<double>::infinity(); // longer text ends in an ellipsis
};

// Paints into one context, which must outlive it. Text is UTF-8; ill-formed bytes become replacement
// characters.
class TextPainter {
public:
    explicit TextPainter(cairo_t* context);

    double width(std::string_view text, const TextStyle& style);

    // Paints one line. `anchor` is the line's leading end, centre or trailing end by the style's alignment,
    // and halfway up its capital letters, so that text is centred optically beside shapes. Gives the painted
    // width.
    double paint(std::string_view text, Point anchor, const TextStyle& style);

    // Paints text that wraps, centred in the area both ways; what does not fit ends in an ellipsis.
    void paintParagraph(std::string_view text, const Rect& area, const TextStyle& style);

    // The family of the font file that text is really set in.
    std::string resolvedFamily();

private:
    void prepare(std::string_view text, const TextStyle& style);
    void fillPrepared();
    Size preparedSize() const { return textSize(layout_.get()); }

    cairo_t* context_;
    TextLayoutHandle layout_;
};

} // namespace kestrune::desk
