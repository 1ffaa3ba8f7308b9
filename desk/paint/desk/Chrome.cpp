#include "desk/paint/desk/Chrome.h"

#include "desk/paint/mac/ScenePainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "ui/View.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrune::desk {
namespace {

using ui::Font;
using ui::HStack;
using ui::RoundedRectangle;
using ui::VerbatimText;
using ui::View;

constexpr double Margin = 28;
constexpr double Everything = std::numeric_limits<double>::infinity();

// The names that the desk's own colours have in these views.
constexpr ui::Color Tint = ui::Color::accent;
constexpr ui::Color PillText = ui::Color::tertiary;
constexpr ui::Color KeyFace = ui::Color::link;
constexpr ui::Color KeyBorder = ui::Color::sectionBorder;
constexpr ui::Color KeyEdge = ui::Color::sectionFill;

// In the order of ui::Color.
SceneColors colorsOf(const Palette& palette, const Color& tint) {
    return {palette.primaryText,
            palette.secondaryText,
            mix(tint, palette.primaryText, 0.35),
            tint,
            palette.positive,
            rgb(0xFFFFFF),
            palette.keyFace,
            palette.keyEdge,
            palette.keyBorder,
            palette.hairline};
}

ui::Scene sceneOf(const ui::Measurer& measurer, const View& view, const ui::ProposedSize& room) {
    return ui::layOut(view, room, {measurer, {}, {}}).scene;
}

// The last choice where none is narrow enough.
ui::Scene firstThatFits(const ui::Measurer& measurer, const std::vector<View>& choices, double width) {
    const auto found = std::find_if(choices.begin(), choices.end() - 1, [&](const View& choice) {
        return sceneOf(measurer, choice, {}).size.width <= width;
    });
    return sceneOf(measurer, *found, {width, std::nullopt});
}

View text(std::string_view words, double size, FontWeight weight = FontWeight::regular,
          ui::Color color = ui::Color::primary) {
    return VerbatimText(words).font(Font::system(size, weight)).foregroundStyle(color);
}

View detail(std::string_view words, double size) {
    return text(words, size, FontWeight::regular, ui::Color::secondary);
}

View circle(double side, double opacity = 1) {
    return RoundedRectangle({.cornerRadius = side / 2, .fill = Tint, .opacity = opacity})
        .frame({.width = side, .height = side});
}

View pillView(GuardState guard) {
    constexpr std::array Words{"Guard on", "Guard off", "No permission"};
    return HStack({.spacing = 6}, circle(7),
                  text(Words.at(static_cast<std::size_t>(guard)), 12, FontWeight::medium, PillText))
        .padding({0, 10, 0, 11})
        .frame({.height = 24})
        .background(RoundedRectangle({.cornerRadius = 12, .fill = Tint, .opacity = 0.14}));
}

// The title and the guard's state, and the pinned display if there is room for all of its name.
std::vector<View> headerViews(const DeskPicture& picture) {
    const View title =
        HStack({.spacing = 14}, text("Kestrune", 18, FontWeight::semibold), pillView(picture.guard));
    std::vector<View> choices;
    for (const DisplayPicture& display : picture.displays) {
        if (display.pinned) {
            const View name = HStack({.spacing = 5}, detail("Dock pinned to", 13),
                                     text(display.name, 13, FontWeight::medium));
            choices.push_back(HStack({.spacing = 0}, title, ui::Spacer(24), name));
        }
    }
    choices.push_back(HStack({.spacing = 0}, title, ui::Spacer(0)));
    return choices;
}

View counterView(std::uint64_t count, std::string_view label) {
    return HStack({.spacing = 5}, text(groupedNumber(count), 13, FontWeight::semibold), detail(label, 13));
}

View statusView(const DeskPicture& picture) {
    const View counters =
        HStack({.spacing = 24}, counterView(picture.events, picture.events == 1 ? "event" : "events"),
               counterView(picture.held, "held"),
               counterView(picture.dockMoves, picture.dockMoves == 1 ? "Dock move" : "Dock moves"))
            .fixedSize();
    const View happened =
        text(picture.whatHappened, 13)
            .frame({.maxWidth = Everything, .alignment = {.horizontal = ui::HorizontalAlignment::leading}});
    std::vector<View> line{happened, counters};
    if (!picture.whatHappened.empty()) {
        line.insert(line.begin(), circle(8).padding(4).background(circle(16, 0.18)));
    }
    return HStack({.spacing = 10}, std::move(line));
}

View keyView(const KeyHint& hint) {
    constexpr double Radius = 5.5;
    const View cap =
        text(hint.key, 12, FontWeight::medium)
            .padding({0, 7, 0, 7})
            .frame({.height = 22, .minWidth = 24})
            .background(RoundedRectangle({.cornerRadius = Radius, .fill = KeyBorder, .lineWidth = 1}))
            .background(RoundedRectangle({.cornerRadius = Radius, .fill = KeyFace}))
            .background(RoundedRectangle({.cornerRadius = Radius, .fill = KeyEdge}).padding({2, 0, -2, 0}));
    return HStack({.spacing = 8}, cap, detail(hint.action, 12.5)).fixedSize();
}

// One line where all keys fit into it, if need be closer together; otherwise two. Better no key than half a
// key: the last are left out where there is no room for them either.
std::vector<View> keysViews(const std::vector<KeyHint>& hints) {
    std::vector<View> keys;
    std::transform(hints.begin(), hints.end(), std::back_inserter(keys), keyView);
    std::vector<View> choices{HStack({.spacing = 22}, keys), HStack({.spacing = 15}, keys)};
    for (auto end = keys.end(); end != keys.begin(); --end) {
        const auto middle = keys.begin() + (end - keys.begin() + 1) / 2;
        choices.push_back(ui::VStack({.alignment = ui::HorizontalAlignment::leading, .spacing = 5},
                                     HStack({.spacing = 22}, std::vector(keys.begin(), middle)),
                                     HStack({.spacing = 22}, std::vector(middle, end))));
    }
    return choices;
}

std::string sizeText(const Rect& bounds) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.7g × %.7g", bounds.width(), bounds.height());
    return text.data();
}

