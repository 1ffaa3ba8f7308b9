#include "ui/View.h"
#include "ui/layout/Node.h"
#include "ui/layout/TextContent.h"
#include "ui/layout/TextItem.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kestrune::ui {

namespace {

struct TextNode final : Node {
    TextNode(std::string_view lookedUp, std::vector<std::string> filledIn)
        : key(lookedUp), arguments(std::move(filledIn)) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        return std::make_unique<TextItem>(localizedText(key, arguments, environment, pass.context),
                                          environment.isAccessibilityHidden, pass.texts);
    }

    std::string key;
    std::vector<std::string> arguments;
};

struct VerbatimTextNode final : Node {
    explicit VerbatimTextNode(std::string_view shown) : text(shown) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        return std::make_unique<TextItem>(verbatimText(text, environment, pass.context),
                                          environment.isAccessibilityHidden, pass.texts);
    }

    std::string text;
};

} // namespace

View Text(std::string_view key, std::vector<std::string> arguments) {
    return View(std::make_shared<TextNode>(key, std::move(arguments)));
}

View VerbatimText(std::string_view text) { return View(std::make_shared<VerbatimTextNode>(text)); }

} // namespace kestrune::ui
