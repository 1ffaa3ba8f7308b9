// Bordered buttons, which the platform draws.
#include "mac/Vocabulary.h"
#include "mac/hosting/ButtonSettings.h"
#include "mac/hosting/ElementViews.h"
#include "mac/hosting/SystemControls.h"

namespace kestrune::mac {

namespace {

class PushButton : public ViewOf<ui::ButtonElement> {
public:
    explicit PushButton(id target) : ViewOf(newPushButton()) {
        ns_control::setTarget(view(), target);
        ns_control::setAction(view(), sel_registerName("pressButton:"));
    }

    bool isControl() const override { return true; }

private:
    bool isSame(const ui::ButtonElement& before, const ui::ButtonElement& next) const override {
        return before.kind == next.kind && before.title == next.title;
    }

    void update(const ui::ButtonElement& next) override {
        if (differs(next, &ui::ButtonElement::title)) {
            setTitle(view(), next.title);
            setAccessibilityLabel(view(), next.title);
        }
        if (differs(next, &ui::ButtonElement::size)) {
            setButtonSize(view(), next.size);
        }
        if (differs(next, &ui::ButtonElement::role)) {
            ns_button::setHasDestructiveAction(view(), truth(next.role == ui::ButtonRole::destructive));
        }
        if (differs(next, &ui::ButtonElement::shortcut)) {
            setShortcut(view(), next.shortcut);
        }
        if (differs(next, &ui::ButtonElement::frame)) {
            ns_view::setFrame(view(), ns_view::frameForAlignmentRect(view(), next.frame));
        }
        mac::setAction(view(), next.action);
    }
};

} // namespace

std::unique_ptr<ElementView> makePushButton(id target) { return std::make_unique<PushButton>(target); }

} // namespace kestrune::mac
