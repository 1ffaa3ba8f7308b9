#include "desk/paint/toolkit/StyledTextLayout.h"

#include "desk/paint/toolkit/PangoText.h"

#include <cmath>
#include <string>

namespace kestrune::desk {
namespace {

PangoAlignment pangoAlignment(ui::TextAlignment alignment) {
    switch (alignment) {
    case ui::TextAlignment::leading:
        return PANGO_ALIGN_LEFT;
    case ui::TextAlignment::center:
        return PANGO_ALIGN_CENTER;
    case ui::TextAlignment::trailing:
        return PANGO_ALIGN_RIGHT;
    }
    return PANGO_ALIGN_LEFT;
}

void insert(PangoAttrList* attributes, PangoAttribute* attribute, std::size_t start, std::size_t end) {
    attribute->start_index = static_cast<guint>(start);
    attribute->end_index = static_cast<guint>(end);
    pango_attr_list_insert(attributes, attribute);
}

double heightOfLines(const ui::Font& font) {
    constexpr double UsualLeading = 1.2;
    return font.style ? ui::lineHeight(*font.style) : std::round(font.size * UsualLeading);
}

} // namespace

StyledTextLayout::StyledTextLayout(cairo_t* context) : context_(context), layout_(makeTextLayout(context)) {
    pango_layout_set_wrap(layout_.get(), PANGO_WRAP_WORD_CHAR);
}

void StyledTextLayout::set(const ui::StyledText& text, std::optional<double> width) {
    const AttributesHandle attributes{pango_attr_list_new()};
    std::string valid;
    for (const ui::TextRun& run : text.runs) {
        const CharactersHandle piece{
            g_utf8_make_valid(run.text.data(), static_cast<gssize>(run.text.size()))};
        const std::size_t start = valid.size();
        valid += piece.get();
        insert(attributes.get(), pango_attr_weight_new(pangoWeight(run.weight)), start, valid.size());
    }
    pango_attr_list_insert(attributes.get(), pango_attr_letter_spacing_new(letterSpacing(text.font.size)));
    const int lineHeight = toPango(heightOfLines(text.font));
    pango_attr_list_insert(attributes.get(), pango_attr_line_height_new_absolute(lineHeight));

    const FontDescriptionHandle font{pango_font_description_new()};
    pango_font_description_set_family_static(font.get(), TextFamily);
    pango_font_description_set_absolute_size(font.get(), text.font.size * PANGO_SCALE);
    pango_layout_set_font_description(layout_.get(), font.get());
    pango_layout_set_attributes(layout_.get(), attributes.get());
    pango_layout_set_alignment(layout_.get(), pangoAlignment(text.alignment));
    pango_layout_set_width(layout_.get(), width ? toPango(*width) : -1);
    pango_layout_set_text(layout_.get(), valid.data(), static_cast<int>(valid.size()));
    // Lines are broken as if spacing followed their last letter too, which is negative and then left out.
    if (width && size().width > *width) {
        pango_layout_set_width(layout_.get(), toPango(*width + fromPango(letterSpacing(text.font.size))));
    }
}

void StyledTextLayout::fill(Point topLeft) const {
    cairo_move_to(context_, topLeft.x, topLeft.y);
    fillTextLayout(context_, layout_.get());
}

} // namespace kestrune::desk
