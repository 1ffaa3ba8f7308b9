#include "desk/paint/toolkit/Text.h"

#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace kestrune::desk {
namespace {

// Height of Inter's capital letters as a part of the font size.
constexpr double CapitalHeight = 0.727;

double fromPango(int units) { return static_cast<double>(units) / PANGO_SCALE; }

// -1, which Pango takes for no limit, for what is not finite or too long.
int toPango(double units) {
    constexpr double Unlimited = 100000;
    return std::isfinite(units) && units < Unlimited ? std::max(0, static_cast<int>(units * PANGO_SCALE))
                                                     : -1;
}

// Measures and paints at every scale alike: with unhinted outlines at fractional positions, which also keep
// the spacing that the typeface was drawn with.
TextLayoutHandle makeTextLayout(cairo_t* context) {
    TextLayoutHandle layout{pango_cairo_create_layout(context)};
    const FontOptionsHandle options{cairo_font_options_create()};
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    PangoContext* const pangoContext = pango_layout_get_context(layout.get());
    pango_cairo_context_set_font_options(pangoContext, options.get());
    pango_context_set_round_glyph_positions(pangoContext, FALSE);
    pango_layout_context_changed(layout.get());
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    return layout;
}

// In Pango's units, for a font size in user units. Larger text is set tighter.
int letterSpacing(double size) {
    const double tightening = std::clamp((size - 11) * 0.0018, 0.0, 0.02);
    return -static_cast<int>(std::lround(tightening * size * PANGO_SCALE));
}

// The lightest of all is one step up in Pango's words.
PangoWeight pangoWeight(ui::FontWeight weight) {
    constexpr std::array Weights{PANGO_WEIGHT_THIN,   PANGO_WEIGHT_ULTRALIGHT, PANGO_WEIGHT_LIGHT,
                                 PANGO_WEIGHT_NORMAL, PANGO_WEIGHT_MEDIUM,     PANGO_WEIGHT_SEMIBOLD,
                                 PANGO_WEIGHT_BOLD,   PANGO_WEIGHT_ULTRABOLD,  PANGO_WEIGHT_HEAVY};
    return Weights.at(static_cast<std::size_t>(weight));
}

PangoAlignment pangoAlignment(TextAlignment alignment) {
    constexpr std::array Alignments{PANGO_ALIGN_LEFT, PANGO_ALIGN_CENTER, PANGO_ALIGN_RIGHT};
    return Alignments.at(static_cast<std::size_t>(alignment));
}

double heightOfLines(const ui::Font& font) {
    constexpr double UsualLeading = 1.2;
    return font.style ? ui::lineHeight(*font.style) : std::round(font.size * UsualLeading);
}

} // namespace

TextPainter::TextPainter()
    : TextPainter(ContextHandle{
          cairo_create(SurfaceHandle{cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1)}.get())}) {}

TextPainter::TextPainter(cairo_t* context) : context_(context), layout_(makeTextLayout(context)) {}

TextPainter::TextPainter(ContextHandle own)
    : own_(std::move(own)), context_(own_.get()), layout_(makeTextLayout(context_)) {}

double TextPainter::width(std::string_view text, const TextStyle& style) {
    setLine(text, style);
    return setSize().width;
}

double TextPainter::paint(std::string_view text, Point anchor, const TextStyle& style) {
    const double width = this->width(text, style);
    const double left = anchor.x - width * static_cast<double>(style.alignment) / 2;
    const double baseline = fromPango(pango_layout_get_baseline(layout_.get()));
    fill({left, anchor.y + style.size * CapitalHeight / 2 - baseline}, style.color);
    return width;
}

Size TextPainter::size(const ui::StyledText& text, std::optional<double> width) {
    setRuns(text.runs, text.font.size,
            pango_attr_line_height_new_absolute(toPango(heightOfLines(text.font))));
    pango_layout_set_ellipsize(layout_.get(), PANGO_ELLIPSIZE_NONE);
    pango_layout_set_alignment(layout_.get(), pangoAlignment(text.alignment));
    pango_layout_set_width(layout_.get(), width ? toPango(*width) : -1);
    // Lines are broken as if spacing followed their last letter too, which is negative and then left out.
    if (width && setSize().width > *width) {
        pango_layout_set_width(layout_.get(), toPango(*width + fromPango(letterSpacing(text.font.size))));
    }
    return setSize();
}

void TextPainter::paint(const ui::StyledText& text, const Rect& frame, const Color& color) {
    size(text, frame.width());
    fill({frame.minX(), frame.minY()}, color);
}

void TextPainter::setLine(std::string_view text, const TextStyle& style) {
    setRuns({{std::string(text), style.weight}}, style.size,
            pango_attr_font_features_new(style.tabularNumbers ? "tnum=1" : "tnum=0"));
    pango_layout_set_ellipsize(layout_.get(), PANGO_ELLIPSIZE_END);
    pango_layout_set_alignment(layout_.get(), PANGO_ALIGN_LEFT);
    pango_layout_set_width(layout_.get(), toPango(style.maximumWidth));
}

void TextPainter::setRuns(const std::vector<ui::TextRun>& runs, double size, PangoAttribute* more) {
    const AttributesHandle attributes{pango_attr_list_new()};
    std::string valid;
    for (const ui::TextRun& run : runs) {
        const CharactersHandle piece{
            g_utf8_make_valid(run.text.data(), static_cast<gssize>(run.text.size()))};
        PangoAttribute* const weight = pango_attr_weight_new(pangoWeight(run.weight));
        weight->start_index = static_cast<guint>(valid.size());
        valid += piece.get();
        weight->end_index = static_cast<guint>(valid.size());
        pango_attr_list_insert(attributes.get(), weight);
    }
    pango_attr_list_insert(attributes.get(), pango_attr_letter_spacing_new(letterSpacing(size)));
    pango_attr_list_insert(attributes.get(), more);
    const FontDescriptionHandle font{pango_font_description_new()};
    pango_font_description_set_family_static(font.get(), "Inter, sans-serif");
    pango_font_description_set_absolute_size(font.get(), size * PANGO_SCALE);
    pango_layout_set_font_description(layout_.get(), font.get());
    pango_layout_set_attributes(layout_.get(), attributes.get());
    pango_layout_set_text(layout_.get(), valid.data(), static_cast<int>(valid.size()));
}

Size TextPainter::setSize() const {
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout_.get(), &width, &height);
    return {fromPango(width), fromPango(height)};
}

void TextPainter::fill(Point topLeft, const Color& color) {
    setColor(context_, color);
    cairo_move_to(context_, topLeft.x, topLeft.y);
    // Cached glyph images would be placed on whole pixels, which makes small text uneven.
    pango_cairo_layout_path(context_, layout_.get());
    cairo_fill(context_);
}

} // namespace kestrune::desk
