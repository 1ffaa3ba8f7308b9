// What the scene's two kinds of buttons have in common: those that the platform draws, and those that it does
// not.
#pragma once

#include "mac/hosting/ElementView.h"
#include "mac/objc/Runtime.h"

namespace kestrune::mac {

inline constexpr Unsigned MomentaryPushIn = 7; // NSButtonTypeMomentaryPushIn

// Sends `pressButton:` to the target that it was connected to, which it does not retain.
class ButtonView : public ViewOf<ui::ButtonElement> {
public:
    bool isControl() const override { return true; }

protected:
    using ViewOf::ViewOf;

    // Once the button has its cell, which is what keeps target and action.
    void connect(id target);

    // Title, key and action; frame and look are each kind's own.
    void update(const ui::ButtonElement& next) override;

private:
    bool isSame(const ui::ButtonElement& before, const ui::ButtonElement& next) const override {
        return before.kind == next.kind && before.title == next.title;
    }
};

} // namespace kestrune::mac
