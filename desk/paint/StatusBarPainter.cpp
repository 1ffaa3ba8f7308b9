#include "desk/paint/StatusBarPainter.h"

#include "desk/paint/Shapes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kestrune::desk {
namespace {

constexpr double Margin = 28;

Color occurrenceColor(const Palette& palette, Occurrence occurrence) {
    switch (occurrence) {
    case Occurrence::neutral:
        return palette.inactive;
    case Occurrence::held:
        return palette.band;
    case Occurrence::dockMoved:
        return palette.accent;
    case Occurrence::warning:
        return palette.caution;
    }
    return palette.inactive;
}

// Gives the leading edge of the counters.
double paintCounters(const Canvas& canvas, const DeskPicture& picture, Point trailing) {
    struct Counter {
        std::uint64_t count;
        std::string_view labelOfOne;
        std::string_view label;
    };
    // From the trailing end.
    const std::array<Counter, 3> counters{{{picture.dockMoves, "Dock move", "Dock moves"},
                                           {picture.held, "held", "held"},
                                           {picture.events, "event", "events"}}};
    const TextStyle labelStyle{
        .size = 13, .color = canvas.palette.secondaryText, .alignment = TextAlignment::trailing};
    const TextStyle countStyle{.size = 13,
                               .weight = FontWeight::semibold,
                               .color = canvas.palette.primaryText,
                               .alignment = TextAlignment::trailing,
                               .tabularNumbers = true};
    double x = trailing.x;
    for (const Counter& counter : counters) {
        const std::string_view label = counter.count == 1 ? counter.labelOfOne : counter.label;
        x -= canvas.text.paint(label, {x, trailing.y}, labelStyle) + 5;
        x -= canvas.text.paint(groupedNumber(counter.count), {x, trailing.y}, countStyle) + 24;
    }
    return x;
}

constexpr double KeyHeight = 22;

TextStyle keyStyle(const Palette& palette) {
    return {.size = 12,
            .weight = FontWeight::medium,
            .color = palette.primaryText,
            .alignment = TextAlignment::center};
}

double keyWidth(const Canvas& canvas, std::string_view key) {
    return std::max(KeyHeight + 2, canvas.text.width(key, keyStyle(canvas.palette)) + 14);
}

void paintKeyCap(const Canvas& canvas, std::string_view key, const Rect& face) {
    constexpr double Radius = 5.5;
    const Rect edge{face.minX(), face.minY() + 1.5, face.width(), face.height()};
    fillRoundedRectangle(canvas.context, edge, Radius, canvas.palette.keyEdge);
    fillRoundedRectangle(canvas.context, face, Radius, canvas.palette.keyFace);
    strokeRoundedRectangle(canvas.context, face, Radius, 1, canvas.palette.keyBorder);
    canvas.text.paint(key, {face.minX() + face.width() / 2, face.minY() + face.height() / 2},
                      keyStyle(canvas.palette));
}

} // namespace

void paintStatus(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    const Rect footer = layout.footer();
    const double middle = footer.minY() + 30;
    const double countersLeft = paintCounters(canvas, picture, {footer.maxX() - Margin, middle});

    const Color color = occurrenceColor(canvas.palette, picture.occurrence);
    fillCircle(canvas.context, {Margin + 8, middle}, 8, color.withAlpha(0.18));
    fillCircle(canvas.context, {Margin + 8, middle}, 4, color);
    const double textLeft = Margin + 26;
    canvas.text.paint(picture.whatHappened, {textLeft, middle},
                      {.size = 13,
                       .color = canvas.palette.primaryText,
                       .maximumWidth = std::max(0.0, countersLeft - textLeft)});
}

void paintKeys(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    const Rect footer = layout.footer();
    cairo_rectangle(canvas.context, Margin, footer.minY(), footer.width() - 2 * Margin, 1);
    setColor(canvas.context, canvas.palette.hairline);
    cairo_fill(canvas.context);

    const double middle = footer.minY() + 70;
    const TextStyle style{.size = 12.5, .color = canvas.palette.secondaryText};
    double x = Margin;
    for (const KeyHint& hint : picture.keys) {
        const Rect face{x, middle - KeyHeight / 2, keyWidth(canvas, hint.key), KeyHeight};
        const double actionLeft = face.maxX() + 8;
        const double actionRight = actionLeft + canvas.text.width(hint.action, style);
        if (actionRight > footer.maxX() - Margin) {
            return; // Better no hint than half a hint.
        }
        paintKeyCap(canvas, hint.key, face);
        canvas.text.paint(hint.action, {actionLeft, middle}, style);
        x = actionRight + 22;
    }
}

std::string groupedNumber(std::uint64_t number) {
    std::string text = std::to_string(number);
    for (std::size_t digits = 3; digits < text.size(); digits += 4) {
        text.insert(text.size() - digits, ",");
    }
    return text;
}

} // namespace kestrune::desk
