#include "desk/paint/mac/ScenePainter.h"

#include "desk/paint/mac/ApplicationIcon.h"
#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/SymbolPainter.h"
#include "desk/paint/toolkit/RectMath.h"
#include "desk/paint/toolkit/Shapes.h"
#include "ui/ControlMetrics.h"
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
    ElementPainter(const Canvas& canvas, const SceneState& state) : canvas_(canvas), state_(state) {}

    void paint(const ui::Element& element, std::size_t index) {
        index_ = index;
        std::visit(*this, element);
    }

    void operator()(const ui::TextElement& element) {
        canvas_.text.paint(element.text, element.frame, colorOf(element.text.color));
    }

    void operator()(const ui::SymbolElement& element) {
        if (const auto path = pathOfIcon(element.symbol.name)) {
            paintApplicationIcon(canvas_, path, element.frame);
            return;
        }
        paintSymbol(canvas_.context, element.symbol, element.frame, colorOf(element.symbol.color));
    }

    void operator()(const ui::ShapeElement& element) {
        addOutline(canvas_.context, ui::outlineOf(element));
        const Color fill = colorOf(element.fill);
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
                {.isDefault = element.shortcut == ui::KeyboardShortcut::defaultAction && state_.isInKeyWindow,
                 .isPressed = isPressed()},
                pushButtonLook(element.size));
            break;
        case ui::ButtonElement::Kind::link:
            paintLink(element);
            break;
        case ui::ButtonElement::Kind::custom:
            paintBody(isPressed() ? element.pressedBody : element.body);
            break;
        }
    }

    void operator()(const ui::ToggleElement& element) {
        paintSwitch(canvas_, element.frame,
                    {.isOn = element.isOn,
                     .position = switchPosition(),
                     .isPressed = isPressed(),
                     .isInKeyWindow = state_.isInKeyWindow});
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
        cairo_paint_with_alpha(canvas_.context, isPressed() ? PressedOpacity : 1);
    }

    bool isPressed() const { return state_.pressedElement == index_; }

    std::optional<double> switchPosition() const {
        return state_.movingSwitch && state_.movingSwitch->element == index_
                   ? std::optional(state_.movingSwitch->position)
                   : std::nullopt;
    }

    Color colorOf(ui::Color color) const {
        return state_.colors ? state_.colors->at(static_cast<std::size_t>(color))
                             : sceneColor(canvas_.palette, color);
    }

    const Canvas& canvas_;
    const SceneState& state_;
    std::size_t index_ = 0; // of the element
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
        paintFocusRing(canvas, insetBy(button->frame, -room, 0), cornerRadiusOf(*button));
    } else if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
        paintFocusRing(canvas, toggle->frame, toggle->frame.height() / 2);
    }
}

} // namespace

Color sceneColor(const Palette& palette, ui::Color color) {
    return rgb(ui::systemColor(color).shade(palette.isDark));
}

void paintScene(const Canvas& canvas, const ui::Scene& scene, Point origin, const SceneState& state) {
    const SavedState saved{canvas.context};
    cairo_translate(canvas.context, origin.x, origin.y);
    ElementPainter painter{canvas, state};
    for (std::size_t index = 0; index < scene.elements.size(); ++index) {
        painter.paint(scene.elements[index], index);
    }
    if (state.focusedElement && *state.focusedElement < scene.elements.size() && state.isInKeyWindow) {
        paintFocus(canvas, scene.elements[*state.focusedElement]);
    }
}

Size PangoMeasurer::measureText(const ui::StyledText& text, std::optional<double> width) const {
    return text_.size(text, width);
}

Size PangoMeasurer::measureSymbol(const ui::StyledSymbol& symbol) const { return symbolSize(symbol); }

Size PangoMeasurer::measurePushButton(std::string_view title, ui::ControlSize size) const {
    const PushButtonLook look = pushButtonLook(size);
    return {text_.width(title, look.label) + 2 * look.padding, look.height};
}

Size PangoMeasurer::measureSwitch(ui::ControlSize size) const { return ui::switchSize(size); }

} // namespace kestrune::desk
