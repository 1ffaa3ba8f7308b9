// Toggles, as the platform's switches.
#include "mac/hosting/Accessibility.h"
#include "mac/hosting/Controls.h"
#include "mac/hosting/ElementViews.h"
#include "mac/vocabulary/Actions.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

class SwitchView : public ViewOf<ui::ToggleElement> {
public:
    explicit SwitchView(id target) : ViewOf(newSwitch()) {
        appKit.control.setTarget(view(), target);
        appKit.control.setAction(view(), actions::flipSwitch.selector());
        appKit.control.setEnabled(view(), truth(true));
    }

    bool isControl() const override { return true; }

private:
    bool isSame(const ui::ToggleElement& before, const ui::ToggleElement& next) const override {
        return before.title == next.title;
    }

    void update(const ui::ToggleElement& next) override {
        if (differs(next, &ui::ToggleElement::title)) {
            setAccessibilityLabel(view(), next.title);
        }
        if (differs(next, &ui::ToggleElement::size)) {
            appKit.control.setControlSize(view(), platformSize(next.size));
        }
        if (differs(next, &ui::ToggleElement::frame)) {
            appKit.view.setFrame(view(), appKit.view.frameForAlignmentRect(view(), next.frame));
        }
        // The user has flipped it perhaps, and the model did not follow.
        if ((appKit.switchControl.state(view()) != 0) != next.isOn) {
            appKit.switchControl.setState(view(), next.isOn ? 1 : 0);
        }
        mac::setAction(view(), next.action);
    }
};

} // namespace

std::unique_ptr<ElementView> makeSwitchView(id target) { return std::make_unique<SwitchView>(target); }

} // namespace kestrune::mac
