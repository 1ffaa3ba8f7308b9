#include "desk/paint/mac/ScenePainter.h"

#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/SymbolPainter.h"
#include "desk/paint/toolkit/SceneColor.h"
#include "desk/paint/toolkit/Shapes.h"
#include "desk/paint/toolkit/StyledTextLayout.h"
#include "ui/Outline.h"

#include <variant>

namespace kestrune::desk {
namespace {

void addOutline(cairo_t* context, const ui::Outline& outline) {
    cairo_new_sub_path(context);
    cairo_move_to(context, outline.start().x, outline.start().y);
    for (const ui::OutlineSide& side : outline.sides) {
        cairo_line_to(context, side.lineEnd.x, side.lineEnd.y);
        cairo_curve_to(context, side.firstControl.x, side.firstControl.y, side.secondControl.x,
                       side.secondControl.y, side.curveEnd.x, side.curveEnd.y);
    }
    cairo_close_path(context);
}

// Paints each kind of element; the context's origin is the scene's.
class ElementPainter {
public:
    explicit ElementPainter(const Canvas& canvas) : canvas_(canvas), text_(canvas.context) {}

    // Of the next element, which has that index.
    void set(std::size_t index, const SceneState& state) {
        isPressed_ = state.pressedElement == index;
        isInKeyWindow_ = state.isInKeyWindow;
        switchPosition_ = state.movingSwitch && state.movingSwitch->element == index
                              ? std::optional(state.movingSwitch->position)
                              : std::nullopt;
    }

    void operator()(const ui::TextElement& element) {
        text_.set(element.text, element.frame.width());
        setColor(canvas_.context, sceneColor(canvas_.palette, element.text.color));
        text_.fill({element.frame.minX(), element.frame.minY()});
    }

    void operator()(const ui::SymbolElement& element) {
        if (const auto path = pathOfIcon(element.symbol.name)) {
            paintApplicationIcon(canvas_, path, element.frame);
            return;
        }
        paintSymbol(canvas_.context, element.symbol, element.frame,
                    sceneColor(canvas_.palette, element.symbol.color));
    }

    void operator()(const ui::ShapeElement& element) {
        addOutline(canvas_.context, ui::outlineOf(element));
        const Color fill = sceneColor(canvas_.palette, element.fill);
        setColor(canvas_.context, fill.withAlpha(fill.alpha * element.opacity));
        if (element.lineWidth > 0) {
            cairo_set_line_width(canvas_.context, element.lineWidth);
            cairo_stroke(canvas_.context);
        } else {
            cairo_fill(canvas_.context);
        }
    }

    void operator()(const ui::ButtonElement& element) {
        switch (element.kind) {
        case ui::ButtonElement::Kind::bordered:
            paintPushButton(
                canvas_, element.frame, element.title,
                {.isDefault = element.shortcut == ui::KeyboardShortcut::defaultAction && isInKeyWindow_,
                 .isPressed = isPressed_},
                pushButtonLook(element.size));
            break;
        case ui::ButtonElement::Kind::link:
            paintLink(element);
            break;
        case ui::ButtonElement::Kind::custom:
            paintBody(isPressed_ ? element.pressedBody : element.body);
            break;
        }
    }

    void operator()(const ui::ToggleElement& element) {
        paintSwitch(canvas_, element.frame,
                    {.isOn = element.isOn,
                     .position = switchPosition_,
                     .isPressed = isPressed_,
                     .isInKeyWindow = isInKeyWindow_});
    }

private:
    void paintBody(const std::vector<ui::Drawing>& body) {
        for (const ui::Drawing& drawing : body) {
            std::visit(*this, drawing);
        }
    }

    // The platform dims it while it is held down.
    void paintLink(const ui::ButtonElement& element) {
        constexpr double PressedOpacity = 0.55;
        cairo_push_group(canvas_.context);
        paintBody(element.body);
        cairo_pop_group_to_source(canvas_.context);
        cairo_paint_with_alpha(canvas_.context, isPressed_ ? PressedOpacity : 1);
    }

    const Canvas& canvas_;
    StyledTextLayout text_;
    bool isPressed_ = false;
    bool isInKeyWindow_ = true;
    std::optional<double> switchPosition_;
};

// The ring follows the shape that a button is drawn on.
double cornerRadiusOf(const ui::ButtonElement& button) {
    constexpr double WithoutShape = 4;
    if (button.kind == ui::ButtonElement::Kind::bordered) {
        return pushButtonLook(button.size).cornerRadius;
    }
    for (const ui::Drawing& drawing : button.body) {
        if (const auto* const shape = std::get_if<ui::ShapeElement>(&drawing)) {
            return shape->cornerRadius;
        }
    }
    return WithoutShape;
}

void paintFocus(const Canvas& canvas, const ui::Element& element) {
    if (const auto* const button = std::get_if<ui::ButtonElement>(&element)) {
        // A link has no room of its own around its letters.
        const double room = button->kind == ui::ButtonElement::Kind::link ? 2 : 0;
        paintFocusRing(canvas,
                       {button->frame.minX() - room, button->frame.minY(), button->frame.width() + 2 * room,
                        button->frame.height()},
                       cornerRadiusOf(*button));
    } else if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
        paintFocusRing(canvas, toggle->frame, toggle->frame.height() / 2);
    }
}

} // namespace

void paintScene(const Canvas& canvas, const ui::Scene& scene, Point origin, const SceneState& state) {
    const SavedState saved{canvas.context};
    cairo_translate(canvas.context, origin.x, origin.y);
    ElementPainter painter{canvas};
    for (std::size_t index = 0; index < scene.elements.size(); ++index) {
        painter.set(index, state);
        std::visit(painter, scene.elements[index]);
    }
    if (state.focusedElement && *state.focusedElement < scene.elements.size() && state.isInKeyWindow) {
        paintFocus(canvas, scene.elements[*state.focusedElement]);
    }
}

} // namespace kestrune::desk
