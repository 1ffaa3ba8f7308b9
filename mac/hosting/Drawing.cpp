#include "mac/hosting/Drawing.h"

#include "mac/Vocabulary.h"
#include "mac/hosting/AttributedText.h"
#include "mac/hosting/Colors.h"
#include "mac/hosting/Symbols.h"

namespace kestrune::mac {

namespace {

Rect movedBy(const Rect& frame, Point origin) {
    return {frame.origin.x - origin.x, frame.origin.y - origin.y, frame.size.width, frame.size.height};
}

struct Painter {
    Point origin;
    double opacity;

    void operator()(const ui::TextElement& element) const {
        appKit.attributedString.drawWithRect(attributedText(element.text, opacity).get(),
                                             movedBy(element.frame, origin), TextLayoutOptions);
    }

    void operator()(const ui::SymbolElement& element) const {
        drawSymbol(element.symbol, movedBy(element.frame, origin), opacity);
    }

    void operator()(const ui::ShapeElement& element) const {
        appKit.color.set(colorWithOpacity(element.fill, element.opacity * opacity));
        fillMask(element, origin);
    }
};

} // namespace

void draw(const std::vector<ui::Drawing>& drawings, Point origin, double opacity) {
    for (const ui::Drawing& drawing : drawings) {
        std::visit(Painter{origin, opacity}, drawing);
    }
}

// A path has no continuous corners. At the radii of controls they are the circular ones within a fraction of
// a pixel.
void fillMask(const ui::ShapeElement& shape, Point origin) {
    appKit.bezierPath.fill(appKit.bezierPath.bezierPathWithRoundedRect(
        movedBy(shape.frame, origin), shape.cornerRadius, shape.cornerRadius));
}

BOOL alwaysFlipped(id, SEL) noexcept { return truth(true); }

} // namespace kestrune::mac
