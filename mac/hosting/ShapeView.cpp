// Shapes, as views that draw themselves and that VoiceOver passes over.
#include "mac/hosting/Accessibility.h"
#include "mac/hosting/Drawing.h"
#include "mac/hosting/ElementViews.h"
#include "mac/objc/NewObject.h"
#include "mac/objc/Pool.h"
#include "mac/objc/RuntimeClass.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

namespace {

class ShapeView : public ViewOf<ui::ShapeElement> {
public:
    ShapeView() : ViewOf(Retained::adopting(appKit.view.initWithFrame(allocate(shapeViewClass()), Rect()))) {
        RuntimeClass::setTarget(view(), this);
        setAccessibilityElement(view(), false);
    }
    ~ShapeView() override { RuntimeClass::setTarget(view(), nullptr); }

private:
    void update(const ui::ShapeElement& next) override {
        if (shown() == next) {
            return;
        }
        appKit.view.setFrame(view(), next.frame);
        appKit.view.setNeedsDisplay(view(), truth(true));
    }

    static void drawRect(id instance, SEL, Rect /*dirty*/) noexcept {
        const Pool pool;
        const auto* const self = static_cast<ShapeView*>(RuntimeClass::target(instance));
        if (self != nullptr && self->shown()) {
            draw({*self->shown()}, self->shown()->frame.origin);
        }
    }

    static Class shapeViewClass() {
        static const Class made = [] {
            RuntimeClass type("KestruneShapeView", appKit.view);
            type.addMethod(appKit.view.isFlipped, alwaysFlipped);
            type.addMethod(appKit.view.drawRect, drawRect);
            return type.finish();
        }();
        return made;
    }
};

} // namespace

std::unique_ptr<ElementView> makeShapeView() { return std::make_unique<ShapeView>(); }

} // namespace kestrune::mac
