#include "desk/live/hand/DeskKeys.h"

#include <array>
#include <string_view>
#include <variant>

namespace kestrune::desk {

namespace {

using OfTheDesk = void (LiveDesk::*)();
using OfTheDeskByKey = void (*)(LiveDesk&, char);

struct DeskKey {
    std::string_view keys; // each of them
    std::string_view shown;
    std::string_view action;
    std::variant<OfTheDesk, OfTheDeskByKey, WindowCommand> effect;
};

void pinDisplay(LiveDesk& desk, char key) { desk.pin(static_cast<DisplayID>(key - '0')); }

void changeBand(LiveDesk& desk, char key) { key == '+' ? desk.deepenBand() : desk.narrowBand(); }

constexpr std::array Keys = {
    DeskKey{"123456789", "1–9", "pin a display", &pinDisplay},
    DeskKey{"g", "G", "guard on or off", &LiveDesk::toggleGuard},
    DeskKey{"m", "M", "menu", &LiveDesk::openStatusMenu},
    DeskKey{"u", "U", "unplug", &LiveDesk::unplugUnderPointer},
    DeskKey{"p", "P", "plug in", &LiveDesk::plugIn},
    DeskKey{"a", "A", "ask for permission", &LiveDesk::askForPermission},
    DeskKey{"i", "I", "Login Items", &LiveDesk::openLoginItems},
    DeskKey{"w", "W", "login approval", &LiveDesk::changeLoginApproval},
    DeskKey{"f", "F", "update feed", &LiveDesk::changeUpdateFeed},
    DeskKey{"c", "C", "scheduled check", &LiveDesk::letScheduledCheckCome},
    DeskKey{"t", "T", "tap timeout", &LiveDesk::timeOutTap},
    DeskKey{"+-", "+ −", "band", &changeBand},
    DeskKey{"l", "L", "quit or launch Kestrune", &LiveDesk::quitOrLaunch},
    DeskKey{"z", "Z", "zoom", WindowCommand::zoom},
    DeskKey{"d", "D", "dark", WindowCommand::changeAppearance},
    DeskKey{"s", "S", "save picture", WindowCommand::savePicture},
    DeskKey{"h", "H", "hide keys", WindowCommand::hideKeys},
    DeskKey{"q", "Q", "quit", WindowCommand::quit},
};

} // namespace

std::vector<KeyHint> keyLegend() {
    std::vector<KeyHint> legend;
    legend.reserve(Keys.size());
    for (const DeskKey& key : Keys) {
        legend.push_back({std::string(key.shown), std::string(key.action)});
    }
    return legend;
}

std::vector<KeyHint> legendOfHiddenKeys() {
    for (const DeskKey& key : Keys) {
        if (key.effect == decltype(key.effect){WindowCommand::hideKeys}) {
            return {{std::string(key.shown), "show the keys"}};
        }
    }
    return {};
}

std::optional<WindowCommand> pressDeskKey(LiveDesk& desk, char pressed) {
    for (const DeskKey& key : Keys) {
        if (key.keys.find(pressed) == std::string_view::npos) {
            continue;
        }
        if (const auto* const command = std::get_if<WindowCommand>(&key.effect)) {
            return *command;
        }
        if (const auto* const effect = std::get_if<OfTheDesk>(&key.effect)) {
            (desk.**effect)();
        } else {
            std::get<OfTheDeskByKey>(key.effect)(desk, pressed);
        }
    }
    return std::nullopt;
}

} // namespace kestrune::desk
