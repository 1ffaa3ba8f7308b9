// A view on its way to the scene: its environment is known, its place is not.
//
// Items live on whole points: an offer is rounded down before the item sees it, and what the item chooses is
// rounded up. So a number of items that fill an offer fit into it, no glyph is cut, and frames that are
// rounded to whole points neither overlap nor leave the frame around them.
#pragma once

#include "base/Geometry.h"
#include "ui/Scene.h"
#include "ui/Style.h"
#include "ui/layout/Layout.h"

#include <memory>
#include <utility>
#include <vector>

namespace kestrune::ui {

class LayoutItem {
public:
    virtual ~LayoutItem() = default;

    LayoutItem(const LayoutItem&) = delete;
    LayoutItem& operator=(const LayoutItem&) = delete;

    // The size that the item chooses for what it is offered. Asking again costs nothing.
    Size sizeThatFits(const ProposedSize& proposal);

    // Appends the item's elements with its top left corner at `origin`, which need not be on whole points, in
    // the size that it has chosen for the proposal. Called once.
    void place(Point origin, const ProposedSize& proposal, Rendering& rendering);

    // Gets what the other items of its stack leave.
    virtual bool isSpacer() const { return false; }

protected:
    LayoutItem() = default;

    virtual Size measure(const ProposedSize& proposal) = 0;
    virtual void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) = 0;

private:
    std::vector<std::pair<ProposedSize, Size>> chosen_;
};

using LayoutItemPointer = std::unique_ptr<LayoutItem>;

// An item that shows one element, or none when it is empty, at the size that it chose.
class LeafItem : public LayoutItem {
protected:
    virtual void show(const Rect& frame, Rendering& rendering) = 0;

private:
    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) final;
};

// The frame of an element: the origin goes to the nearest whole point, halves downwards and to the right.
Rect frameAt(Point origin, const Size& size);

// How much of the free room lies before the content.
double shareBefore(HorizontalAlignment alignment);
double shareBefore(VerticalAlignment alignment);

// Where content begins in a room that begins at `origin`.
Point aligned(Point origin, const Size& room, const Size& content, const Alignment& alignment);

} // namespace kestrune::ui
