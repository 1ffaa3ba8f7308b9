#include "desk/paint/desk/StatusBarPainter.h"

#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

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

TextStyle actionStyle(const Palette& palette) { return {.size = 12.5, .color = palette.secondaryText}; }

// A hint's parts, measured from the leading end of its line.
struct KeyPlace {
    const KeyHint* hint = nullptr;
    double keyLeft = 0;
    double keyWidth = 0;
    double actionLeft = 0;
    double trailing = 0;
};

constexpr double HintSpacing = 22;
constexpr double NarrowHintSpacing = 15;

// The places of the hints if all stood in one line.
std::vector<KeyPlace> placesInOneLine(const Canvas& canvas, const std::vector<KeyHint>& keys,
                                      double spacing) {
    std::vector<KeyPlace> places;
    double x = 0;
    for (const KeyHint& hint : keys) {
        KeyPlace place{.hint = &hint, .keyLeft = x, .keyWidth = keyWidth(canvas, hint.key)};
        place.actionLeft = place.keyLeft + place.keyWidth + 8;
        place.trailing = place.actionLeft + canvas.text.width(hint.action, actionStyle(canvas.palette));
        places.push_back(place);
        x = place.trailing + spacing;
    }
    return places;
}

KeyPlace shifted(KeyPlace place, double distance) {
    place.keyLeft += distance;
    place.actionLeft += distance;
    place.trailing += distance;
    return place;
}

// One line where all hints fit into it, if need be closer together; otherwise two of about the same length.
// Better no hint than half a hint: those that do not fit into the second line are left out.
std::vector<std::vector<KeyPlace>> keyLines(const Canvas& canvas, const std::vector<KeyHint>& keys,
                                            double width) {
    for (const double spacing : {HintSpacing, NarrowHintSpacing}) {
        const std::vector<KeyPlace> line = placesInOneLine(canvas, keys, spacing);
        if (line.empty() || line.back().trailing <= width) {
            return {line};
        }
    }
    const std::vector<KeyPlace> all = placesInOneLine(canvas, keys, HintSpacing);
    std::vector<std::vector<KeyPlace>> lines(2);
    const double half = std::min(width, (all.back().trailing - HintSpacing) / 2);
    for (const KeyPlace& place : all) {
        const bool startsInFirstHalf = lines[1].empty() && place.keyLeft <= half && place.trailing <= width;
        if (startsInFirstHalf) {
            lines[0].push_back(place);
            continue;
        }
        const KeyPlace below = shifted(place, -all[lines[0].size()].keyLeft);
        if (below.trailing > width) {
            break;
        }
        lines[1].push_back(below);
    }
    return lines;
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

    const std::vector<std::vector<KeyPlace>> lines =
        keyLines(canvas, picture.keys, footer.width() - 2 * Margin);
    constexpr double LineDistance = 27;
    double middle = footer.minY() + (lines.size() > 1 ? 64 : 74);
    for (const std::vector<KeyPlace>& line : lines) {
        for (const KeyPlace& place : line) {
            paintKeyCap(canvas, place.hint->key,
                        {Margin + place.keyLeft, middle - KeyHeight / 2, place.keyWidth, KeyHeight});
            canvas.text.paint(place.hint->action, {Margin + place.actionLeft, middle},
                              actionStyle(canvas.palette));
        }
        middle += LineDistance;
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
