#include "desk/live/hand/DeskKeys.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <variant>

namespace kestrune::desk {

namespace {

using OfTheDesk = void (LiveDesk::*)();
using OfTheDeskByKey = void (*)(LiveDesk&, char32_t);
using OfWhatIsOpen = std::array<NavigationKey, 4>; // by the place among the row's keys

struct DeskKey {
    std::u32string_view keys; // each of them
    std::string_view shown;
    std::string_view action;
    std::variant<std::monostate, OfTheDesk, OfTheDeskByKey, OfWhatIsOpen, WindowCommand> effect;
};

void pinDisplay(LiveDesk& desk, char32_t key) { desk.pin(static_cast<DisplayID>(key - U'0')); }

void changeBand(LiveDesk& desk, char32_t key) { key == U'+' ? desk.deepenBand() : desk.narrowBand(); }

constexpr OfWhatIsOpen Arrows = {NavigationKey::left, NavigationKey::up, NavigationKey::down,
                                 NavigationKey::right};
constexpr std::u32string_view Digits = U"123456789";
static_assert(Digits.size() == sim::Plugs::MostDisplays);

constexpr std::array Keys = {
    DeskKey{Digits, "1–9", "pin a display", &pinDisplay},
    DeskKey{U"g", "G", "guard on or off", &LiveDesk::toggleGuard},
    DeskKey{U"m", "M", "menu", &LiveDesk::openStatusMenu},
    DeskKey{U"←↑↓→", "← ↑ ↓ →", "through menus", Arrows},
    DeskKey{U"⏎", "↩", "choose", OfWhatIsOpen{NavigationKey::enter}},
    DeskKey{U"⎋", "esc", "cancel", OfWhatIsOpen{NavigationKey::escape}},
    DeskKey{U"⇥", "⇥", "next control", OfWhatIsOpen{NavigationKey::tab}},
    DeskKey{U" ", "Space", "press it", OfWhatIsOpen{NavigationKey::space}},
    DeskKey{U"", "Control", "stands for ⌘", std::monostate()},
    DeskKey{U"u", "U", "unplug", &LiveDesk::unplugUnderPointer},
    DeskKey{U"p", "P", "plug in", &LiveDesk::plugIn},
    DeskKey{U"a", "A", "ask for permission", &LiveDesk::askForPermission},
    DeskKey{U"i", "I", "Login Items", &LiveDesk::openLoginItems},
    DeskKey{U"w", "W", "login approval", &LiveDesk::changeLoginApproval},
    DeskKey{U"f", "F", "update feed", &LiveDesk::changeUpdateFeed},
    DeskKey{U"c", "C", "scheduled check", &LiveDesk::letScheduledCheckCome},
    DeskKey{U"t", "T", "tap timeout", &LiveDesk::timeOutTap},
    DeskKey{U"+-", "+ −", "band", &changeBand},
    DeskKey{U"l", "L", "quit or launch Kestrune", &LiveDesk::quitOrLaunch},
    DeskKey{U"z", "Z", "zoom", WindowCommand::zoom},
    DeskKey{U"d", "D", "dark", WindowCommand::changeAppearance},
    DeskKey{U"s", "S", "save picture", WindowCommand::savePicture},
    DeskKey{U"h", "H", "hide keys", WindowCommand::hideKeys},
    DeskKey{U"q", "Q", "quit", WindowCommand::quit},
};

void press(LiveDesk& desk, NavigationKey key, bool withShift) {
    desk.navigate(key == NavigationKey::tab && withShift ? NavigationKey::backTab : key);
}

} // namespace

std::vector<KeyHint> keyLegend(bool isHidden) {
    std::vector<KeyHint> legend;
    for (const DeskKey& key : Keys) {
        if (!isHidden) {
            legend.push_back({std::string(key.shown), std::string(key.action)});
        } else if (key.effect == decltype(key.effect)(WindowCommand::hideKeys)) {
            legend.push_back({std::string(key.shown), "show the keys"});
        }
    }
    return legend;
}

std::optional<WindowCommand> pressDeskKey(LiveDesk& desk, const KeyPress& pressed) {
    const auto found = std::find_if(Keys.begin(), Keys.end(), [&](const DeskKey& candidate) {
        return candidate.keys.find(pressed.key) != std::u32string_view::npos;
    });
    const DeskKey key = found != Keys.end() ? *found : DeskKey{};
    if (const auto* const open = std::get_if<OfWhatIsOpen>(&key.effect)) {
        press(desk, open->at(key.keys.find(pressed.key)), pressed.withShift);
        return std::nullopt;
    }
    const auto* const byKey = std::get_if<OfTheDeskByKey>(&key.effect);
    if (pressed.isRepeated && (byKey == nullptr || *byKey != &changeBand)) {
        return std::nullopt;
    }
    if (pressed.withCommand) {
        if (pressed.key != 0) {
            desk.pressEquivalent(std::string(1, static_cast<char>(pressed.key)), pressed.withShift);
        }
    } else if (byKey != nullptr) {
        (*byKey)(desk, pressed.key);
    } else if (const auto* const effect = std::get_if<OfTheDesk>(&key.effect)) {
        (desk.**effect)();
    } else if (const auto* const command = std::get_if<WindowCommand>(&key.effect)) {
        return *command;
    }
    return std::nullopt;
}

} // namespace kestrune::desk
