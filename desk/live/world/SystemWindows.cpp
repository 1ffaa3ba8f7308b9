#include "desk/live/world/SystemWindows.h"

#include "desk/live/world/OtherApplication.h"
#include "desk/live/world/SystemViews.h"
#include "desk/paint/mac/Measures.h"
#include "sim/services/HostedView.h"
#include "sim/services/WindowState.h"

#include <algorithm>
#include <cmath>

namespace kestrune::desk {

double SystemWindow::titleBarHeight() const {
    return look == WindowLook::standard ? Window::State::TitleBarHeight : ToolbarHeight;
}

// The dialog shows on the primary display, the others beside it where there is another.
SystemWindows::SystemWindows(sim::Session& session) : session_(session) {
    const SystemWindow dialog{.level = WindowLevel::floating,
                              .heightOnDisplay = 0.42,
                              .title =
                                  [&] {
                                      return session.accessibility().isDialogShown()
                                                 ? std::optional<std::string>("Accessibility Access (Events)")
                                                 : std::nullopt;
                                  },
                              .view =
                                  [&] {
                                      return permissionDialog(
                                          kestruneAsListed(session),
                                          [&] { session.user().openSettingsFromDialog(); },
                                          [&] { session.user().denyInDialog(); });
                                  },
                              .close = nullptr};
    const SystemWindow mail{
        .look = WindowLook::paper,
        .display = 1,
        .heightOnDisplay = 0.5,
        .title = [this] { return mail_.isOpen() ? std::optional<std::string>("New Message") : std::nullopt; },
        .view = [this] { return mailView(mail_.mail()); },
        .close = [this] { mail_.close(); }};
    const SystemWindow settings{.look = WindowLook::toolbar,
                                .display = 1,
                                .heightOnDisplay = 0.54,
                                .title = [this] { return settings_.title(); },
                                .view = [this] { return settings_.view(); },
                                .close = [this] { settings_.close(); }};
    windows_ = {dialog, mail, settings};
}

void SystemWindows::update() {
    for (SystemWindow& window : windows_) {
        const auto title = window.title();
        if (!title || session_.displays().connected().empty()) {
            window.state.reset();
            continue;
        }
        if (window.state) {
            window.state->content->host().render();
            fit(window);
        } else {
            open(window);
        }
        window.state->title = *title;
    }
}

void SystemWindows::open(SystemWindow& window) const {
    window.state = std::make_shared<Window::State>();
    window.state->content = sim::HostedView::make({window.view, nullptr});
    window.state->level = window.level;
    window.state->styleMask =
        window.close ? WindowStyleMask::titled | WindowStyleMask::closable : WindowStyleMask::titled;
    window.state->isVisible = true;
    fit(window);
    const auto& displays = session_.displays().connected();
    const Rect& display = displays[std::min(window.display, displays.size() - 1)].bounds;
    const Size size = window.state->frame.size;
    session_.user().moveWindow(
        window.state,
        {std::round(display.minX() + (display.width() - size.width) / 2),
         std::max(display.minY() + MenuBarHeight,
                  std::round(display.minY() + display.height() * window.heightOnDisplay - size.height / 2))});
}

// The upper edge stays where it is.
void SystemWindows::fit(SystemWindow& window) const {
    Rect& frame = window.state->frame;
    const Size content = sim::Windows::sceneOf(*window.state).size;
    const double top = frame.maxY();
    frame.size = {content.width, content.height + window.titleBarHeight()};
    frame.origin.y = top - frame.size.height;
}

std::vector<SystemWindows::WindowState> SystemWindows::shown() const {
    std::vector<WindowState> result;
    for (const SystemWindow& window : windows_) {
        if (window.state) {
            result.push_back(window.state);
        }
    }
    return result;
}

const SystemWindow* SystemWindows::find(const WindowState& window) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const SystemWindow& candidate) {
        return window && candidate.state == window;
    });
    return found != windows_.end() ? &*found : nullptr;
}

void SystemWindows::displaysChanged() {
    for (SystemWindow& window : windows_) {
        window.state.reset();
    }
}

} // namespace kestrune::desk
