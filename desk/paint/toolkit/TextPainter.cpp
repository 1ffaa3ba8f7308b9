#include "desk/paint/toolkit/TextPainter.h"

#include "desk/paint/toolkit/Shapes.h"

namespace kestrune::desk {
namespace {

// Height of Inter's capital letters as a part of the font size.
constexpr double CapitalHeight = 0.727;

FontDescriptionHandle fontDescription(const TextStyle& style) {
    FontDescriptionHandle font{pango_font_description_new()};
    pango_font_description_set_family_static(font.get(), TextFamily);
    pango_font_description_set_weight(font.get(), pangoWeight(style.weight));
    pango_font_description_set_absolute_size(font.get(), style.size * PANGO_SCALE);
    return font;
}

} // namespace

TextPainter::TextPainter(cairo_t* context) : context_(context), layout_(makeTextLayout(context)) {}

double TextPainter::width(std::string_view text, const TextStyle& style) {
    prepare(text, style);
    return preparedSize().width;
}

double TextPainter::paint(std::string_view text, Point anchor, const TextStyle& style) {
    prepare(text, style);
    const double width = preparedSize().width;
    double left = anchor.x;
    if (style.alignment == TextAlignment::center) {
        left -= width / 2;
    } else if (style.alignment == TextAlignment::trailing) {
        left -= width;
    }
    const double baseline = fromPango(pango_layout_get_baseline(layout_.get()));
    setColor(context_, style.color);
    cairo_move_to(context_, left, anchor.y + style.size * CapitalHeight / 2 - baseline);
    fillPrepared();
    return width;
}

void TextPainter::paintParagraph(std::string_view text, const Rect& area, const TextStyle& style) {
    prepare(text, style);
    pango_layout_set_width(layout_.get(), toPango(area.width()));
    pango_layout_set_height(layout_.get(), toPango(area.height()));
    pango_layout_set_wrap(layout_.get(), PANGO_WRAP_WORD_CHAR);
    pango_layout_set_alignment(layout_.get(), PANGO_ALIGN_CENTER);
    setColor(context_, style.color);
    cairo_move_to(context_, area.minX(), area.minY() + (area.height() - preparedSize().height) / 2);
    fillPrepared();
}

std::string TextPainter::resolvedFamily() {
    const FontDescriptionHandle wanted = fontDescription({});
    const FontHandle font{pango_context_load_font(pango_layout_get_context(layout_.get()), wanted.get())};
    if (!font) {
        return {};
    }
    const FontDescriptionHandle resolved{pango_font_describe(font.get())};
    const char* const family = pango_font_description_get_family(resolved.get());
    return family ? family : "";
}

void TextPainter::prepare(std::string_view text, const TextStyle& style) {
    const CharactersHandle valid{g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()))};
    const FontDescriptionHandle font = fontDescription(style);
    const AttributesHandle attributes{pango_attr_list_new()};
    pango_attr_list_insert(attributes.get(), pango_attr_letter_spacing_new(letterSpacing(style.size)));
    if (style.tabularNumbers) {
        pango_attr_list_insert(attributes.get(), pango_attr_font_features_new("tnum=1"));
    }
    pango_layout_set_font_description(layout_.get(), font.get());
    pango_layout_set_attributes(layout_.get(), attributes.get());
    pango_layout_set_ellipsize(layout_.get(), PANGO_ELLIPSIZE_END);
    pango_layout_set_alignment(layout_.get(), PANGO_ALIGN_LEFT);
    pango_layout_set_height(layout_.get(), -1);
    pango_layout_set_width(layout_.get(), toPango(style.maximumWidth));
    pango_layout_set_text(layout_.get(), valid.get(), -1);
}

void TextPainter::fillPrepared() { fillTextLayout(context_, layout_.get()); }

} // namespace kestrune::desk
