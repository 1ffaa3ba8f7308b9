// Prints where the parts of a desk stand in its window, for a test with a real pointer: a line for each part
// with its name, its left and top edges, its width and its height in logical pixels, separated by tabs.
//
// The arguments are those of the desk; a file with preferences is read and left as it is.

#include "desk/command/Command.h"
#include "desk/live/hand/DeskKeys.h"
#include "desk/live/world/LiveDesk.h"
#include "desk/live/world/LivePicture.h"
#include "desk/live/world/WindowParts.h"
#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/mac/Menu.h"
#include "desk/paint/toolkit/RectMath.h"

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

constexpr int BadInput = 2;

// Of the column of check marks.
constexpr double MarkWidth = 11;

void print(const std::string& name, const Rect& area) {
    std::printf("%s\t%g\t%g\t%g\t%g\n", name.c_str(), area.minX(), area.minY(), area.width(), area.height());
}

DeskPicture pictureInWindow(LiveDesk& desk) {
    DeskPicture picture = pictureOf(desk);
    picture.keys = keyLegend(false);
    return picture;
}

// An area of the displays.
void printSeen(const DeskPicture& picture, const std::string& name, const Rect& area) {
    const DeskLayout layout = DeskLayout::of(picture, UsualWindow);
    print(name, layout.placeContaining(centerOf(area))->toWindow(area));
}

void printTarget(LiveDesk& desk, const std::string& name, const DeskTarget& target) {
    DeskHitTest hitTest;
    const DeskPicture picture = pictureInWindow(desk);
    if (const auto area = hitTest.areaOf(picture, target)) {
        printSeen(picture, name, *area);
    }
}

void printControl(LiveDesk& desk, const std::string& name, const std::string& title) {
    if (const auto target = controlTitled(pictureInWindow(desk), title)) {
        printTarget(desk, name, *target);
    }
}

void printCloseButton(LiveDesk& desk, const std::string& name, const std::string& title) {
    const DeskPicture picture = pictureInWindow(desk);
    if (const WindowPicture* const window = windowTitled(picture, title)) {
        printTarget(desk, name, DeskTarget::closeButton(window->number));
    }
}

// The rows of the menu that opens on the display with the pointer, and where their marks are.
void printMenu(LiveDesk& desk, const std::string& kind) {
    desk.openStatusMenu();
    const DeskPicture picture = pictureInWindow(desk);
    TextPainter measure;
    const auto layout = menuLayout(measure, picture);
    for (std::size_t row = 0; layout && row < layout->rows.size(); ++row) {
        const Rect& area = layout->rows[row];
        const std::string& title = picture.menu->rows[row].title;
        const std::string name = title.empty() ? "separator" : title.substr(title.find_first_not_of(' '));
        printSeen(picture, kind + ": " + name, area);
        printSeen(picture, kind + " mark: " + name,
                  {layout->checkLeft, area.minY(), MarkWidth, area.height()});
    }
    desk.navigate(NavigationKey::escape);
}

void printParts(LiveDesk& desk) {
    print("window", {0, 0, UsualWindow.width, UsualWindow.height});
    const DeskLayout layout = DeskLayout::of(pictureInWindow(desk), UsualWindow);
    for (std::size_t display = 0; display < desk.session().displays().connected().size(); ++display) {
        print("display " + std::to_string(display + 1), layout.place(display)->screen);
        printTarget(desk, "icon " + std::to_string(display + 1), DeskTarget::statusItem(display, 0));
    }
    printMenu(desk, "first menu");
    printMenu(desk, "menu");
    desk.askForPermission();
    printControl(desk, "open system settings", "Open System Settings");
    printControl(desk, "deny", "Deny");
    printControl(desk, "switch", "Kestrune");
    printControl(desk, "row", "Select Kestrune");
    printCloseButton(desk, "close", "Accessibility");
    if (const auto row = controlTitled(pictureInWindow(desk), "Select Kestrune")) {
        desk.pressButton(row);
        desk.releaseButton(row);
    }
    printControl(desk, "remove", "Remove");
}

// The frontmost window, if there is one: its title bar, its buttons there and its controls by their titles.
void printWindow(LiveDesk& desk, const std::string& kind) {
    const DeskPicture picture = pictureInWindow(desk);
    if (picture.windows.empty()) {
        return;
    }
    const WindowPicture& window = picture.windows.front();
    printTarget(desk, kind + " title", DeskTarget::titleBar(window.number));
    printTarget(desk, kind + " close", DeskTarget::closeButton(window.number));
    printTarget(desk, kind + " minimize", DeskTarget::minimizeButton(window.number));
    for (std::size_t element = 0; element < window.scene.elements.size(); ++element) {
        if (const auto title = titleOfControl(window.scene.elements[element])) {
            printTarget(desk, kind + ": " + *title, DeskTarget::control(window.number, element));
        }
    }
}

// Where the frontmost window is once it is minimised.
void printTile(LiveDesk& desk) {
    const DeskPicture picture = pictureInWindow(desk);
    if (picture.windows.empty()) {
        return;
    }
    const std::size_t number = picture.windows.front().number;
    const auto click = [&desk](const DeskTarget& target) {
        desk.pressButton(target);
        desk.releaseButton(target);
    };
    click(DeskTarget::minimizeButton(number));
    printTarget(desk, "tile", DeskTarget::dockTile(number));
    click(DeskTarget::dockTile(number));
}

void printWizard(LiveDesk& desk) {
    desk.advance(std::chrono::seconds(1));
    printWindow(desk, "wizard");
}

// The Settings window, unless the setup is not complete, and what it leads to.
void printSettings(LiveDesk& desk) {
    desk.openStatusMenu();
    desk.openStatusMenu(); // The first one was built before the setup was noted.
    desk.pressEquivalent(",", false);
    desk.advance(std::chrono::seconds(1));
    printWindow(desk, "settings");
    printTile(desk);
    for (int step = 0; step < 2; ++step) {
        desk.navigate(NavigationKey::tab);
    }
    desk.navigate(NavigationKey::space);
    desk.advance(std::chrono::seconds(1));
    printWindow(desk, "alert");
    desk.navigate(NavigationKey::enter);
    desk.navigate(NavigationKey::tab);
    desk.navigate(NavigationKey::space);
    printCloseButton(desk, "mail close", "New Message");
}

int refuse(const replay::InputError& error) {
    std::fprintf(stderr, "places: %s\n", error.message.c_str());
    return BadInput;
}

int run(const std::vector<std::string_view>& words) {
    const auto command = readCommand(words);
    if (const auto* error = std::get_if<replay::InputError>(&command)) {
        return refuse(*error);
    }
    auto setup = setupOf(std::get<Command>(command).options);
    if (const auto* error = std::get_if<replay::InputError>(&setup)) {
        return refuse(*error);
    }
    std::get<LiveDeskSetup>(setup).defaultsFile.reset();
    {
        LiveDesk desk(std::get<LiveDeskSetup>(setup));
        printParts(desk);
    }
    {
        LiveDesk desk(std::get<LiveDeskSetup>(setup));
        printWizard(desk);
    }
    LiveDesk desk(std::get<LiveDeskSetup>(setup));
    printSettings(desk);
    return 0;
}

} // namespace
} // namespace kestrune::desk

int main(int argumentCount, char** arguments) {
    return kestrune::desk::run({arguments + 1, arguments + argumentCount});
}
