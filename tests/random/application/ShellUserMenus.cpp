// What the user does at the menus.
#include "tests/random/application/ShellUser.h"

#include <array>

namespace kestrune::simulate {

std::string ShellUser::openMenu() {
    session_->openMenu(sim::StatusItemIndex{random_.chance(0.03) ? 1U : 0U});
    return "the status menu is opened";
}

std::string ShellUser::openMainMenu() {
    const std::size_t index = random_.index(3);
    session_->openMenu(sim::MainMenuIndex{index});
    return "the main menu is opened at place " + std::to_string(index);
}

// Quitting is rare enough that a process sees something.
std::string ShellUser::choose() {
    const std::vector<MenuLine> lines = session_->model().openLines();
    std::size_t row = random_.index(lines.size() + 1);
    const bool avoidsQuitting = random_.chance(0.8);
    if (avoidsQuitting && row + 1 == lines.size()) {
        row = random_.index(row + 1);
    }
    const std::string title = row < lines.size() ? lines[row].title : "that is not there";
    session_->choose(row);
    return "the row " + std::to_string(row) + " is chosen: " + title;
}

std::string ShellUser::openAndChoose() {
    const std::string opened = openMenu();
    return opened + ", and " + choose();
}

std::string ShellUser::closeMenu() {
    session_->closeMenu();
    return "the menu is closed";
}

std::string ShellUser::press() {
    static constexpr std::array<const char*, 5> Keys{",", "z", "a", ",", "q"};
    static constexpr std::array<EventModifierFlags, 3> Modifiers{
        EventModifierFlags::command, EventModifierFlags::shift | EventModifierFlags::command,
        EventModifierFlags::none};
    const char* key = random_.pick(Keys);
    const EventModifierFlags modifiers =
        random_.chance(0.6) ? EventModifierFlags::command : random_.pick(Modifiers);
    session_->press(key, modifiers);
    return std::string("the key ") + key + " is pressed with modifiers " +
           std::to_string(static_cast<std::uintptr_t>(modifiers));
}

} // namespace kestrune::simulate
