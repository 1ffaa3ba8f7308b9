#include "ui/View.h"
#include "ui/layout/Axis.h"
#include "ui/layout/Node.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kestrune::ui {

namespace {

constexpr double DefaultSpacing = 8;

// What a stack offers each of its children along its axis.
using Shares = std::vector<std::optional<double>>;

// A child that has not had its share yet.
struct Waiting {
    std::size_t child;
    double minimum;
    double maximum;
};

// Those that can adapt least are served first, so that the others can make up for it. Of two that can grow
// without end the one that needs more is served first.
bool isServedBefore(const Waiting& one, const Waiting& other) {
    const double flexibility = one.maximum - one.minimum;
    const double otherFlexibility = other.maximum - other.minimum;
    return flexibility != otherFlexibility ? flexibility < otherFlexibility : one.minimum > other.minimum;
}

class StackItem final : public LayoutItem {
public:
    // `shareBefore` is the part of the free room across the axis that lies before a child.
    StackItem(Axis axis, double spacing, double shareBefore, std::vector<LayoutItemPointer> children)
        : axis_(axis), spacing_(spacing), shareBefore_(shareBefore), children_(std::move(children)) {}

private:
    Size measure(const ProposedSize& proposal) override {
        const Shares shares = share(proposal);
        double along = totalSpacing();
        double across = 0;
        for (std::size_t index = 0; index < children_.size(); ++index) {
            const Size child = children_[index]->sizeThatFits(offering(shares[index], axis_, proposal));
            along += lengthAlong(axis_, child);
            across = std::max(across, lengthAcross(axis_, child));
        }
        return sizeOf(along, across, axis_);
    }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        const double room = lengthAcross(axis_, sizeThatFits(proposal));
        const Shares shares = share(proposal);
        double along = 0;
        for (std::size_t index = 0; index < children_.size(); ++index) {
            const ProposedSize offered = offering(shares[index], axis_, proposal);
            const Size child = children_[index]->sizeThatFits(offered);
            const Point offset = pointAt(along, (room - lengthAcross(axis_, child)) * shareBefore_, axis_);
            children_[index]->place({origin.x + offset.x, origin.y + offset.y}, offered, rendering);
            along += lengthAlong(axis_, child) + spacing_;
        }
    }

    double totalSpacing() const {
        return children_.empty() ? 0 : spacing_ * static_cast<double>(children_.size() - 1);
    }

    Shares share(const ProposedSize& proposal) {
        const std::optional<double> offered = offeredAlong(axis_, proposal);
        Shares shares(children_.size(), offered);
        // Of nothing, or of no end of room, everybody is offered the same.
        if (!offered || std::isinf(*offered)) {
            return shares;
        }
        std::vector<Waiting> views;
        std::vector<Waiting> spacers;
        double reserved = 0;
        for (std::size_t index = 0; index < children_.size(); ++index) {
            const Waiting waiting = limits(index, proposal);
            const bool isSpacer = children_[index]->isSpacer();
            (isSpacer ? spacers : views).push_back(waiting);
            reserved += isSpacer ? waiting.minimum : 0;
        }
        const double left = *offered - totalSpacing();
        const double used = serve(std::move(views), left - reserved, proposal, shares);
        serve(std::move(spacers), left - used, proposal, shares);
        return shares;
    }

    Waiting limits(std::size_t child, const ProposedSize& proposal) {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return {child, lengthAlong(axis_, children_[child]->sizeThatFits(offering(0, axis_, proposal))),
                lengthAlong(axis_, children_[child]->sizeThatFits(offering(infinity, axis_, proposal)))};
    }

    // Each is offered an equal share of what those before it have left. The length that all of them use.
    double serve(std::vector<Waiting> waiting, double room, const ProposedSize& proposal, Shares& shares) {
        std::stable_sort(waiting.begin(), waiting.end(), isServedBefore);
        double used = 0;
        for (std::size_t served = 0; served < waiting.size(); ++served) {
            const std::size_t child = waiting[served].child;
            shares[child] = std::max(0.0, room - used) / static_cast<double>(waiting.size() - served);
            used +=
                lengthAlong(axis_, children_[child]->sizeThatFits(offering(shares[child], axis_, proposal)));
        }
        return used;
    }

    Axis axis_;
    double spacing_;
    double shareBefore_;
    std::vector<LayoutItemPointer> children_;
};

struct StackNode final : Node {
    StackNode(Axis along, std::optional<double> between, double before, std::vector<View> content)
        : axis(along),
          spacing(between.value_or(DefaultSpacing)),
          shareBefore(before),
          children(std::move(content)) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        Environment inside = environment;
        inside.stackAxis = axis;
        std::vector<LayoutItemPointer> items;
        items.reserve(children.size());
        for (const View& child : children) {
            items.push_back(child.node().resolve(inside, pass));
        }
        return std::make_unique<StackItem>(axis, spacing, shareBefore, std::move(items));
    }

    Axis axis;
    double spacing;
    double shareBefore;
    std::vector<View> children;
};

} // namespace

namespace {

std::vector<View> copied(std::span<const View* const> children) {
    std::vector<View> copies;
    copies.reserve(children.size());
    for (const View* const child : children) {
        copies.push_back(*child);
    }
    return copies;
}

} // namespace

View VStackOf(const VStackOptions& options, std::span<const View* const> children) {
    return VStack(options, copied(children));
}

View HStackOf(const HStackOptions& options, std::span<const View* const> children) {
    return HStack(options, copied(children));
}

View VStack(const VStackOptions& options, std::vector<View> children) {
    return View(std::make_shared<StackNode>(Axis::vertical, options.spacing, shareBefore(options.alignment),
                                            std::move(children)));
}

View HStack(const HStackOptions& options, std::vector<View> children) {
    return View(std::make_shared<StackNode>(Axis::horizontal, options.spacing, shareBefore(options.alignment),
                                            std::move(children)));
}

} // namespace kestrune::ui
