#include "mac/hosting/Drawing.h"

#include "mac/hosting/AttributedText.h"
#include "mac/hosting/Colors.h"
#include "mac/hosting/Symbols.h"
#include "mac/vocabulary/Vocabulary.h"
#include "ui/Outline.h"

namespace kestrune::mac {

namespace {

Rect movedBy(const Rect& frame, Point origin) {
    return {frame.origin.x - origin.x, frame.origin.y - origin.y, frame.size.width, frame.size.height};
}

// Borrowed from the innermost pool.
id pathOf(const ui::ShapeElement& shape, Point origin) {
    ui::ShapeElement moved = shape;
    moved.frame = movedBy(shape.frame, origin);
    const ui::Outline outline = ui::outlineOf(moved);
    const id path = appKit.bezierPath.bezierPath();
    appKit.bezierPath.moveToPoint(path, outline.start());
    for (const ui::OutlineSide& side : outline.sides) {
        appKit.bezierPath.lineToPoint(path, side.lineEnd);
        appKit.bezierPath.curveToPoint(path, side.curveEnd, side.firstControl, side.secondControl);
    }
    appKit.bezierPath.closePath(path);
    return path;
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
        const id path = pathOf(element, origin);
        if (element.lineWidth > 0) {
            appKit.bezierPath.setLineWidth(path, element.lineWidth);
            appKit.bezierPath.stroke(path);
        } else {
            appKit.bezierPath.fill(path);
        }
    }
};

} // namespace

void draw(const std::vector<ui::Drawing>& drawings, Point origin, double opacity) {
    for (const ui::Drawing& drawing : drawings) {
        std::visit(Painter{origin, opacity}, drawing);
    }
}

void fillMask(const ui::ShapeElement& shape, Point origin) { appKit.bezierPath.fill(pathOf(shape, origin)); }

BOOL alwaysFlipped(id, SEL) noexcept { return truth(true); }

} // namespace kestrune::mac
