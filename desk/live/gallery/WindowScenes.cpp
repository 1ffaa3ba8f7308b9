// The scenes about one window: the wizard and Settings.

#include "Kestrune/Preferences.h"
#include "base/Utf8.h"
#include "desk/live/gallery/Chapter.h"

#include <algorithm>
#include <chrono>
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

// A longer text of the same kind: its words go on from the first, without the marks of bold text, and break
// off where it is long enough.
std::string lengthened(const std::string& text) {
    const auto wanted = static_cast<std::size_t>(AssumedLengthening * static_cast<double>(text.size()));
    std::string words = text;
    std::erase(words, '*');
    std::string result = text;
    while (result.size() < wanted) {
        result += " " + words;
    }
    result.resize(wanted);
    // Half a character is not left over.
    while (firstInvalidUtf8(result)) {
        result.pop_back();
    }
    return result;
}

void asItIs(LiveDeskSetup&) {}

void withLongTexts(LiveDeskSetup& setup) {
    for (auto& [key, text] : setup.bundle.localizedStrings) {
        text = lengthened(text);
    }
}

void withoutPermission(LiveDeskSetup& setup) { setup.permission = sim::Permission::notListed; }

void withLongTextsAndNoPermission(LiveDeskSetup& setup) {
    withLongTexts(setup);
    withoutPermission(setup);
}

void withoutCopyright(LiveDeskSetup& setup) { setup.bundle.infoDictionary.erase("NSHumanReadableCopyright"); }

// The window's first control that is wanted, or one that nobody can reach.
template <typename Wanted>
DeskTarget firstControl(Stage& stage, bool (*isWanted)(const Wanted&)) {
    const auto window = stage.window();
    if (!window) {
        return DeskTarget::control(0, 0);
    }
    const auto& elements = window->scene.elements;
    const auto found = std::find_if(elements.begin(), elements.end(), [&](const ui::Element& element) {
        const auto* const control = std::get_if<Wanted>(&element);
        return control != nullptr && isWanted(*control);
    });
    return DeskTarget::control(window->number, static_cast<std::size_t>(found - elements.begin()));
}

// The wizard's button that leads on, which is drawn by the application itself.
DeskTarget mainButton(Stage& stage) {
    return firstControl<ui::ButtonElement>(
        stage, [](const auto& button) { return button.kind == ui::ButtonElement::Kind::custom; });
}

DeskTarget firstButton(Stage& stage) {
    return firstControl<ui::ButtonElement>(stage, [](const auto&) { return true; });
}

DeskTarget firstSwitch(Stage& stage) {
    return firstControl<ui::ToggleElement>(stage, [](const auto&) { return true; });
}

// Drawn off what is held down, the press does nothing.
void drawOff(Stage& stage) {
    stage.desk().hover(std::nullopt);
    stage.desk().releaseButton(std::nullopt);
}

void putBehind(Stage& stage) { stage.desk().session().windows().setActive(false); }

void bringToFront(Stage& stage) {
    if (const auto window = stage.window()) {
        stage.hand().click(DeskTarget::titleBar(window->number));
    }
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
    stage.desk().session().defaults().set(Preferences::HasCompletedOnboardingKey.name(),
                                          sim::PropertyList{false});
    openMenu(stage);
    stage.desk().navigate(NavigationKey::enter);
    stage.desk().advance(sim::Duration::zero());
}

void waitForWizard(Stage&) {}

// The system's dialog stays, and the user comes back to the wizard.
void requestPermission(Stage& stage) {
    stage.hand().click(mainButton(stage));
    stage.desk().advance(sim::Duration::zero());
    bringToFront(stage);
}

void grantPermission(Stage& stage) {
    stage.desk().session().accessibility().setPermission(sim::Permission::granted);
    stage.desk().advance(UntilThePermissionIsSeen);
}

void focusMainButton(Stage& stage) {
    const DeskTarget button = mainButton(stage);
    const auto window = stage.window();
    for (std::size_t step = 0; window && step < window->scene.elements.size(); ++step) {
        stage.desk().navigate(NavigationKey::tab);
        if (stage.window()->focusedElement == button.index) {
            return;
        }
    }
    stage.hand().miss("the button under the keyboard");
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
    const auto tell = [caption, play](Stage& stage) {
        play(stage);
        return caption;
    };
    return {name, tell, Frame::window};
}

Scene longScene(const WizardState& state) {
    return windowScene(state.name + "-long", state.caption + ", texts 1.4 times as long", state.enter);
}

void addLooks(std::vector<Scene>& scenes, const WizardState& state) {
    const auto add = [&](const char* look, const char* caption, void (*play)(Stage&)) {
        scenes.push_back(windowScene(state.name + look, state.caption + caption, play));
    };
    add("", ", in front", state.enter);
    add("-pressed", ", button held down", [](Stage& stage) { stage.hand().press(mainButton(stage)); });
    add("-background", ", in the background", [](Stage& stage) {
        drawOff(stage);
        putBehind(stage);
    });
    add("-focused", ", button focused", [](Stage& stage) {
        bringToFront(stage);
        focusMainButton(stage);
    });
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

void holdSwitch(Stage& stage) { stage.hand().press(firstSwitch(stage)); }

void dragSwitch(Stage& stage) { drag(stage, HalfTheWay); }

void switchOn(Stage& stage) {
    drag(stage, -HalfTheWay);
    stage.desk().releaseButton(firstSwitch(stage));
    stage.desk().advance(UntilTheKnobRests);
    stage.hand().click(firstSwitch(stage));
    stage.desk().advance(UntilTheKnobRests);
}

void holdButton(Stage& stage) { stage.hand().press(firstButton(stage)); }

void goToNext(Stage& stage) { stage.desk().navigate(NavigationKey::tab); }

void goToSwitch(Stage& stage) {
    drawOff(stage);
    goToNext(stage);
}

} // namespace

Chapter wizardChapter() {
    Story introduction{asItIs, {}};
    addLooks(introduction.scenes, Introduction);
    Story permission{withoutPermission, {}};
    Story longPermission{withLongTextsAndNoPermission, {}};
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
    const Story story{asItIs,
                      {
                          windowScene("in-front", "In front", openSettings),
                          windowScene("switch-pressed", "Switch held down", holdSwitch),
                          windowScene("switch-dragged", "Switch half dragged", dragSwitch),
                          windowScene("on", "Switch on", switchOn),
                          windowScene("button-pressed", "Button held down", holdButton),
                          windowScene("switch-focused", "Keyboard at the switch", goToSwitch),
                          windowScene("button-focused", "Keyboard at a button", goToNext),
                          windowScene("background", "Behind another application", putBehind),
                      }};
    const Story longStory{withLongTexts, {windowScene("long", "Texts 1.4 times as long", openSettings)}};
    const Story bareStory{withoutCopyright,
                          {windowScene("without-copyright", "Without a copyright", openSettings)}};
    return {"settings", "Kestrune Settings: every state", 5, 1, {story, longStory, bareStory}};
}

} // namespace kestrune::desk