View badgeView(double height, bool hasWord) {
    std::vector<View> parts{
        ui::SystemImage("pin.fill").font(Font::system(height * 0.54)).foregroundStyle(ui::Color::white)};
    if (hasWord) {
        parts.push_back(text("Pinned", height * 0.52, FontWeight::semibold, ui::Color::white));
    }
    return HStack({.spacing = height * 0.1}, parts)
        .padding({0, height * (hasWord ? 0.19 : 0), 0, height * (hasWord ? 0.45 : 0)})
        .frame({.height = height, .minWidth = height})
        .background(RoundedRectangle({.cornerRadius = height / 2, .fill = Tint}));
}

// The first says most.
std::vector<View> captionViews(const DisplayPicture& display, double height) {
    const View name = text(display.name, height * 0.58, FontWeight::semibold);
    const View size = detail(sizeText(display.bounds), height * 0.56);
    const auto choice = [&](std::vector<View> parts, bool hasWord) {
        if (display.pinned) {
            parts.push_back(badgeView(height, hasWord));
        }
        return HStack({.spacing = 8}, parts).frame({.height = height});
    };
    return {choice({name, size}, true), choice({name, size}, false), choice({name}, false),
            choice({size}, false)};
}

// At the leading edge, halfway up.
PlacedScene placedIn(const Rect& area, ui::Scene scene) {
    const double top = area.minY() + std::round((area.height() - scene.size.height) / 2);
    return {std::move(scene), {area.minX(), top}};
}

void paint(const Canvas& canvas, const PlacedScene& placed, const Color& tint) {
    paintScene(canvas, placed.scene, placed.origin, {.colors = colorsOf(canvas.palette, tint)});
}

} // namespace

