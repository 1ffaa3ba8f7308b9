// The application with its setup complete, and a user who opens its Settings.
#pragma once

#include "desk/live/gallery/TourHand.h"
#include "desk/live/world/LivePicture.h"
#include "desk/live/world/WindowParts.h"
#include "tests/desk/live/WindowTitles.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::desk {

inline constexpr const char* SettingsTitle = "Kestrune Settings";

class SettingsOnTheDesk : public testing::Test {
protected:
    SettingsOnTheDesk() {
        // The menu that opens first is the one that was built before the setup was known to be complete.
        desk.openStatusMenu();
        desk.navigate(NavigationKey::escape);
    }

    static LiveDeskSetup setup() { return std::get<LiveDeskSetup>(setupOf({})); }

    void open() {
        hand.openMenu(1);
        hand.clickRow("Settings…");
        desk.advance(std::chrono::seconds(1));
    }

    void reopen() {
        hand.closeWindow(SettingsTitle);
        open();
    }

    DeskPicture picture() { return pictureOf(desk); }

    // The frontmost one of that title.
    WindowPicture window(const std::string& title = SettingsTitle) {
        for (const WindowPicture& candidate : picture().windows) {
            if (candidate.title == title) {
                return candidate;
            }
        }
        ADD_FAILURE() << "no window " << title;
        return {};
    }

    WindowControlTarget control(std::string_view title, const std::string& windowTitle = SettingsTitle) {
        const WindowPicture shown = window(windowTitle);
        for (std::size_t element = 0; element < shown.scene.elements.size(); ++element) {
            if (titleOfControl(shown.scene.elements[element]) == title) {
                return {shown.number, element};
            }
        }
        ADD_FAILURE() << "no control " << title;
        return {};
    }

    WindowControlTarget toggle() { return control("Launch at login"); }

    bool isSwitchOn() {
        return std::get<ui::ToggleElement>(window().scene.elements.at(toggle().element)).isOn;
    }

    AppServiceStatus loginItem() { return desk.session().loginItem().status(); }

    std::optional<std::string> focusedTitle() {
        const WindowPicture shown = window();
        return shown.focusedElement ? titleOfControl(shown.scene.elements.at(*shown.focusedElement))
                                    : std::nullopt;
    }

    // Moves the pointer while the button is held down.
    void drag(double across, double down) {
        const Point pointer = desk.session().pointer();
        desk.movePointerTowards({pointer.x + across, pointer.y + down}, EventType::leftMouseDragged);
    }

    // Presses the switch, and moves the hand by that much before it lets go.
    void dragSwitch(double distance) {
        hand.pointAt(toggle());
        desk.pressButton(toggle());
        drag(distance, 0);
        desk.hover(std::nullopt);
        desk.releaseButton(std::nullopt);
    }

    LiveDesk desk{setup()};
    TourHand hand{desk};
};

} // namespace kestrune::desk
