#include "platform/StatusBar.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/MenuState.h"
#include "sim/services/StatusItemState.h"
#include "sim/services/StatusItems.h"

namespace kestrune {

void StatusBarButton::setImage(const std::optional<Image>& image) {
    sim::recordCall("-[NSStatusBarButton setImage:] ",
                    image ? std::string_view(image->state()->name) : "nil");
    state_->image = image;
}

void StatusBarButton::setImageScaling(ImageScaling scaling) {
    sim::recordCall("-[NSStatusBarButton setImageScaling:] ", static_cast<std::uintptr_t>(scaling));
    state_->scaling = scaling;
}

void StatusBarButton::setToolTip(std::string_view toolTip) {
    sim::recordCall("-[NSStatusBarButton setToolTip:] ", toolTip);
    state_->toolTip = toolTip;
}

std::optional<StatusBarButton> StatusItem::button() const {
    sim::recordCall("-[NSStatusItem button]");
    return state_->button ? std::optional(StatusBarButton(state_->button)) : std::nullopt;
}

void StatusItem::setMenu(const Menu& menu) {
    sim::recordCall("-[NSStatusItem setMenu:] ", menu.state()->items.size(), " items");
    state_->menu = menu;
}

StatusBar StatusBar::systemStatusBar() {
    sim::recordCall("NSStatusBar.systemStatusBar");
    return {};
}

StatusItem StatusBar::statusItem(double length) {
    sim::recordCall("-[NSStatusBar statusItemWithLength:] ", length);
    auto state = std::make_shared<StatusItem::State>();
    state->length = length;
    if (sim::current<sim::StatusItems>().givesButtons()) {
        state->button = std::make_shared<StatusBarButton::State>();
    }
    sim::current<sim::StatusItems>().add(state);
    return StatusItem(std::move(state));
}

} // namespace kestrune