std::optional<PlacedScene> captionOf(const ui::Measurer& measurer, const DisplayPlace& place,
                                     const DisplayPicture& display, const Rect& stage) {
    constexpr double HighestCaption = 22;
    constexpr double LowestCaption = 13;
    constexpr double PartOfRoom = 0.9;
    const double height = std::floor(std::min(HighestCaption, place.captionRoom * PartOfRoom));
    const double left = std::max(place.housing.minX(), stage.minX());
    const double available = std::min(place.housing.maxX(), stage.maxX()) - left;
    const double top = place.housing.maxY() + (place.captionRoom - height) / 2 + 2;
    if (height < LowestCaption || top + height > stage.maxY()) {
        return std::nullopt;
    }
    std::vector<View> choices = captionViews(display, height);
    if (available < place.housing.width()) {
        choices.pop_back(); // Its name is on the part that is seen, or nothing.
    }
    ui::Scene scene = firstThatFits(measurer, choices, available);
    if (scene.size.width > available || scene.size.height > height) {
        return std::nullopt;
    }
    const double start = left + (available - scene.size.width) / 2;
    return PlacedScene{std::move(scene), {start, top}};
}

void Chrome::paintStill(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) const {
    for (std::size_t index = 0; index < picture.displays.size(); ++index) {
        const DisplayPlace* const place = layout.place(index);
        if (const auto caption = place ? captionOf(measurer_, *place, picture.displays[index], layout.stage())
                                       : std::nullopt) {
            paint(canvas, *caption, canvas.palette.accent);
        }
    }
    if (picture.stageOnly) {
        return;
    }
    const auto paintIn = [&](const Rect& area, const std::vector<View>& choices, const Color& tint = {}) {
        paint(canvas, placedIn(area, firstThatFits(measurer_, choices, area.width())), tint);
    };
    const Palette& palette = canvas.palette;
    const std::array guardColors{palette.positive, palette.inactive, palette.caution};
    const Rect header = insetBy(layout.header(), Margin, 0);
    const Rect footer = insetBy(layout.footer(), Margin, 0);
    paintIn({header.minX(), 0, header.width(), header.height() - 4}, headerViews(picture),
            guardColors.at(static_cast<std::size_t>(picture.guard)));
    paintIn(layout.story(), {text(picture.story, 21, FontWeight::medium)
                                 .multilineTextAlignment(ui::TextAlignment::center)
                                 .frame({.maxWidth = Everything})});
    paintIn({footer.minX(), footer.minY(), footer.width(), 1},
            {RoundedRectangle({.fill = ui::Color::separator}).frame({.height = 1})});
    paintIn({footer.minX(), footer.minY() + 48, footer.width(), 58}, keysViews(picture.keys));
}

void Chrome::paintStatus(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture) {
    constexpr double Height = 48;
    const Rect area{Margin, layout.footer().minY() + 6, layout.footer().width() - 2 * Margin, Height};
    DeskPicture subject;
    subject.whatHappened = picture.whatHappened;
    subject.occurrence = picture.occurrence;
    subject.events = picture.events;
    subject.held = picture.held;
    subject.dockMoves = picture.dockMoves;
    subject.dark = picture.dark;
    const Palette& palette = canvas.palette;
    const std::array colors{palette.inactive, palette.band, palette.accent, palette.caution};
    status_.paint(canvas.context, area, subject, [&](cairo_t* sprite) {
        const ui::Scene scene = sceneOf(measurer_, statusView(picture), {area.width(), std::nullopt});
        TextPainter text{sprite};
        paint({sprite, text, canvas.images, canvas.palette}, placedIn(area, scene),
              colors.at(static_cast<std::size_t>(picture.occurrence)));
    });
}

std::string groupedNumber(std::uint64_t number) {
    std::string text = std::to_string(number);
    for (std::size_t digits = 3; digits < text.size(); digits += 4) {
        text.insert(text.size() - digits, ",");
    }
    return text;
}

} // namespace kestrune::desk
