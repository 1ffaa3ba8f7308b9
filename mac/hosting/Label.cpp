// Texts, as the platform's labels.
#include "mac/hosting/Accessibility.h"
#include "mac/hosting/AttributedText.h"
#include "mac/hosting/ElementViews.h"
#include "mac/objc/NewObject.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

// A text field keeps its text so far away from its left and right edges.
constexpr double Inset = 2; // points

Rect fieldFrame(const Rect& text) {
    return {text.origin.x - Inset, text.origin.y, text.size.width + 2 * Inset, text.size.height};
}

class Label : public ViewOf<ui::TextElement> {
public:
    Label() : ViewOf(Retained::adopting(appKit.view.initWithFrame(allocate(appKit.textField), Rect()))) {
        appKit.textField.setEditable(view(), truth(false));
        appKit.textField.setSelectable(view(), truth(false));
        appKit.textField.setBezeled(view(), truth(false));
        appKit.textField.setDrawsBackground(view(), truth(false));
        appKit.cell.setWraps(appKit.control.cell(view()), truth(true));
    }

private:
    void update(const ui::TextElement& next) override {
        if (differs(next, &ui::TextElement::frame)) {
            appKit.view.setFrame(view(), fieldFrame(next.frame));
        }
        if (differs(next, &ui::TextElement::text)) {
            appKit.control.setAttributedStringValue(view(), attributedText(next.text).get());
        }
        if (differs(next, &ui::TextElement::isAccessibilityHidden)) {
            setAccessibilityElement(view(), !next.isAccessibilityHidden);
        }
    }
};

} // namespace

std::unique_ptr<ElementView> makeLabel() { return std::make_unique<Label>(); }

} // namespace kestrune::mac
