// The scene's buttons: bordered ones, which the platform draws, and those whose look comes with the scene.
#include "mac/hosting/Accessibility.h"
#include "mac/hosting/Controls.h"
#include "mac/hosting/Drawing.h"
#include "mac/hosting/ElementViews.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Actions.h"
#include "mac/vocabulary/Vocabulary.h"

#include <algorithm>

namespace kestrune::mac {

namespace {

constexpr double PressedLinkOpacity = 0.55;

// As characters of key equivalents.
const char* keyOf(ui::KeyboardShortcut shortcut) {
    switch (shortcut) {
    case ui::KeyboardShortcut::defaultAction:
        return "\r";
    case ui::KeyboardShortcut::cancelAction:
        return "\x1b";
    case ui::KeyboardShortcut::none:
        break;
    }
    return "";
}

// What both kinds have in common. Sends `pressButton:` to the target that it was connected to, which it does
// not retain.
class ButtonView : public ViewOf<ui::ButtonElement> {
public:
    bool isControl() const override { return true; }

protected:
    using ViewOf::ViewOf;

    // Once the button has its cell, which is what keeps target and action.
    void connect(id target) {
        appKit.control.setTarget(view(), target);
        appKit.control.setAction(view(), actions::pressButton.selector());
    }

    // Title, key and action; frame and look are each kind's own.
    void update(const ui::ButtonElement& next) override {
        if (differs(next, &ui::ButtonElement::title)) {
            appKit.button.setTitle(view(), nsString(next.title).get());
            setAccessibilityLabel(view(), next.title);
        }
        if (differs(next, &ui::ButtonElement::shortcut)) {
            appKit.button.setKeyEquivalent(view(), nsString(keyOf(next.shortcut)).get());
        }
        mac::setAction(view(), next.action);
    }

private:
    bool isSame(const ui::ButtonElement& before, const ui::ButtonElement& next) const override {
        return before.kind == next.kind && before.title == next.title;
    }
};

class PushButton : public ButtonView {
public:
    explicit PushButton(id target) : ButtonView(newPushButton()) { connect(target); }

private:
    void update(const ui::ButtonElement& next) override {
        ButtonView::update(next);
        if (differs(next, &ui::ButtonElement::size)) {
            setButtonSize(view(), next.size);
        }
        if (differs(next, &ui::ButtonElement::role)) {
            appKit.button.setHasDestructiveAction(view(), truth(next.role == ui::ButtonRole::destructive));
        }
        if (differs(next, &ui::ButtonElement::frame)) {
            appKit.view.setFrame(view(), appKit.view.frameForAlignmentRect(view(), next.frame));
        }
    }
};

// A custom button or a link. The platform tracks the mouse and the keys, highlights the cell while the button
// is pressed, and draws the ring around the one that has the focus.
class DrawnButton : public ButtonView {
public:
    explicit DrawnButton(id target)
        : ButtonView(Retained::adopting(appKit.view.initWithFrame(allocate(buttonClass()), Rect()))) {
        const Retained cell = Retained::adopting(foundation.object.init(allocate(cellClass())));
        appKit.control.setCell(view(), cell.get());
        appKit.button.setButtonType(view(), MomentaryPushIn);
        appKit.button.setBordered(view(), truth(false));
        connect(target);
        RuntimeClass::setTarget(view(), this);
    }
    ~DrawnButton() override { RuntimeClass::setTarget(view(), nullptr); }

private:
    void update(const ui::ButtonElement& next) override {
        ButtonView::update(next);
        if (differs(next, &ui::ButtonElement::frame)) {
            appKit.view.setFrame(view(), next.frame);
        }
        if (differs(next, &ui::ButtonElement::body) || differs(next, &ui::ButtonElement::pressedBody)) {
            appKit.view.setNeedsDisplay(view(), truth(true));
        }
    }

    // Null when the view has outlived it.
    static const DrawnButton* of(id view) {
        const auto* const self = static_cast<DrawnButton*>(RuntimeClass::target(view));
        return self != nullptr && self->shown() ? self : nullptr;
    }

    static void drawCell(id cell, SEL, Rect /*frame*/, id view) noexcept {
        const Pool pool;
        if (const DrawnButton* const self = of(view)) {
            drawElement(*self->shown(), appKit.cell.isHighlighted(cell) != 0);
        }
    }

    // A link has no picture of its own for when it is pressed.
    static void drawElement(const ui::ButtonElement& element, bool isPressed) {
        if (element.kind == ui::ButtonElement::Kind::link) {
            draw(element.body, element.frame.origin, isPressed ? PressedLinkOpacity : 1);
        } else {
            draw(isPressed ? element.pressedBody : element.body, element.frame.origin);
        }
    }

    static Rect focusRingMaskBounds(id view, SEL) noexcept { return appKit.view.bounds(view); }

    // Around the shape behind the label, or around all of it.
    static void drawFocusRingMask(id view, SEL) noexcept {
        const Pool pool;
        const DrawnButton* const self = of(view);
        if (self == nullptr) {
            return;
        }
        const auto& body = self->shown()->body;
        const auto shape = std::find_if(body.begin(), body.end(), [](const ui::Drawing& drawing) {
            return std::holds_alternative<ui::ShapeElement>(drawing);
        });
        ui::ShapeElement whole;
        whole.frame = self->shown()->frame;
        fillMask(shape != body.end() ? std::get<ui::ShapeElement>(*shape) : whole,
                 self->shown()->frame.origin);
    }

    // NSButton would let a layer show the picture of a cell of its own.
    static BOOL wantsUpdateLayer(id, SEL) noexcept { return truth(false); }

    static Class buttonClass() {
        static const Class made = [] {
            RuntimeClass type("KestruneDrawnButton", appKit.button);
            type.addMethod(appKit.view.isFlipped, alwaysFlipped);
            type.addMethod(appKit.view.wantsUpdateLayer, wantsUpdateLayer);
            type.addMethod(appKit.view.focusRingMaskBounds, focusRingMaskBounds);
            type.addMethod(appKit.view.drawFocusRingMask, drawFocusRingMask);
            return type.finish();
        }();
        return made;
    }

    static Class cellClass() {
        static const Class made = [] {
            RuntimeClass type("KestruneDrawnButtonCell", appKit.buttonCell);
            type.addMethod(appKit.cell.drawWithFrame, drawCell);
            return type.finish();
        }();
        return made;
    }
};

} // namespace

std::unique_ptr<ElementView> makePushButton(id target) { return std::make_unique<PushButton>(target); }

std::unique_ptr<ElementView> makeDrawnButton(id target) { return std::make_unique<DrawnButton>(target); }

} // namespace kestrune::mac
