// Bordered buttons, which the platform draws.
#include "mac/Vocabulary.h"
#include "mac/hosting/ButtonSettings.h"
#include "mac/hosting/ButtonView.h"
#include "mac/hosting/ElementViews.h"
#include "mac/hosting/SystemControls.h"

namespace kestrune::mac {

namespace {

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

} // namespace

std::unique_ptr<ElementView> makePushButton(id target) { return std::make_unique<PushButton>(target); }

} // namespace kestrune::mac
