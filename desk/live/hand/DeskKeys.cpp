#include "desk/live/hand/DeskKeys.h"

namespace kestrune::desk {

const std::vector<KeyHint>& keyLegend() {
    static const std::vector<KeyHint> legend = {
        {"1–9", "pin a display"},
        {"G", "guard on or off"},
        {"M", "menu"},
        {"U", "unplug"},
        {"P", "plug in"},
        {"A", "ask for permission"},
        {"I", "Login Items"},
        {"W", "login approval"},
        {"F", "update feed"},
        {"C", "scheduled check"},
        {"T", "tap timeout"},
        {"+ −", "band"},
        {"L", "quit or launch Kestrune"},
        {"Z", "zoom"},
        {"D", "dark"},
        {"S", "save picture"},
        {"H", "hide keys"},
        {"Q", "quit"},
    };
    return legend;
}

bool pressDeskKey(LiveDesk& desk, char key) {
    if (key >= '1' && key <= '9') {
        desk.pin(static_cast<DisplayID>(key - '0'));
        return true;
    }
    switch (key) {
    case 'g':
        desk.toggleGuard();
        return true;
    case 'u':
        desk.unplugUnderPointer();
        return true;
    case 'p':
        desk.plugIn();
        return true;
    case 'm':
        desk.openStatusMenu();
        return true;
    case 'l':
        desk.quitOrLaunch();
        return true;
    case 'a':
        desk.askForPermission();
        return true;
    case 'i':
        desk.openLoginItems();
        return true;
    case 'w':
        desk.changeLoginApproval();
        return true;
    case 'f':
        desk.changeUpdateFeed();
        return true;
    case 'c':
        desk.letScheduledCheckCome();
        return true;
    case 't':
        desk.timeOutTap();
        return true;
    case '+':
        desk.deepenBand();
        return true;
    case '-':
        desk.narrowBand();
        return true;
    default:
        return false;
    }
}

} // namespace kestrune::desk
