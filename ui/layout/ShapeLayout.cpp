#include "ui/View.h"
#include "ui/layout/Node.h"

#include <memory>

namespace kestrune::ui {

namespace {

constexpr double IdealLength = 10;

class ShapeItem final : public LeafItem {
public:
    explicit ShapeItem(const RoundedRectangleOptions& options) : options_(options) {}

private:
    Size measure(const ProposedSize& proposal) override {
        return {proposal.width.value_or(IdealLength), proposal.height.value_or(IdealLength)};
    }

    void show(const Rect& frame, Rendering& rendering) override {
        rendering.scene.elements.emplace_back(ShapeElement{frame, options_.cornerRadius, options_.cornerStyle,
                                                           options_.fill, options_.opacity,
                                                           options_.lineWidth});
    }

    RoundedRectangleOptions options_;
};

struct ShapeNode final : Node {
    explicit ShapeNode(const RoundedRectangleOptions& shape) : options(shape) {}

    LayoutItemPointer resolve(const Environment& /*environment*/, LayoutPass& /*pass*/) const override {
        return std::make_unique<ShapeItem>(options);
    }

    RoundedRectangleOptions options;
};

} // namespace

View RoundedRectangle(const RoundedRectangleOptions& options) {
    return View(std::make_shared<ShapeNode>(options));
}

} // namespace kestrune::ui
