// Objects for contract tests whose methods the platform calls: they write down what reaches them.
#pragma once

#include "platform/Application.h"
#include "platform/Menu.h"
#include "platform/Object.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::contract {

inline constexpr Selector Record{"record:"};
inline constexpr Selector RecordAgain{"recordAgain"};

// A selector that none of these objects has a method for.
inline constexpr Selector Unknown{"unknown:"};

// An action that arrived, and what its sender stood for.
struct ReceivedAction {
    std::string selector;
    std::optional<RepresentedObject> representedObject = std::nullopt;

    friend bool operator==(const ReceivedAction&, const ReceivedAction&) = default;
};

// The target of menu items; has methods for `Record` and `RecordAgain`.
class RecordingTarget : public Object {
public:
    RecordingTarget() { init(); }

    std::string_view className() const override { return "RecordingTarget"; }
    std::span<const ActionMethod> actionMethods() const override;

    // Called with each action after it was written down.
    void onAction(std::function<void()> reaction) { reaction_ = std::move(reaction); }

    const std::vector<ReceivedAction>& received() const { return received_; }

private:
    void receive(const Selector& selector, const MenuItem& sender);

    std::vector<ReceivedAction> received_;
    std::function<void()> reaction_;
};

class RecordingMenuDelegate : public MenuDelegate {
public:
    RecordingMenuDelegate() { init(); }

    std::string_view className() const override { return "RecordingMenuDelegate"; }
    std::span<const ActionMethod> actionMethods() const override { return {}; }
    void menuWillOpen(const Menu& menu) noexcept override;

    // Called each time after it was counted.
    void onOpening(std::function<void(const Menu&)> reaction) { reaction_ = std::move(reaction); }

    int openings() const { return openings_; }

private:
    int openings_ = 0;
    std::function<void(const Menu&)> reaction_;
};

// Has a method for `Record`, so that it is a responder for items without a target.
class RecordingApplicationDelegate : public ApplicationDelegate {
public:
    RecordingApplicationDelegate() { init(); }

    std::string_view className() const override { return "RecordingApplicationDelegate"; }
    std::span<const ActionMethod> actionMethods() const override;
    void applicationDidFinishLaunching() noexcept override;
    bool applicationShouldHandleReopen(bool hasVisibleWindows) noexcept override;
    void applicationWillTerminate() noexcept override;

    // Called with the launch after it was written down.
    void onLaunch(std::function<void()> reaction) { launchReaction_ = std::move(reaction); }

    // The selectors that were called, in order.
    const std::vector<std::string>& received() const { return received_; }

private:
    std::vector<std::string> received_;
    std::function<void()> launchReaction_;
};

} // namespace kestrune::contract
