#include "platform/StatusBar.h"

#include "sim/seam/MenuState.h"
#include "sim/seam/StatusItemState.h"
#include "sim/session/Session.h"

namespace kestrune {

void StatusBarButton::setImage(const std::optional<Image>& image) {
    sim::Session::current().journal().record("-[NSStatusBarButton setImage:] ",
                                             image ? std::string_view(image->state()->name) : "nil");
    state_->image = image;
}

void StatusBarButton::setImageScaling(ImageScaling scaling) {
    sim::Session::current().journal().record("-[NSStatusBarButton setImageScaling:] ",
                                             static_cast<std::uintptr_t>(scaling));
    state_->scaling = scaling;
}

void StatusBarButton::setToolTip(std::string_view toolTip) {
    sim::Session::current().journal().record("-[NSStatusBarButton setToolTip:] ", toolTip);
    state_->toolTip = toolTip;
}

std::optional<StatusBarButton> StatusItem::button() const {
    sim::Session::current().journal().record("-[NSStatusItem button]");
    return state_->button ? std::optional(StatusBarButton(state_->button)) : std::nullopt;
}

void StatusItem::setMenu(const Menu& menu) {
    sim::Session::current().journal().record("-[NSStatusItem setMenu:] ", menu.state()->items.size(),
                                             " items");
    state_->menu = menu;
}

StatusBar StatusBar::systemStatusBar() {
    sim::Session::current().journal().record("NSStatusBar.systemStatusBar");
    return {};
}

StatusItem StatusBar::statusItem(double length) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[NSStatusBar statusItemWithLength:] ", length);
    auto state = std::make_shared<StatusItem::State>();
    state->length = length;
    if (!session.statusItems().withholdsButtons()) {
        state->button = std::make_shared<StatusBarButton::State>();
    }
    session.statusItems().add(state);
    return StatusItem(std::move(state));
}

} // namespace kestrune
