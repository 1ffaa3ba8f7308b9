#include "platform/StatusBar.h"

#include "mac/Handles.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

void StatusBarButton::setImage(const std::optional<Image>& image) {
    const mac::Pool pool;
    mac::appKit.button.setImage(state_->button.get(), image ? image->state()->image.get() : nullptr);
}

void StatusBarButton::setImageScaling(ImageScaling scaling) {
    mac::appKit.button.setImageScaling(state_->button.get(), static_cast<mac::Unsigned>(scaling));
}

void StatusBarButton::setToolTip(std::string_view toolTip) {
    const mac::Pool pool;
    mac::appKit.button.setToolTip(state_->button.get(), mac::nsString(toolTip).get());
}

std::optional<StatusBarButton> StatusItem::button() const {
    const mac::Pool pool;
    const id button = mac::appKit.statusItem.button(state_->item.get());
    if (button == nullptr) {
        return std::nullopt;
    }
    return StatusBarButton(
        std::make_shared<StatusBarButton::State>(StatusBarButton::State{mac::Retained::retaining(button)}));
}

void StatusItem::setMenu(const Menu& menu) {
    const mac::Pool pool;
    mac::appKit.statusItem.setMenu(state_->item.get(), menu.state()->menu.get());
}

StatusBar StatusBar::systemStatusBar() { return {}; }

StatusItem StatusBar::statusItem(double length) {
    const mac::Pool pool;
    const id bar = mac::appKit.statusBar.systemStatusBar();
    // Nobody else retains a status item.
    return StatusItem(std::make_shared<StatusItem::State>(StatusItem::State{
        mac::Retained::retaining(mac::appKit.statusBar.statusItemWithLength(bar, length))}));
}

} // namespace kestrune
