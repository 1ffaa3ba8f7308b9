#include "tests/contract/RecordingObjects.h"

#include <array>

namespace kestrune::contract {

std::span<const ActionMethod> RecordingTarget::actionMethods() const {
    static constexpr std::array Methods = {
        ActionMethod{Record,
                     [](Object& receiver, const MenuItem& sender) noexcept {
                         static_cast<RecordingTarget&>(receiver).receive(Record, sender);
                     }},
        ActionMethod{RecordAgain,
                     [](Object& receiver, const MenuItem& sender) noexcept {
                         static_cast<RecordingTarget&>(receiver).receive(RecordAgain, sender);
                     }},
    };
    return Methods;
}

void RecordingTarget::receive(const Selector& selector, const MenuItem& sender) {
    received_.push_back({std::string(selector.name()), sender.representedObject()});
    if (reaction_) {
        reaction_();
    }
}

void RecordingMenuDelegate::menuWillOpen(const Menu& menu) noexcept {
    ++openings_;
    if (reaction_) {
        reaction_(menu);
    }
}

std::span<const ActionMethod> RecordingApplicationDelegate::actionMethods() const {
    static constexpr std::array Methods = {
        ActionMethod{Record,
                     [](Object& receiver, const MenuItem&) noexcept {
                         static_cast<RecordingApplicationDelegate&>(receiver).received_.emplace_back(
                             Record.name());
                     }},
    };
    return Methods;
}

void RecordingApplicationDelegate::applicationDidFinishLaunching() noexcept {
    received_.emplace_back("applicationDidFinishLaunching:");
    if (launchReaction_) {
        launchReaction_();
    }
}

bool RecordingApplicationDelegate::applicationShouldHandleReopen(bool hasVisibleWindows) noexcept {
    received_.push_back(std::string("applicationShouldHandleReopen:hasVisibleWindows: ") +
                        (hasVisibleWindows ? "YES" : "NO"));
    return hasVisibleWindows;
}

void RecordingApplicationDelegate::applicationWillTerminate() noexcept {
    received_.emplace_back("applicationWillTerminate:");
}

} // namespace kestrune::contract
