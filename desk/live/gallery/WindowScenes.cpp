// The scenes about one window: the wizard and Settings.

#include "desk/live/gallery/Gallery.h"
#include "replay/StoredChoices.h"

#include <algorithm>
#include <chrono>
#include <sstream>
#include <utility>
#include <variant>

namespace kestrune::desk {

namespace {

constexpr sim::Duration UntilThePermissionIsSeen = std::chrono::milliseconds(1100);
constexpr sim::Duration UntilTheKnobRests = std::chrono::seconds(1);

constexpr double HalfTheWay = 8; // of the knob, in points

// How much longer than an English text its translation is assumed to be. There is no translation yet; German
// and Finnish interface texts run about a third to a half longer than English ones.
constexpr double AssumedLengthening = 1.4;

// A longer text of the same kind: its words go on from the first, without the marks of bold text, until it is
// long enough.
std::string lengthened(const std::string& text) {
    const double wanted = AssumedLengthening * static_cast<double>(text.size());
    std::string words = text;
    std::erase(words, '*');
    std::istringstream repeated(words);
    std::string result = text;
    for (std::string word; static_cast<double>(result.size()) < wanted && repeated >> word;) {
        result += " " + word;
    }
    return result;
}

void withLongTexts(LiveDeskSetup& setup) {
    for (auto& [key, text] : setup.bundle.localizedStrings) {
        text = lengthened(text);
    }
}

void withoutPermission(LiveDeskSetup& setup) { setup.permission = sim::Permission::notListed; }

// The first control of a kind in the application's window.
template <typename Wanted>
Thing firstControl(const std::string& name, bool (*isWanted)(const Wanted&)) {
    return {name, [isWanted](Stage& stage) -> std::optional<DeskTarget> {
                const WindowPicture window = stage.window().value_or(WindowPicture());
                const auto& elements = window.scene.elements;
                const auto found =
                    std::find_if(elements.begin(), elements.end(), [&](const ui::Element& element) {
                        const auto* const control = std::get_if<Wanted>(&element);
                        return control != nullptr && isWanted(*control);
                    });
                return DeskTarget::control(window.number, static_cast<std::size_t>(found - elements.begin()));
            }};
}

// The wizard's button that leads on, which is drawn by the application itself.
const Thing MainButton =
    firstControl<ui::ButtonElement>("the button that leads on", [](const ui::ButtonElement& button) {
        return button.kind == ui::ButtonElement::Kind::custom;
    });
const Thing FirstButton = firstControl<ui::ButtonElement>("a button", [](const auto&) { return true; });
const Thing FirstSwitch = firstControl<ui::ToggleElement>("a switch", [](const auto&) { return true; });

// Drawn off what is held down, the press does nothing.
void putBehind(Stage& stage) {
    stage.drawOff();
    stage.desk().session().user().switchAway();
}

void bringToFront(Stage& stage) {
    const WindowPicture window = stage.window().value_or(WindowPicture());
    stage.click({"a title bar", [&](Stage&) { return DeskTarget::titleBar(window.number); }});
    stage.desk().advance(sim::Duration::zero());
}

// The menu that opens first is the one that was built before what was stored last was seen.
void openMenu(Stage& stage) {
    stage.desk().openStatusMenu();
    stage.desk().navigate(NavigationKey::escape);
    stage.desk().openStatusMenu();
}

// The introduction is for whoever has granted the permission before the wizard opens.
void openIntroduction(Stage& stage) {
    stage.desk().session().defaults().set(replay::entries::HasCompletedOnboarding, sim::PropertyList{false});
    openMenu(stage);
    stage.desk().navigate(NavigationKey::enter);
    stage.desk().advance(sim::Duration::zero());
}

void waitForWizard(Stage&) {}

// The system's dialog stays, and the user comes back to the wizard.
void requestPermission(Stage& stage) {
    stage.click(MainButton);
    stage.desk().advance(sim::Duration::zero());
    bringToFront(stage);
}

void grantPermission(Stage& stage) {
    stage.desk().session().user().setPermission(sim::Permission::granted);
    stage.desk().advance(UntilThePermissionIsSeen);
}

void goToNext(Stage& stage) { stage.desk().navigate(NavigationKey::tab); }

void focusMainButton(Stage& stage) {
    bringToFront(stage);
    const WindowPicture window = stage.window().value_or(WindowPicture());
    const std::size_t button = MainButton.find(stage)->index;
    for (std::size_t step = 0; step < window.scene.elements.size(); ++step) {
        goToNext(stage);
        if (stage.window()->focusedElement == button) {
            return;
        }
    }
    stage.miss("the button under the keyboard");
}

template <const Thing& thing>
void press(Stage& stage) {
    stage.press(thing);
}

struct WizardState {
    std::string name;
    std::string caption;
    void (*enter)(Stage&);
};

const WizardState Introduction = {"intro", "Introduction", openIntroduction};
const std::vector<WizardState> Permission = {
    {"permission", "Before the request", waitForWizard},
    {"waiting", "After the request", requestPermission},
    {"granted", "Granted", grantPermission},
};

Scene windowScene(const std::string& name, const std::string& caption, void (*play)(Stage&)) {
    return {name, Frame::window, caption, {play}};
}

Scene longScene(const WizardState& state) {
    return windowScene(state.name + "-long", state.caption + ", long texts", state.enter);
}

void addLooks(std::vector<Scene>& scenes, const WizardState& state) {
    const auto add = [&](const char* look, const char* caption, void (*play)(Stage&)) {
        scenes.push_back(windowScene(state.name + look, state.caption + caption, play));
    };
    add("", ", in front", state.enter);
    add("-pressed", ", button held down", press<MainButton>);
    add("-background", ", in the background", putBehind);
    add("-focused", ", button focused", focusMainButton);
}

void openSettings(Stage& stage) {
    openMenu(stage);
    stage.desk().pressEquivalent(",", false);
    stage.desk().advance(UntilTheKnobRests);
}

void drag(Stage& stage, double distance) {
    const Point pointer = stage.desk().session().pointer();
    stage.desk().movePointerTowards({pointer.x + distance, pointer.y}, EventType::leftMouseDragged);
}

void dragSwitch(Stage& stage) { drag(stage, HalfTheWay); }

void switchOn(Stage& stage) {
    drag(stage, -HalfTheWay);
    stage.letGo();
    stage.desk().advance(UntilTheKnobRests);
    stage.click(FirstSwitch);
    stage.desk().advance(UntilTheKnobRests);
}

void goToSwitch(Stage& stage) {
    stage.drawOff();
    goToNext(stage);
}

} // namespace

Chapter wizardChapter() {
    Story introduction{[](LiveDeskSetup&) {}, {}};
    addLooks(introduction.scenes, Introduction);
    Story permission{withoutPermission, {}};
    Story longPermission{[](LiveDeskSetup& setup) {
                             withLongTexts(setup);
                             withoutPermission(setup);
                         },
                         {}};
    for (const WizardState& state : Permission) {
        addLooks(permission.scenes, state);
        longPermission.scenes.push_back(longScene(state));
    }
    const Story longIntroduction{withLongTexts, {longScene(Introduction)}};
    return {"wizard",
            "Welcome to Kestrune: every state of the first-run wizard",
            4,
            1,
            {introduction, permission, longIntroduction, longPermission}};
}

Chapter settingsChapter() {
    const Story story{[](LiveDeskSetup&) {},
                      {
                          windowScene("in-front", "In front", openSettings),
                          windowScene("switch-pressed", "Switch held down", press<FirstSwitch>),
                          windowScene("switch-dragged", "Switch half dragged", dragSwitch),
                          windowScene("on", "Switch on", switchOn),
                          windowScene("button-pressed", "Button held down", press<FirstButton>),
                          windowScene("switch-focused", "Keyboard at the switch", goToSwitch),
                          windowScene("button-focused", "Keyboard at a button", goToNext),
                          windowScene("background", "Behind another application", putBehind),
                      }};
    const Story longStory{withLongTexts, {windowScene("long", "Long texts", openSettings)}};
    const Story bareStory{
        [](LiveDeskSetup& setup) { setup.bundle.infoDictionary.erase("NSHumanReadableCopyright"); },
        {windowScene("without-copyright", "Without a copyright", openSettings)}};
    return {"settings", "Kestrune Settings: every state", 5, 1, {story, longStory, bareStory}};
}

} // namespace kestrune::desk
