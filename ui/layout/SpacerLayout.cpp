#include "ui/View.h"
#include "ui/layout/Node.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace kestrune::ui {

namespace {

constexpr double DefaultMinimumLength = 8;

class SpacerItem final : public LayoutItem {
public:
    SpacerItem(std::optional<Axis> axis, double minimumLength) : axis_(axis), minimum_(minimumLength) {}

    bool isSpacer() const override { return true; }

private:
    Size measure(const ProposedSize& proposal) override {
        return {axis_ == Axis::vertical ? 0 : length(proposal.width),
                axis_ == Axis::horizontal ? 0 : length(proposal.height)};
    }

    void placeContent(Point /*origin*/, const ProposedSize& /*proposal*/, Rendering& /*rendering*/) override {
    }

    double length(std::optional<double> offered) const { return std::max(minimum_, offered.value_or(0)); }

    std::optional<Axis> axis_; // both without a stack
    double minimum_;
};

struct SpacerNode final : Node {
    explicit SpacerNode(double atLeast) : minimumLength(atLeast) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& /*pass*/) const override {
        return std::make_unique<SpacerItem>(environment.stackAxis, minimumLength);
    }

    double minimumLength;
};

} // namespace

View Spacer(std::optional<double> minimumLength) {
    return View(std::make_shared<SpacerNode>(minimumLength.value_or(DefaultMinimumLength)));
}

} // namespace kestrune::ui
