#include "ui/View.h"
#include "ui/layout/Node.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace kestrune::ui {

namespace {

// The frame along one axis.
struct Range {
    std::optional<double> fixed;
    std::optional<double> minimum;
    std::optional<double> maximum;

    std::optional<double> offerInside(std::optional<double> offered) const {
        return fixed || !offered ? fixed : std::optional(clamped(*offered));
    }

    // Between its bounds the frame takes what it is offered; a bound that nobody named is the content's size.
    double length(std::optional<double> offered, double content) const {
        if (fixed) {
            return *fixed;
        }
        const double lower = minimum.value_or(std::min(content, maximum.value_or(content)));
        const double upper = maximum.value_or(content);
        return std::max(lower, std::min(offered.value_or(content), upper));
    }

private:
    double clamped(double offered) const {
        return std::max(minimum.value_or(offered), std::min(offered, maximum.value_or(offered)));
    }
};

class FrameItem final : public LayoutItem {
public:
    FrameItem(LayoutItemPointer content, const Frame& frame)
        : content_(std::move(content)),
          width_{frame.width, frame.minWidth, frame.maxWidth},
          height_{frame.height, frame.minHeight, frame.maxHeight},
          alignment_(frame.alignment) {}

private:
    Size measure(const ProposedSize& proposal) override {
        const Size content = content_->sizeThatFits(inside(proposal));
        return {width_.length(proposal.width, content.width),
                height_.length(proposal.height, content.height)};
    }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        const ProposedSize offered = inside(proposal);
        content_->place(aligned(origin, sizeThatFits(proposal), content_->sizeThatFits(offered), alignment_),
                        offered, rendering);
    }

    ProposedSize inside(const ProposedSize& proposal) const {
        return {width_.offerInside(proposal.width), height_.offerInside(proposal.height)};
    }

    LayoutItemPointer content_;
    Range width_;
    Range height_;
    Alignment alignment_;
};

struct FrameNode final : Node {
    FrameNode(View inside, const Frame& around) : content(std::move(inside)), frame(around) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        return std::make_unique<FrameItem>(content.node().resolve(environment, pass), frame);
    }

    View content;
    Frame frame;
};

} // namespace

View View::frame(const Frame& frame) const { return View(std::make_shared<FrameNode>(*this, frame)); }

} // namespace kestrune::ui
