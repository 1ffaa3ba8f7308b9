// Symbols, as image views. They accompany a text that says the same, so VoiceOver passes them over.
#include "mac/hosting/Accessibility.h"
#include "mac/hosting/Colors.h"
#include "mac/hosting/ElementViews.h"
#include "mac/hosting/Symbols.h"
#include "mac/objc/NewObject.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

constexpr Unsigned ScaleNone = 2; // NSImageScaleNone: the symbol has its size already

class SymbolView : public ViewOf<ui::SymbolElement> {
public:
    SymbolView() : ViewOf(Retained::adopting(appKit.view.initWithFrame(allocate(appKit.imageView), Rect()))) {
        appKit.imageView.setImageScaling(view(), ScaleNone);
        setAccessibilityElement(view(), false);
    }

private:
    void update(const ui::SymbolElement& next) override {
        if (differs(next, &ui::SymbolElement::frame)) {
            appKit.view.setFrame(view(), next.frame);
        }
        if (differs(next, &ui::SymbolElement::symbol)) {
            appKit.imageView.setImage(view(), symbolImage(next.symbol).get());
            appKit.imageView.setContentTintColor(view(), platformColor(next.symbol.color));
        }
    }
};

} // namespace

std::unique_ptr<ElementView> makeSymbolView() { return std::make_unique<SymbolView>(); }

} // namespace kestrune::mac
