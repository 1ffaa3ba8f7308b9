// The description behind a view.
#pragma once

#include "ui/View.h"
#include "ui/layout/Environment.h"
#include "ui/layout/Layout.h"
#include "ui/layout/LayoutItem.h"
#include "ui/layout/MeasuredText.h"

#include <memory>

namespace kestrune::ui {

// What all items of one layout share.
struct LayoutPass {
    const LayoutContext& context;
    MeasuredTexts texts;
};

struct Node {
    Node() = default;
    virtual ~Node() = default;

    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    // The view in the place where that environment holds. The item does not refer to the node.
    virtual LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const = 0;
};

inline LayoutItemPointer resolve(const View& view, const Environment& environment, LayoutPass& pass) {
    return view.node().resolve(environment, pass);
}

} // namespace kestrune::ui
