#include "desk/live/gallery/WizardTour.h"

#include "Kestrune/Preferences.h"
#include "desk/live/world/LivePicture.h"

#include <chrono>
#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

constexpr sim::Duration UntilTheWizardShows = std::chrono::seconds(1);
constexpr sim::Duration UntilThePermissionIsSeen = std::chrono::milliseconds(1100);

class WizardVisitor {
public:
    explicit WizardVisitor(const LiveDeskSetup& setup) : desk_(setup), hand_(desk_) {
        desk_.advance(UntilTheWizardShows);
    }

    // The introduction is for whoever has granted the permission before the wizard opens.
    void openFromMenu() {
        desk_.session().defaults().set(Preferences::HasCompletedOnboardingKey.name(),
                                       sim::PropertyList{false});
        // The menu that opens first is the one that was built before.
        desk_.openStatusMenu();
        desk_.navigate(NavigationKey::escape);
        desk_.openStatusMenu();
        desk_.navigate(NavigationKey::enter);
        settle();
    }

    void requestPermission() {
        if (const auto button = mainButton()) {
            hand_.click(*button);
        }
        // The system's dialog stays, and the user comes back to the wizard.
        settle();
        bringToFront();
    }

    void grantPermission() {
        desk_.session().accessibility().setPermission(sim::Permission::granted);
        desk_.advance(UntilThePermissionIsSeen);
    }

    void photograph(const std::string& state, std::vector<WizardShot>& shots) {
        const auto button = mainButton();
        if (!button) {
            return;
        }
        takeShot(state, WizardLook::inFront, shots);

        hand_.pointAt(*button);
        desk_.pressButton(button);
        takeShot(state, WizardLook::pressed, shots);
        desk_.hover(std::nullopt); // Drawn off the button, the press does nothing.
        desk_.releaseButton(std::nullopt);

        desk_.session().windows().setActive(false);
        takeShot(state, WizardLook::inBackground, shots);
        bringToFront();

        const std::size_t element = button->index;
        for (std::size_t step = 0; step < wizard()->scene.elements.size(); ++step) {
            desk_.navigate(NavigationKey::tab);
            if (wizard()->focusedElement == element) {
                takeShot(state, WizardLook::focused, shots);
                return;
            }
        }
    }

private:
    std::optional<WindowPicture> wizard() { return desk_.parts().applicationWindow(); }

    // The button that leads on is drawn by the application itself.
    std::optional<DeskTarget> mainButton() {
        const auto window = wizard();
        for (std::size_t element = 0; window && element < window->scene.elements.size(); ++element) {
            const auto* const button = std::get_if<ui::ButtonElement>(&window->scene.elements[element]);
            if (button != nullptr && button->kind == ui::ButtonElement::Kind::custom) {
                return DeskTarget::control(window->number, element);
            }
        }
        return std::nullopt;
    }

    void bringToFront() {
        if (const auto window = wizard()) {
            hand_.click(DeskTarget::titleBar(window->number));
        }
        settle();
    }

    void settle() { desk_.advance(sim::Duration::zero()); }

    void takeShot(const std::string& state, WizardLook look, std::vector<WizardShot>& shots) {
        if (auto window = wizard()) {
            shots.push_back({state, look, *std::move(window)});
        }
    }

    LiveDesk desk_;
    TourHand hand_;
};

} // namespace

std::vector<WizardShot> takeWizardTour(LiveDeskSetup setup) {
    std::vector<WizardShot> shots;
    {
        setup.permission = sim::Permission::granted;
        WizardVisitor visitor(setup);
        visitor.openFromMenu();
        visitor.photograph("intro", shots);
    }
    setup.permission = sim::Permission::notListed;
    WizardVisitor visitor(setup);
    visitor.photograph("permission", shots);
    visitor.requestPermission();
    visitor.photograph("waiting", shots);
    visitor.grantPermission();
    visitor.photograph("granted", shots);
    return shots;
}

} // namespace kestrune::desk
