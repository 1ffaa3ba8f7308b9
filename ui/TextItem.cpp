#include "ui/TextItem.h"

#include <utility>

namespace kestrune::ui {

TextItem::TextItem(StyledText text, MeasuredTexts& texts)
    : text_(std::move(text)), measured_(texts.find(text_)) {}

Size TextItem::measure(const ProposedSize& proposal) { return measured_->size(proposal.width); }

void TextItem::show(const Rect& frame, Rendering& rendering) {
    rendering.scene.elements.emplace_back(TextElement{frame, text_});
}

} // namespace kestrune::ui
