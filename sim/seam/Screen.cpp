#include "platform/Screen.h"

#include "sim/session/Session.h"

#include <utility>

namespace kestrune {

struct Screen::State {
    sim::Display display;
    Rect appKitFrame;
};

Screen::Screen(std::shared_ptr<const State> state) : state_(std::move(state)) {}

std::vector<Screen> Screen::screens() {
    sim::Session& session = sim::Session::current();
    session.journal().record("NSScreen.screens");
    std::vector<Screen> result;
    for (sim::Display& display : session.displays().read()) {
        const Rect frame = session.displays().appKitFrame(display.bounds);
        result.push_back(Screen(std::make_shared<State>(State{std::move(display), frame})));
    }
    return result;
}

std::optional<Screen> Screen::mainScreen() {
    sim::Session& session = sim::Session::current();
    session.journal().record("NSScreen.mainScreen");
    std::optional<sim::Display> display = session.displays().main();
    if (!display) {
        return std::nullopt;
    }
    const Rect frame = session.displays().appKitFrame(display->bounds);
    return Screen(std::make_shared<State>(State{*std::move(display), frame}));
}

std::optional<DeviceDescriptionValue> Screen::deviceDescription(std::string_view key) const {
    sim::Session::current().journal().record("-[NSScreen deviceDescription][", key, "]");
    return key == "NSScreenNumber" ? state_->display.screenNumber : std::nullopt;
}

std::string Screen::localizedName() const {
    sim::Session::current().journal().record("-[NSScreen localizedName]");
    return state_->display.localizedName;
}

Rect Screen::frame() const {
    sim::Session::current().journal().record("-[NSScreen frame]");
    return state_->appKitFrame;
}

} // namespace kestrune
