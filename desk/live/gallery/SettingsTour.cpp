#include "desk/live/gallery/SettingsTour.h"

#include "desk/live/gallery/TourHand.h"
#include "desk/live/world/LivePicture.h"
#include "desk/live/world/WindowParts.h"

#include <chrono>
#include <optional>
#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

constexpr sim::Duration UntilTheKnobRests = std::chrono::seconds(1);

constexpr double HalfTheWay = 8; // of the knob, in points

class SettingsVisitor {
public:
    explicit SettingsVisitor(const LiveDeskSetup& setup) : desk_(setup), hand_(desk_) {
        // The menu that opens first is the one that was built before the setup was known to be complete.
        desk_.openStatusMenu();
        desk_.navigate(NavigationKey::escape);
        desk_.openStatusMenu();
        desk_.pressEquivalent(",", false);
        desk_.advance(UntilTheKnobRests);
    }

    void photograph(const std::string& name, const std::string& caption) {
        if (auto window = settings()) {
            shots_.push_back({name, caption, *std::move(window)});
        }
    }

    void photographSwitch() {
        const auto toggle = firstControl<ui::ToggleElement>();
        if (!toggle) {
            return;
        }
        hand_.pointAt(*toggle);
        desk_.pressButton(toggle);
        photograph("switch-pressed", "Switch held down");
        dragBy(HalfTheWay);
        photograph("switch-dragged", "Switch half dragged");
        dragBy(-HalfTheWay);
        desk_.releaseButton(toggle);
        desk_.advance(UntilTheKnobRests);
        hand_.click(*toggle);
        desk_.advance(UntilTheKnobRests);
        photograph("on", "Switch on");
    }

    void photographButton() {
        const auto button = firstControl<ui::ButtonElement>();
        if (!button) {
            return;
        }
        hand_.pointAt(*button);
        desk_.pressButton(button);
        photograph("button-pressed", "Button held down");
        desk_.hover(std::nullopt); // Drawn off the button, the press does nothing.
        desk_.releaseButton(std::nullopt);
    }

    void photographFocus() {
        desk_.navigate(NavigationKey::tab);
        photograph("switch-focused", "Keyboard at the switch");
        desk_.navigate(NavigationKey::tab);
        photograph("button-focused", "Keyboard at a button");
    }

    void photographInBackground() {
        desk_.session().windows().setActive(false);
        photograph("background", "Behind another application");
    }

    std::vector<SettingsShot> takeShots() { return std::move(shots_); }

private:
    void dragBy(double distance) {
        const Point pointer = desk_.session().pointer();
        desk_.movePointerTowards({pointer.x + distance, pointer.y}, EventType::leftMouseDragged);
    }

    std::optional<WindowPicture> settings() { return desk_.parts().applicationWindow(); }

    template <typename Wanted>
    std::optional<DeskTarget> firstControl() {
        const auto window = settings();
        for (std::size_t element = 0; window && element < window->scene.elements.size(); ++element) {
            if (std::holds_alternative<Wanted>(window->scene.elements[element])) {
                return DeskTarget::control(window->number, element);
            }
        }
        return std::nullopt;
    }

    LiveDesk desk_;
    TourHand hand_;
    std::vector<SettingsShot> shots_;
};

} // namespace

std::vector<SettingsShot> takeSettingsTour(const LiveDeskSetup& setup) {
    SettingsVisitor visitor(setup);
    visitor.photograph("in-front", "In front");
    visitor.photographSwitch();
    visitor.photographButton();
    visitor.photographFocus();
    visitor.photographInBackground();
    return visitor.takeShots();
}

std::vector<SettingsShot> lookAtSettings(const LiveDeskSetup& setup, const std::string& name,
                                         const std::string& caption) {
    SettingsVisitor visitor(setup);
    visitor.photograph(name, caption);
    return visitor.takeShots();
}

} // namespace kestrune::desk
