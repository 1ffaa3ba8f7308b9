#include "platform/Hosting.h"

#include "sim/HostingState.h"
#include "sim/Session.h"
#include "sim/WindowState.h"

#include <string>

namespace kestrune {

namespace {

// Of the letters that the user's language is likely to have: Latin, with the accents of Western Europe, and
// only where UTF-8 keeps the length.
std::string uppercase(std::string_view text) {
    std::string result(text);
    bool follows = false;
    for (char& byte : result) {
        const auto value = static_cast<unsigned char>(byte);
        const bool isAccented = follows && value >= 0xA0U && value <= 0xBEU && value != 0xB7U;
        if ((byte >= 'a' && byte <= 'z') || isAccented) {
            byte = static_cast<char>(value - 0x20U);
        }
        follows = value == 0xC3U;
    }
    return result;
}

std::string localized(std::string_view key) {
    const auto& strings = sim::Session::current().bundle().localizedStrings;
    const auto entry = strings.find(key);
    return entry != strings.end() ? entry->second : std::string(key);
}

ui::LayoutContext layoutContext() { return {sim::Session::current().measurer(), localized, uppercase}; }

// A turn of the run loop later; never after the controller is gone.
struct Renderer {
    std::weak_ptr<HostingController::State> controller;

    void schedule() const {
        sim::Session::current().enqueueOnMainQueue([weakController = controller] {
            if (const auto state = weakController.lock()) {
                state->render();
            }
        });
    }
};

} // namespace

void HostingController::State::render() {
    sim::Session& session = sim::Session::current();
    if (host.render()) {
        session.journal().record("the view changed");
        fitWindow();
    }
}

void HostingController::State::fitWindow() const {
    const auto shownIn = window.lock();
    if (shownIn && sizing == HostingSizingOptions::preferredContentSize) {
        shownIn->setContentSize(host.scene().size);
    }
}

HostingController::HostingController(ui::RootView rootView) {
    sim::Session::current().journal().record("-[NSHostingController initWithRootView:]");
    const auto renderer = std::make_shared<Renderer>();
    state_ =
        std::make_shared<State>(std::move(rootView), layoutContext(), [renderer] { renderer->schedule(); });
    renderer->controller = state_;
}

void HostingController::setSizingOptions(HostingSizingOptions options) {
    sim::Session::current().journal().record(
        "-[NSHostingController setSizingOptions:] ",
        options == HostingSizingOptions::preferredContentSize ? "preferredContentSize" : "none");
    state_->sizing = options;
    state_->fitWindow();
}

} // namespace kestrune
