#include "desk/paint/toolkit/PangoText.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {

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
    return layout;
}

int letterSpacing(double size) {
    const double tightening = std::clamp((size - 11) * 0.0018, 0.0, 0.02);
    return -static_cast<int>(std::lround(tightening * size * PANGO_SCALE));
}

PangoWeight pangoWeight(ui::FontWeight weight) {
    switch (weight) {
    case ui::FontWeight::ultraLight: // The lightest of all here, and one step up in Pango's words.
        return PANGO_WEIGHT_THIN;
    case ui::FontWeight::thin:
        return PANGO_WEIGHT_ULTRALIGHT;
    case ui::FontWeight::light:
        return PANGO_WEIGHT_LIGHT;
    case ui::FontWeight::regular:
        return PANGO_WEIGHT_NORMAL;
    case ui::FontWeight::medium:
        return PANGO_WEIGHT_MEDIUM;
    case ui::FontWeight::semibold:
        return PANGO_WEIGHT_SEMIBOLD;
    case ui::FontWeight::bold:
        return PANGO_WEIGHT_BOLD;
    case ui::FontWeight::heavy:
        return PANGO_WEIGHT_ULTRABOLD;
    case ui::FontWeight::black:
        return PANGO_WEIGHT_HEAVY;
    }
    return PANGO_WEIGHT_NORMAL;
}

double fromPango(int units) { return static_cast<double>(units) / PANGO_SCALE; }

int toPango(double units) {
    constexpr double Unlimited = 100000;
    return std::isfinite(units) && units < Unlimited ? std::max(0, static_cast<int>(units * PANGO_SCALE))
                                                     : -1;
}

Size textSize(PangoLayout* layout) {
    int width = 0;
    int height = 0;
    pango_layout_get_size(layout, &width, &height);
    return {fromPango(width), fromPango(height)};
}

void fillTextLayout(cairo_t* context, PangoLayout* layout) {
    // Cached glyph images would be placed on whole pixels, which makes small text uneven.
    pango_cairo_layout_path(context, layout);
    cairo_fill(context);
}

} // namespace kestrune::desk
