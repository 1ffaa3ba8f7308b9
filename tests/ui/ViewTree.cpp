#include "tests/ui/ViewTree.h"

#include "ui/Scene.h"

#include <algorithm>
#include <memory>
#include <ostream>

namespace kestrune::ui {

namespace {

// No other shape has a radius, or one as large as this.
constexpr double FirstMark = 1000;

class PaddedStyle final : public ButtonStyle {
public:
    View makeBody(const Configuration& configuration) const override {
        return configuration.label.padding(4).background(
            RoundedRectangle({.opacity = configuration.isPressed ? 0.75 : 1}));
    }
};

std::vector<View> childrenOf(const ViewTree& tree) {
    std::vector<View> children;
    children.reserve(tree.children.size());
    for (const ViewTree& child : tree.children) {
        children.push_back(viewOf(child));
    }
    return children;
}

View unmarked(const ViewTree& tree) {
    using Kind = ViewTree::Kind;
    switch (tree.kind) {
    case Kind::text:
        return VerbatimText(tree.text);
    case Kind::symbol:
        return SystemImage("circle");
    case Kind::shape:
        return RoundedRectangle({});
    case Kind::label:
        return Label(tree.text, "circle");
    case Kind::borderedButton:
        return Button(tree.text, [] {});
    case Kind::linkButton:
        return Button(tree.text, [] {}).buttonStyle(ButtonStyle::link());
    case Kind::customButton:
        return Button(tree.text, [] {}).buttonStyle(std::make_shared<PaddedStyle>());
    case Kind::toggle:
        return Toggle(tree.text, true, [](bool) {});
    case Kind::spacer:
        return Spacer(tree.spacing);
    case Kind::padding:
        return viewOf(tree.children.at(0)).padding(tree.insets);
    case Kind::frame:
        return viewOf(tree.children.at(0)).frame(tree.frame);
    case Kind::fixedSize:
        return viewOf(tree.children.at(0)).fixedSize(tree.isFixedWidth, tree.isFixedHeight);
    case Kind::groupedForm:
        return Form({Section(childrenOf(tree))}).formStyle(FormStyle::grouped);
    case Kind::verticalStack:
        return VStack({tree.alignment.horizontal, tree.spacing}, childrenOf(tree));
    case Kind::horizontalStack:
        break;
    }
    return HStack({tree.alignment.vertical, tree.spacing}, childrenOf(tree));
}

const char* nameOf(ViewTree::Kind kind) {
    constexpr const char* names[] = {"text",  "symbol",    "shape",       "label",    "borderedButton",
                                     "link",  "custom",    "toggle",      "spacer",   "padding",
                                     "frame", "fixedSize", "groupedForm", "vertical", "horizontal"};
    return names[static_cast<std::size_t>(kind)];
}

void print(std::ostream& stream, const char* name, const std::optional<double>& value) {
    if (value) {
        stream << ' ' << name << '=' << *value;
    }
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const ViewTree& tree) {
    stream << nameOf(tree.kind) << '#' << tree.number;
    if (!tree.text.empty()) {
        stream << " \"" << tree.text << '"';
    }
    print(stream, "spacing", tree.spacing);
    if (tree.kind == ViewTree::Kind::padding) {
        stream << ' ' << tree.insets.top << ',' << tree.insets.leading << ',' << tree.insets.bottom << ','
               << tree.insets.trailing;
    }
    if (tree.kind == ViewTree::Kind::fixedSize) {
        stream << (tree.isFixedWidth ? " width" : "") << (tree.isFixedHeight ? " height" : "");
    }
    print(stream, "width", tree.frame.width);
    print(stream, "height", tree.frame.height);
    print(stream, "maxWidth", tree.frame.maxWidth);
    print(stream, "maxHeight", tree.frame.maxHeight);
    if (!tree.children.empty()) {
        stream << " {";
        for (const ViewTree& child : tree.children) {
            stream << ' ' << child << ';';
        }
        stream << " }";
    }
    return stream;
}

std::vector<const ViewTree*> allOf(const ViewTree& tree) {
    std::vector<const ViewTree*> all{&tree};
    for (const ViewTree& child : tree.children) {
        const std::vector<const ViewTree*> inside = allOf(child);
        all.insert(all.end(), inside.begin(), inside.end());
    }
    return all;
}

std::size_t count(const ViewTree& tree, ViewTree::Kind kind) {
    const std::vector<const ViewTree*> all = allOf(tree);
    return static_cast<std::size_t>(std::count_if(
        all.begin(), all.end(), [kind](const ViewTree* inside) { return inside->kind == kind; }));
}

View viewOf(const ViewTree& tree) {
    const View view = unmarked(tree);
    return tree.kind == ViewTree::Kind::spacer
               ? view
               : view.background(RoundedRectangle({.cornerRadius = FirstMark + tree.number}));
}

std::optional<Rect> frameOf(const ViewTree& tree, const Scene& scene) {
    for (const Element& element : scene.elements) {
        const auto* const shape = std::get_if<ShapeElement>(&element);
        if (shape != nullptr && shape->cornerRadius == FirstMark + tree.number) {
            return shape->frame;
        }
    }
    return std::nullopt;
}

} // namespace kestrune::ui
