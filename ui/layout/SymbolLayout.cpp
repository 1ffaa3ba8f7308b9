#include "ui/View.h"
#include "ui/layout/Node.h"

#include <memory>
#include <string>
#include <utility>

namespace kestrune::ui {

namespace {

class SymbolItem final : public LeafItem {
public:
    SymbolItem(StyledSymbol symbol, const Size& size) : symbol_(std::move(symbol)), size_(size) {}

private:
    Size measure(const ProposedSize& /*proposal*/) override { return size_; }

    void show(const Rect& frame, Rendering& rendering) override {
        rendering.scene.elements.emplace_back(SymbolElement{frame, symbol_});
    }

    StyledSymbol symbol_;
    Size size_;
};

struct SymbolNode final : Node {
    explicit SymbolNode(std::string_view systemName) : name(systemName) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        StyledSymbol symbol;
        symbol.name = name;
        symbol.font = environment.effectiveFont();
        symbol.scale = environment.imageScale;
        symbol.color = environment.foregroundColor();
        const Size size = pass.context.measurer.measureSymbol(symbol);
        return std::make_unique<SymbolItem>(std::move(symbol), size);
    }

    std::string name;
};

} // namespace

View SystemImage(std::string_view name) { return View(std::make_shared<SymbolNode>(name)); }

} // namespace kestrune::ui
