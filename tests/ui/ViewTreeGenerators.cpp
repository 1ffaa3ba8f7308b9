#include "tests/ui/ViewTreeGenerators.h"

#include <limits>
#include <string>

namespace kestrune::ui {

namespace {

using Kind = ViewTree::Kind;

constexpr int Levels = 4;

// Quarters of a point, which sums represent exactly.
double quarters(int from, int to) { return *rc::gen::inRange(from * 4, to * 4 + 1) / 4.0; }

std::optional<double> lengthOrNothing(int to) {
    return *rc::gen::arbitrary<bool>() ? std::optional(quarters(0, to)) : std::nullopt;
}

std::string words() {
    std::string words;
    const int count = *rc::gen::inRange(0, 8);
    for (int word = 0; word < count; ++word) {
        words += (word == 0 ? "" : " ") + std::string(static_cast<std::size_t>(*rc::gen::inRange(1, 10)),
                                                      static_cast<char>('a' + word));
    }
    return words;
}

Alignment alignment() {
    return {*rc::gen::element(HorizontalAlignment::leading, HorizontalAlignment::center,
                              HorizontalAlignment::trailing),
            *rc::gen::element(VerticalAlignment::top, VerticalAlignment::center, VerticalAlignment::bottom)};
}

EdgeInsets insets() {
    const int least = *rc::gen::element(0, 0, -6);
    return {quarters(least, 12), quarters(least, 12), quarters(least, 12), quarters(least, 12)};
}

Frame frame() {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Frame frame;
    frame.alignment = alignment();
    if (*rc::gen::arbitrary<bool>()) {
        frame.width = lengthOrNothing(120);
        frame.height = lengthOrNothing(60);
    } else {
        frame.maxWidth = *rc::gen::arbitrary<bool>() ? std::optional(infinity) : std::nullopt;
        frame.maxHeight = *rc::gen::arbitrary<bool>() ? std::optional(infinity) : std::nullopt;
    }
    return frame;
}

ViewTree leaf(bool isInStack) {
    ViewTree leaf;
    leaf.kind = *rc::gen::element(Kind::text, Kind::text, Kind::text, Kind::symbol, Kind::shape, Kind::label,
                                  Kind::borderedButton, Kind::linkButton, Kind::customButton, Kind::toggle,
                                  isInStack ? Kind::spacer : Kind::shape);
    leaf.text = words();
    if (leaf.kind == Kind::spacer) {
        leaf.text.clear();
        leaf.spacing = lengthOrNothing(20);
    }
    return leaf;
}

ViewTree tree(int levels, bool withHorizontalStacks, bool isInStack) {
    if (levels == 0 || *rc::gen::inRange(0, 5) == 0) {
        return leaf(isInStack);
    }
    ViewTree tree;
    tree.kind = *rc::gen::element(Kind::padding, Kind::frame, Kind::fixedSize, Kind::groupedForm,
                                  Kind::verticalStack, Kind::verticalStack,
                                  withHorizontalStacks ? Kind::horizontalStack : Kind::verticalStack,
                                  withHorizontalStacks ? Kind::horizontalStack : Kind::padding);
    tree.alignment = alignment();
    tree.spacing = tree.isStack() ? lengthOrNothing(20) : std::nullopt;
    tree.insets = tree.kind == Kind::padding ? insets() : EdgeInsets{};
    tree.frame = tree.kind == Kind::frame ? frame() : Frame{};
    tree.isFixedWidth = *rc::gen::arbitrary<bool>();
    tree.isFixedHeight = *rc::gen::arbitrary<bool>();
    const int children = tree.isStack() || tree.kind == Kind::groupedForm ? *rc::gen::inRange(0, 5) : 1;
    for (int child = 0; child < children; ++child) {
        tree.children.push_back(ui::tree(levels - 1, withHorizontalStacks, tree.isStack()));
    }
    return tree;
}

void number(ViewTree& tree, int& last) {
    tree.number = ++last;
    for (ViewTree& child : tree.children) {
        number(child, last);
    }
}

rc::Gen<ViewTree> trees(bool withHorizontalStacks) {
    return rc::gen::exec([withHorizontalStacks] {
        ViewTree whole = tree(Levels, withHorizontalStacks, false);
        int last = 0;
        number(whole, last);
        return whole;
    });
}

} // namespace

rc::Gen<ViewTree> anyTrees() { return trees(true); }

rc::Gen<ViewTree> treesOfOneColumn() { return trees(false); }

rc::Gen<ProposedSize> anyProposals() {
    return rc::gen::exec([] { return ProposedSize{lengthOrNothing(500), lengthOrNothing(400)}; });
}

} // namespace kestrune::ui
