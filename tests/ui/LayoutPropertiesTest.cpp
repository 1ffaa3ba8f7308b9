#include "tests/ui/FixedAdvanceMeasurer.h"
#include "tests/ui/ViewTree.h"
#include "tests/ui/ViewTreeGenerators.h"
#include "ui/layout/Layout.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

namespace kestrune::ui {

namespace {

// Letters of 7.259 points in lines of 16.592, so that nothing is whole by itself.
class Page {
public:
    Rendering layOut(const View& view, const ProposedSize& proposal) const {
        return ui::layOut(view, proposal, context_);
    }
    Rendering layOut(const ViewTree& tree, const ProposedSize& proposal) const {
        return layOut(viewOf(tree), proposal);
    }

    const Measurer& measurer() const { return measurer_; }

private:
    FixedAdvanceMeasurer measurer_{1.037};
    LayoutContext context_{measurer_, [](std::string_view key) { return std::string(key); },
                           [](std::string_view text) { return std::string(text); }};
};

bool isWhole(double value) { return std::isfinite(value) && value == std::floor(value); }

bool isWhole(const Rect& frame) {
    return isWhole(frame.origin.x) && isWhole(frame.origin.y) && isWhole(frame.size.width) &&
           isWhole(frame.size.height);
}

bool isInside(const Rect& inner, const Rect& outer) {
    return inner.minX() >= outer.minX() && inner.maxX() <= outer.maxX() && inner.minY() >= outer.minY() &&
           inner.maxY() <= outer.maxY();
}

bool isNoLarger(const Size& one, const Size& other) {
    return one.width <= other.width && one.height <= other.height;
}

bool hasNegativeInset(const EdgeInsets& insets) {
    return std::min({insets.top, insets.leading, insets.bottom, insets.trailing}) < 0;
}

// Whether the rule lets the child stick out: of negative padding, and of a frame that is smaller than it.
bool mayStickOut(const Rect& child, const ViewTree& parent, const Rect& around) {
    return hasNegativeInset(parent.insets) ||
           (parent.kind == ViewTree::Kind::frame && !isNoLarger(child.size, around.size));
}

bool fits(const Size& size, const ProposedSize& proposal) {
    return size.width <= proposal.width.value_or(size.width) &&
           size.height <= proposal.height.value_or(size.height);
}

} // namespace

RC_GTEST_PROP(LayoutProperties, EveryFrameLiesOnWholePoints, (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Scene scene = Page().layOut(tree, proposal).scene;
    RC_ASSERT(isWhole({0, 0, scene.size.width, scene.size.height}));
    for (const Element& element : scene.elements) {
        RC_ASSERT(isWhole(std::visit([](const auto& placed) { return placed.frame; }, element)));
    }
}

RC_GTEST_PROP(LayoutProperties, NoTextIsCut, (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Page page;
    for (const Element& element : page.layOut(tree, proposal).scene.elements) {
        if (const auto* const text = std::get_if<TextElement>(&element)) {
            const Size& room = text->frame.size;
            RC_ASSERT(isNoLarger(page.measurer().measureText(text->text, room.width), room));
        }
    }
}

RC_GTEST_PROP(LayoutProperties, NoControlAndNoSymbolIsSmallerThanItMeasures, (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Page page;
    for (const Element& element : page.layOut(tree, proposal).scene.elements) {
        if (const auto* const symbol = std::get_if<SymbolElement>(&element)) {
            RC_ASSERT(isNoLarger(page.measurer().measureSymbol(symbol->symbol), symbol->frame.size));
        } else if (const auto* const toggle = std::get_if<ToggleElement>(&element)) {
            RC_ASSERT(isNoLarger(page.measurer().measureSwitch(toggle->size), toggle->frame.size));
        } else if (const auto* const button = std::get_if<ButtonElement>(&element)) {
            const bool isDrawnByPlatform = button->kind == ButtonElement::Kind::bordered;
            RC_ASSERT(!isDrawnByPlatform ||
                      isNoLarger(page.measurer().measurePushButton(button->title, button->size),
                                 button->frame.size));
        }
    }
}

RC_GTEST_PROP(LayoutProperties, ChildrenLieInsideTheirParentsUnlessTheyMayStickOut,
              (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Scene scene = Page().layOut(tree, proposal).scene;
    for (const ViewTree* const parent : allOf(tree)) {
        const std::optional<Rect> around = frameOf(*parent, scene);
        for (const ViewTree& child : parent->children) {
            const std::optional<Rect> inside = frameOf(child, scene);
            if (around && inside && !mayStickOut(*inside, *parent, *around)) {
                RC_ASSERT(isInside(*inside, *around));
            }
        }
    }
}

RC_GTEST_PROP(LayoutProperties, TheBodiesOfAButtonLieInside, (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    for (const Element& element : Page().layOut(tree, proposal).scene.elements) {
        if (const auto* const button = std::get_if<ButtonElement>(&element)) {
            const auto isInsideButton = [&](const Drawing& drawing) {
                return isInside(std::visit([](const auto& drawn) { return drawn.frame; }, drawing),
                                button->frame);
            };
            RC_ASSERT(std::all_of(button->body.begin(), button->body.end(), isInsideButton));
            RC_ASSERT(std::all_of(button->pressedBody.begin(), button->pressedBody.end(), isInsideButton));
        }
    }
}

RC_GTEST_PROP(LayoutProperties, ViewsInAStackDoNotOverlap, (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Scene scene = Page().layOut(tree, proposal).scene;
    for (const ViewTree* const stack : allOf(tree)) {
        if (!stack->isStack()) {
            continue;
        }
        std::optional<Rect> before;
        for (const ViewTree& child : stack->children) {
            const std::optional<Rect> frame = frameOf(child, scene);
            if (before && frame) {
                const bool isAfter = stack->kind == ViewTree::Kind::verticalStack
                                         ? frame->minY() >= before->maxY()
                                         : frame->minX() >= before->maxX();
                RC_ASSERT(isAfter);
            }
            before = frame ? frame : before;
        }
    }
}

RC_GTEST_PROP(LayoutProperties, AStackIsAsLongAsItsViewsAndSpacesAndAsWideAsTheWidest,
              (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Scene scene = Page().layOut(tree, proposal).scene;
    for (const ViewTree* const stack : allOf(tree)) {
        const std::optional<Rect> frame = frameOf(*stack, scene);
        const auto hasFrame = [&](const ViewTree& child) { return frameOf(child, scene).has_value(); };
        if (!stack->isStack() || !frame ||
            !std::all_of(stack->children.begin(), stack->children.end(), hasFrame)) {
            continue;
        }
        const bool isVertical = stack->kind == ViewTree::Kind::verticalStack;
        double along = stack->spacing.value_or(8) * static_cast<double>(stack->children.size() - 1);
        double across = 0;
        for (const ViewTree& child : stack->children) {
            const Size size = frameOf(child, scene)->size;
            along += isVertical ? size.height : size.width;
            across = std::max(across, isVertical ? size.width : size.height);
        }
        RC_ASSERT((isVertical ? frame->size.height : frame->size.width) == std::ceil(along));
        RC_ASSERT((isVertical ? frame->size.width : frame->size.height) == across);
    }
}

RC_GTEST_PROP(LayoutProperties, APaddingIsItsContentAndItsInsets, (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Scene scene = Page().layOut(tree, proposal).scene;
    for (const ViewTree* const padding : allOf(tree)) {
        const std::optional<Rect> frame = frameOf(*padding, scene);
        if (padding->kind != ViewTree::Kind::padding || !frame) {
            continue;
        }
        if (const std::optional<Rect> content = frameOf(padding->children.at(0), scene)) {
            const EdgeInsets& insets = padding->insets;
            RC_ASSERT(frame->size.width == std::ceil(content->size.width + insets.leading + insets.trailing));
            RC_ASSERT(frame->size.height == std::ceil(content->size.height + insets.top + insets.bottom));
        }
    }
}

// Apart from the assertions, which evaluate both sides of what they are given.
bool isAsFixed(double length, const std::optional<double>& fixed) {
    return !fixed || length == std::ceil(*fixed);
}

RC_GTEST_PROP(LayoutProperties, AFixedFrameHasItsSize, (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Scene scene = Page().layOut(tree, proposal).scene;
    for (const ViewTree* const framed : allOf(tree)) {
        if (const std::optional<Rect> frame = frameOf(*framed, scene)) {
            RC_ASSERT(isAsFixed(frame->size.width, framed->frame.width));
            RC_ASSERT(isAsFixed(frame->size.height, framed->frame.height));
        }
    }
}

RC_GTEST_PROP(LayoutProperties, AViewLaidOutTwiceIsTheSameTwice, (const ProposedSize& proposal)) {
    const View view = viewOf(*anyTrees());
    const Page page;
    RC_ASSERT(page.layOut(view, proposal).scene == page.layOut(view, proposal).scene);
}

// Horizontal stacks are left out: in one of them a text gets an equal share of the length that all texts
// together needed, and may have to wrap in it.
RC_GTEST_PROP(LayoutProperties, AViewThatIsOfferedTheSizeThatItChoseChoosesItAgain,
              (const ProposedSize& proposal)) {
    const ViewTree tree = *treesOfOneColumn();
    const Page page;
    const Size size = page.layOut(tree, proposal).scene.size;
    // One that is larger than its offer would make use of the difference.
    RC_PRE(fits(size, proposal));
    RC_ASSERT(page.layOut(tree, {size.width, size.height}).scene.size == size);
}

RC_GTEST_PROP(LayoutProperties, AStackWithSomethingFlexibleFillsItsOffer, ()) {
    std::vector<View> views;
    double needed = 0;
    const auto add = [&](const View& view, double minimum) {
        views.push_back(view);
        needed += minimum;
    };
    for (const int kind : *rc::gen::nonEmpty<std::vector<int>>()) {
        const double length = *rc::gen::inRange(0, 60);
        switch (std::abs(kind) % 3) {
        case 0:
            add(RoundedRectangle({}).frame({.width = length, .height = length}), length);
            break;
        case 1:
            add(Spacer(length), length);
            break;
        default:
            add(RoundedRectangle({}), 0);
        }
    }
    const double spacing = *rc::gen::inRange(0, 20);
    add(Spacer(0), 0);
    needed += spacing * static_cast<double>(views.size() - 1);
    const double offered = *rc::gen::inRange(0, 1000);
    const double expected = std::max(needed, offered);
    const Page page;
    RC_ASSERT(page.layOut(HStack({.spacing = spacing}, views), {offered, 50}).scene.size.width == expected);
    RC_ASSERT(page.layOut(VStack({.spacing = spacing}, views), {50, offered}).scene.size.height == expected);
}

RC_GTEST_PROP(LayoutProperties, EveryControlHasAnActionOfItsOwnInTheOrderOfTheElements,
              (const ProposedSize& proposal)) {
    const ViewTree tree = *anyTrees();
    const Rendering rendering = Page().layOut(tree, proposal);
    std::size_t buttons = 0;
    std::size_t toggles = 0;
    for (const Element& element : rendering.scene.elements) {
        if (const auto* const button = std::get_if<ButtonElement>(&element)) {
            RC_ASSERT(button->action == buttons++);
        } else if (const auto* const toggle = std::get_if<ToggleElement>(&element)) {
            RC_ASSERT(toggle->action == toggles++);
        }
    }
    RC_ASSERT(rendering.actions.size() == buttons);
    RC_ASSERT(rendering.switches.size() == toggles);
    RC_ASSERT(buttons == count(tree, ViewTree::Kind::borderedButton) +
                             count(tree, ViewTree::Kind::linkButton) +
                             count(tree, ViewTree::Kind::customButton));
    RC_ASSERT(toggles == count(tree, ViewTree::Kind::toggle));
}

} // namespace kestrune::ui
