// Windows for contract tests: a delegate that writes down what it is told, and a controller.
#pragma once

#include "platform/WindowController.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrune::contract {

class RecordingWindowDelegate : public WindowDelegate {
public:
    RecordingWindowDelegate() { init(); }

    std::string_view className() const override { return "RecordingWindowDelegate"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }
    void windowDidBecomeKey() noexcept override { receive("windowDidBecomeKey:"); }
    void windowWillClose() noexcept override { receive("windowWillClose:"); }

    // Called each time after it was written down.
    void onCall(std::function<void()> reaction) { reaction_ = std::move(reaction); }

    // The selectors that were called, in order.
    const std::vector<std::string>& received() const { return received_; }

private:
    void receive(std::string selector) {
        received_.push_back(std::move(selector));
        if (reaction_) {
            reaction_();
        }
    }

    std::vector<std::string> received_;
    std::function<void()> reaction_;
};

// Controls its window, and is its delegate too.
class RecordingWindowController : public WindowController {
public:
    explicit RecordingWindowController(const Window& window) { initWithWindow(window); }

    std::string_view className() const override { return "RecordingWindowController"; }
    std::string_view sourcePath() const override { return "contract/RecordingWindowController"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }
    void windowWillClose() noexcept override { ++closings_; }

    Window& controlled() { return window(); }
    int closings() const { return closings_; }

private:
    int closings_ = 0;
};

} // namespace kestrune::contract
