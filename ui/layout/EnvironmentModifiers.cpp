#include "ui/View.h"
#include "ui/layout/Node.h"

#include <functional>
#include <memory>
#include <utility>

namespace kestrune::ui {

namespace {

struct EnvironmentNode final : Node {
    EnvironmentNode(View inside, std::function<void(Environment&)> say)
        : content(std::move(inside)), change(std::move(say)) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        Environment changed = environment;
        change(changed);
        return content.node().resolve(changed, pass);
    }

    View content;
    std::function<void(Environment&)> change;
};

View with(const View& content, std::function<void(Environment&)> change) {
    return View(std::make_shared<EnvironmentNode>(content, std::move(change)));
}

} // namespace

View View::font(const Font& font) const {
    return with(*this, [font](Environment& environment) { environment.font = font; });
}

View View::fontWeight(FontWeight weight) const {
    return with(*this, [weight](Environment& environment) { environment.fontWeight = weight; });
}

View View::foregroundStyle(ForegroundStyle style) const {
    return with(*this, [style](Environment& environment) { environment.foregroundStyle = style; });
}

View View::tint(Color color) const {
    return with(*this, [color](Environment& environment) { environment.tint = color; });
}

View View::textCase(TextCase textCase) const {
    return with(*this, [textCase](Environment& environment) { environment.textCase = textCase; });
}

View View::multilineTextAlignment(TextAlignment alignment) const {
    return with(*this,
                [alignment](Environment& environment) { environment.multilineTextAlignment = alignment; });
}

View View::imageScale(ImageScale scale) const {
    return with(*this, [scale](Environment& environment) { environment.imageScale = scale; });
}

View View::controlSize(ControlSize size) const {
    return with(*this, [size](Environment& environment) { environment.controlSize = size; });
}

View View::buttonStyle(std::shared_ptr<const ButtonStyle> style) const {
    return with(*this,
                [style = std::move(style)](Environment& environment) { environment.buttonStyle = style; });
}

View View::formStyle(FormStyle style) const {
    return with(*this, [style](Environment& environment) { environment.formStyle = style; });
}

View View::keyboardShortcut(KeyboardShortcut shortcut) const {
    return with(*this, [shortcut](Environment& environment) { environment.keyboardShortcut = shortcut; });
}

View View::accessibilityHidden() const {
    return with(*this, [](Environment& environment) { environment.isAccessibilityHidden = true; });
}

} // namespace kestrune::ui
