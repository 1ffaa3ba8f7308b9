// The application with its setup complete, and a user who opens its Settings.
#pragma once

#include "desk/live/world/LivePicture.h"
#include "desk/live/world/WindowParts.h"
#include "tests/desk/live/HandOnTheStage.h"
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
        hand.openMenu();
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
        const DeskPicture shown = picture();
        const WindowPicture* const found = windowTitled(shown, title);
        EXPECT_NE(found, nullptr) << title;
        return found != nullptr ? *found : WindowPicture();
    }

    bool isOpen(const std::string& title) { return windowTitled(picture(), title) != nullptr; }

    DeskTarget control(std::string_view title, const std::string& windowTitle = SettingsTitle) {
        DeskPicture alone;
        alone.windows = {window(windowTitle)};
        const auto target = controlTitled(alone, title);
        EXPECT_TRUE(target) << title;
        return target.value_or(DeskTarget());
    }

    DeskTarget toggle() { return control("Launch at login"); }

    bool isSwitchOn() { return std::get<ui::ToggleElement>(window().scene.elements.at(toggle().index)).isOn; }

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

    Stage stage{setup()};
    LiveDesk& desk = stage.desk();
    HandOnTheStage hand{stage};
};

} // namespace kestrune::desk
