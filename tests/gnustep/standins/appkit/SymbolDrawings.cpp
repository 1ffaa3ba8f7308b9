#include "tests/gnustep/standins/appkit/SymbolDrawings.h"

#include "base/Geometry.h"
#include "tests/gnustep/harness/Objects.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kestrune::gnustep {

namespace {

// A pen in a box of the symbol's size.
class Pen {
public:
    Pen(double height, double weight) : height_(height), lineWidth_(height * (0.075 + 0.04 * weight)) {}

    double height() const { return height_; }
    double lineWidth() const { return lineWidth_; }
    Rect circle() const { return inset({0, 0, height_, height_}, lineWidth_ / 2); }

    static Rect inset(const Rect& area, double by) {
        return {area.origin.x + by, area.origin.y + by, area.size.width - 2 * by, area.size.height - 2 * by};
    }

    void stroke(id path) const {
        send<void>(path, "setLineWidth:", lineWidth_);
        send<void>(path, "stroke");
    }

private:
    double height_;
    double lineWidth_;
};

id paths() { return classObject("NSBezierPath"); }

id oval(const Rect& area) { return send(paths(), "bezierPathWithOvalInRect:", area); }

id roundedRectangle(const Rect& area, double radius) {
    return send(paths(), "bezierPathWithRoundedRect:xRadius:yRadius:", area, radius, radius);
}

void setWhite() { send<void>(send(classObject("NSColor"), "whiteColor"), "set"); }

void drawDock(const Pen& pen) {
    const double height = pen.height();
    const Rect screen = Pen::inset({0, height * 0.1, height * 1.25, height * 0.8}, pen.lineWidth() / 2);
    pen.stroke(roundedRectangle(screen, height * 0.12));
    send<void>(roundedRectangle({height * 0.3, height * 0.22, height * 0.65, height * 0.16}, height * 0.05),
               "fill");
}

void drawDashedCircle(const Pen& pen) {
    const id path = oval(pen.circle());
    const std::array<double, 2> dashes = {pen.height() * 0.22, pen.height() * 0.1};
    send<void>(path, "setLineDash:count:phase:", dashes.data(), mac::Integer{2}, 0.0);
    pen.stroke(path);
}

void drawCheckmark(const Pen& pen) {
    const double height = pen.height();
    send<void>(oval(pen.circle()), "fill");
    setWhite();
    const id mark = send(paths(), "bezierPath");
    send<void>(mark, "moveToPoint:", Point{height * 0.28, height * 0.5});
    send<void>(mark, "lineToPoint:", Point{height * 0.44, height * 0.33});
    send<void>(mark, "lineToPoint:", Point{height * 0.72, height * 0.68});
    pen.stroke(mark);
}

void drawTwo(const Pen& pen) {
    const double height = pen.height();
    send<void>(oval(pen.circle()), "fill");
    setWhite();
    const id mark = send(paths(), "bezierPath");
    send<void>(mark, "moveToPoint:", Point{height * 0.36, height * 0.64});
    send<void>(mark, "curveToPoint:controlPoint1:controlPoint2:", Point{height * 0.36, height * 0.28},
               Point{height * 0.5, height * 0.86}, Point{height * 0.8, height * 0.6});
    send<void>(mark, "lineToPoint:", Point{height * 0.66, height * 0.28});
    pen.stroke(mark);
}

struct Drawing {
    std::string_view name;
    double aspect;
    void (*draw)(const Pen& pen);
};

constexpr Drawing Drawings[] = {
    {"dock.rectangle", 1.25, drawDock},
    {"2.circle.fill", 1, drawTwo},
    {"checkmark.circle.fill", 1, drawCheckmark},
    {"circle.dashed", 1, drawDashedCircle},
};

const Drawing* drawingNamed(std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(Drawings), std::end(Drawings),
                     [name](const Drawing& candidate) { return candidate.name == name; });
    return found != std::end(Drawings) ? found : nullptr;
}

} // namespace

std::optional<double> symbolAspect(std::string_view name) {
    const Drawing* const drawing = drawingNamed(name);
    return drawing != nullptr ? std::optional(drawing->aspect) : std::nullopt;
}

void drawSymbolNamed(std::string_view name, double height, double weight, id color) {
    if (const Drawing* const drawing = drawingNamed(name)) {
        send<void>(color, "set");
        drawing->draw(Pen(height, weight));
    }
}

} // namespace kestrune::gnustep
