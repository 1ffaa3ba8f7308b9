// Views whose structure is known: each of them marks its frame in the scene, so that what the layout did to
// it and to its children can be judged.
#pragma once

#include "ui/View.h"
#include "ui/layout/Layout.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::ui {

struct ViewTree {
    enum class Kind {
        // leaves
        text,
        symbol,
        shape,
        label,
        borderedButton,
        linkButton,
        customButton,
        toggle,
        spacer,
        // around one view
        padding,
        frame,
        fixedSize,
        groupedForm,
        // around any number
        verticalStack,
        horizontalStack,
    };

    Kind kind = Kind::text;
    int number = 0; // in the whole tree, from one
    std::string text = {};
    std::optional<double> spacing = std::nullopt;
    Alignment alignment = {};
    EdgeInsets insets = {};
    Frame frame = {};
    bool isFixedWidth = false;
    bool isFixedHeight = false;
    std::vector<ViewTree> children = {};

    bool isStack() const { return kind == Kind::verticalStack || kind == Kind::horizontalStack; }
};

std::ostream& operator<<(std::ostream& stream, const ViewTree& tree);

// Every tree of it, itself first.
std::vector<const ViewTree*> allOf(const ViewTree& tree);

// How many there are of a kind.
std::size_t count(const ViewTree& tree, ViewTree::Kind kind);

View viewOf(const ViewTree& tree);

// The frame of the view of a tree; absent when it is empty or a spacer, which has no mark.
std::optional<Rect> frameOf(const ViewTree& tree, const Scene& scene);

} // namespace kestrune::ui
