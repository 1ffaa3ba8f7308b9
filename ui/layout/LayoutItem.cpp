#include "ui/layout/LayoutItem.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kestrune::ui {

namespace {

std::optional<double> wholePoints(std::optional<double> offered) {
    return offered ? std::optional(std::floor(std::max(0.0, *offered))) : std::nullopt;
}

ProposedSize wholePoints(const ProposedSize& proposal) {
    return {wholePoints(proposal.width), wholePoints(proposal.height)};
}

bool isSame(const ProposedSize& one, const ProposedSize& other) {
    return one.width == other.width && one.height == other.height;
}

// Of an alignment by its place in either enumeration: at the beginning, in the middle, at the end.
double shareBefore(std::size_t alignment) {
    constexpr std::array<double, 3> shares{0, 0.5, 1};
    return shares.at(alignment);
}

} // namespace

Size LayoutItem::sizeThatFits(const ProposedSize& proposal) {
    const ProposedSize offered = wholePoints(proposal);
    const auto known = std::find_if(chosen_.begin(), chosen_.end(),
                                    [&](const auto& choice) { return isSame(choice.first, offered); });
    if (known != chosen_.end()) {
        return known->second;
    }
    const Size measured = measure(offered);
    const Size chosen{std::ceil(std::max(0.0, measured.width)), std::ceil(std::max(0.0, measured.height))};
    chosen_.emplace_back(offered, chosen);
    return chosen;
}

void LayoutItem::place(Point origin, const ProposedSize& proposal, Rendering& rendering) {
    placeContent(origin, wholePoints(proposal), rendering);
}

void LeafItem::placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) {
    const Rect frame = frameAt(origin, sizeThatFits(proposal));
    if (!frame.isEmpty()) {
        show(frame, rendering);
    }
}

Rect frameAt(Point origin, const Size& size) {
    return {std::floor(origin.x + 0.5), std::floor(origin.y + 0.5), size.width, size.height};
}

double shareBefore(HorizontalAlignment alignment) { return shareBefore(static_cast<std::size_t>(alignment)); }

double shareBefore(VerticalAlignment alignment) { return shareBefore(static_cast<std::size_t>(alignment)); }

Point aligned(Point origin, const Size& room, const Size& content, const Alignment& alignment) {
    return {origin.x + (room.width - content.width) * shareBefore(alignment.horizontal),
            origin.y + (room.height - content.height) * shareBefore(alignment.vertical)};
}

} // namespace kestrune::ui
