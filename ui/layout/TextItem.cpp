#include "ui/layout/TextItem.h"

#include <utility>

namespace kestrune::ui {

TextItem::TextItem(StyledText text, bool isAccessibilityHidden, MeasuredTexts& texts)
    : text_(std::move(text)), isAccessibilityHidden_(isAccessibilityHidden), measured_(texts.find(text_)) {}

Size TextItem::measure(const ProposedSize& proposal) { return measured_->size(proposal.width); }

void TextItem::show(const Rect& frame, Rendering& rendering) {
    rendering.scene.elements.emplace_back(TextElement{frame, text_, isAccessibilityHidden_});
}

} // namespace kestrune::ui
