// Texts, as the platform's labels.
#include "mac/Vocabulary.h"
#include "mac/hosting/AttributedText.h"
#include "mac/hosting/ElementViews.h"

namespace kestrune::mac {

namespace {

// A text field keeps its text so far away from its left and right edges.
constexpr double Inset = 2; // points

Rect fieldFrame(const Rect& text) {
    return {text.origin.x - Inset, text.origin.y, text.size.width + 2 * Inset, text.size.height};
}

class Label : public ViewOf<ui::TextElement> {
public:
    Label()
        : ViewOf(Retained::adopting(
              ns_view::initWithFrame(ns_object::alloc(ns_text_field::type.object()), Rect()))) {
        ns_text_field::setEditable(view(), truth(false));
        ns_text_field::setSelectable(view(), truth(false));
        ns_text_field::setBezeled(view(), truth(false));
        ns_text_field::setDrawsBackground(view(), truth(false));
        ns_cell::setWraps(ns_control::cell(view()), truth(true));
    }

private:
    void update(const ui::TextElement& next) override {
        if (differs(next, &ui::TextElement::frame)) {
            ns_view::setFrame(view(), fieldFrame(next.frame));
        }
        if (differs(next, &ui::TextElement::text)) {
            ns_control::setAttributedStringValue(view(), attributedText(next.text).get());
        }
        if (differs(next, &ui::TextElement::isAccessibilityHidden)) {
            ns_view::setAccessibilityElement(view(), truth(!next.isAccessibilityHidden));
        }
    }
};

} // namespace

std::unique_ptr<ElementView> makeLabel() { return std::make_unique<Label>(); }

} // namespace kestrune::mac
