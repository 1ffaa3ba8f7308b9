#include "ui/View.h"
#include "ui/layout/Node.h"
#include "ui/layout/TextContent.h"

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace kestrune::ui {

namespace {

// The system's font sizes for small controls. Source: AppKit, NSFont.systemFontSize(for:).
constexpr double SmallFontSize = 11;
constexpr double MiniFontSize = 9;

// The element without its frame and its body, and what a press does.
struct ButtonContent {
    ButtonElement element;
    std::function<void()> action;
};

void show(ButtonContent&& content, Rendering& rendering) {
    content.element.action = rendering.actions.size();
    rendering.actions.push_back(std::move(content.action));
    rendering.scene.elements.emplace_back(std::move(content.element));
}

// The push button that the platform draws.
class BorderedButtonItem final : public LeafItem {
public:
    BorderedButtonItem(ButtonContent content, const Size& size) : content_(std::move(content)), size_(size) {}

private:
    Size measure(const ProposedSize& /*proposal*/) override { return size_; }

    void show(const Rect& frame, Rendering& rendering) override {
        content_.element.frame = frame;
        ui::show(std::move(content_), rendering);
    }

    ButtonContent content_;
    Size size_;
};

// What is drawn; a control inside a button is none.
std::vector<Drawing> drawings(std::vector<Element> elements) {
    std::vector<Drawing> drawings;
    for (Element& element : elements) {
        std::visit(
            [&](auto& placed) {
                if constexpr (std::is_constructible_v<Drawing, decltype(placed)>) {
                    drawings.emplace_back(std::move(placed));
                }
            },
            element);
    }
    return drawings;
}

// A button that is drawn from views.
class DrawnButtonItem final : public LayoutItem {
public:
    // `pressedBody` may be absent.
    DrawnButtonItem(ButtonContent content, LayoutItemPointer body, LayoutItemPointer pressedBody)
        : content_(std::move(content)), body_(std::move(body)), pressedBody_(std::move(pressedBody)) {}

private:
    Size measure(const ProposedSize& proposal) override { return body_->sizeThatFits(proposal); }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        const Size size = body_->sizeThatFits(proposal);
        content_.element.frame = frameAt(origin, size);
        content_.element.body = draw(*body_, origin, size, proposal);
        if (pressedBody_) {
            content_.element.pressedBody = draw(*pressedBody_, origin, size, proposal);
        }
        ui::show(std::move(content_), rendering);
    }

    // A body that has another size lies in the middle.
    static std::vector<Drawing> draw(LayoutItem& body, Point origin, const Size& room,
                                     const ProposedSize& proposal) {
        Rendering rendering;
        body.place(aligned(origin, room, body.sizeThatFits(proposal), {}), proposal, rendering);
        return drawings(std::move(rendering.scene.elements));
    }

    ButtonContent content_;
    LayoutItemPointer body_;
    LayoutItemPointer pressedBody_;
};

// What holds for the body of a button. The style is that of the system, so that no style can draw itself with
// a button of its own style without end.
Environment insideButton(const Environment& environment) {
    Environment inside = environment;
    inside.buttonStyle = ButtonStyle::automatic();
    if (environment.buttonStyle->kind() == ButtonStyle::Kind::link && !inside.font) {
        if (inside.controlSize == ControlSize::small) {
            inside.font = Font::system(SmallFontSize);
        } else if (inside.controlSize == ControlSize::mini) {
            inside.font = Font::system(MiniFontSize);
        }
    }
    return inside;
}

ButtonElement::Kind elementKind(ButtonStyle::Kind kind) {
    if (kind == ButtonStyle::Kind::bordered) {
        return ButtonElement::Kind::bordered;
    }
    return kind == ButtonStyle::Kind::link ? ButtonElement::Kind::link : ButtonElement::Kind::custom;
}

struct ButtonNode final : Node {
    ButtonNode(std::string_view titleKey, std::function<void()> whenPressed, ButtonRole meaning)
        : key(titleKey), action(std::move(whenPressed)), role(meaning) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        const ButtonStyle::Kind kind = environment.buttonStyle->kind();
        ButtonContent content = contentIn(environment, pass.context);
        if (kind == ButtonStyle::Kind::bordered) {
            const Size size =
                pass.context.measurer.measurePushButton(content.element.title, content.element.size);
            return std::make_unique<BorderedButtonItem>(std::move(content), size);
        }
        LayoutItemPointer body = resolveBody(false, environment, pass);
        LayoutItemPointer pressedBody;
        if (kind == ButtonStyle::Kind::custom) {
            pressedBody = resolveBody(true, environment, pass);
        }
        return std::make_unique<DrawnButtonItem>(std::move(content), std::move(body), std::move(pressedBody));
    }

    ButtonContent contentIn(const Environment& environment, const LayoutContext& context) const {
        ButtonContent content;
        content.action = action;
        content.element.kind = elementKind(environment.buttonStyle->kind());
        content.element.title = controlTitle(key, context);
        content.element.size = environment.controlSize.value_or(ControlSize::regular);
        content.element.role = role;
        content.element.shortcut = environment.keyboardShortcut;
        return content;
    }

    LayoutItemPointer resolveBody(bool isPressed, const Environment& environment, LayoutPass& pass) const {
        const View body = environment.buttonStyle->makeBody({Text(key), isPressed, role});
        return body.node().resolve(insideButton(environment), pass);
    }

    std::string key;
    std::function<void()> action;
    ButtonRole role;
};

} // namespace

View Button(std::string_view titleKey, std::function<void()> action, ButtonRole role) {
    return View(std::make_shared<ButtonNode>(titleKey, std::move(action), role));
}

} // namespace kestrune::ui
