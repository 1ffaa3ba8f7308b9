#include "platform/Screen.h"

#include "sim/hardware/Displays.h"
#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"

#include <utility>

namespace kestrune {

struct Screen::State {
    sim::Display display;
    Rect appKitFrame;
};

Screen::Screen(std::shared_ptr<const State> state) : state_(std::move(state)) {}

std::vector<Screen> Screen::screens() {
    sim::recordCall("NSScreen.screens");
    std::vector<Screen> result;
    for (sim::Display& display : sim::current<sim::Displays>().read()) {
        const Rect frame = sim::current<sim::Displays>().appKitFrame(display.bounds);
        result.push_back(Screen(std::make_shared<State>(State{std::move(display), frame})));
    }
    return result;
}

std::optional<Screen> Screen::mainScreen() {
    sim::recordCall("NSScreen.mainScreen");
    std::optional<sim::Display> display = sim::current<sim::Displays>().main();
    if (!display) {
        return std::nullopt;
    }
    const Rect frame = sim::current<sim::Displays>().appKitFrame(display->bounds);
    return Screen(std::make_shared<State>(State{*std::move(display), frame}));
}

std::optional<DeviceDescriptionValue> Screen::deviceDescription(std::string_view key) const {
    sim::recordCall("-[NSScreen deviceDescription][", key, "]");
    return key == "NSScreenNumber" ? state_->display.screenNumber : std::nullopt;
}

std::string Screen::localizedName() const {
    sim::recordCall("-[NSScreen localizedName]");
    return state_->display.localizedName;
}

Rect Screen::frame() const {
    sim::recordCall("-[NSScreen frame]");
    return state_->appKitFrame;
}

} // namespace kestrune
