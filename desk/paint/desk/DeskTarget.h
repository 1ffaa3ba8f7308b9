// What of the Mac's own screen parts a place in the window belongs to, or a press of the button began on.
#pragma once

#include <cstddef>

namespace kestrune::desk {

// Displays, items, titles and rows are indices into the picture that was asked about, elements into a
// window's scene; a window has a number.
struct DeskTarget {
    enum class Kind {
        statusItem,
        mainMenuTitle,
        menuRow,   // any row of the open menu, separators and disabled rows included
        menuPanel, // the open menu's margins
        // Of windows, by their numbers:
        dockTile, // of a minimised one
        closeButton,
        minimizeButton,
        titleBar, // beside its buttons, by which a window is dragged
        control,  // a button or switch of the scene
        window,   // where nothing can be pressed
    };

    Kind kind = Kind::menuPanel;
    std::size_t display = 0; // of a status item or a title
    std::size_t window = 0;
    std::size_t index = 0; // of the item, title, row or element

    static constexpr DeskTarget statusItem(std::size_t display, std::size_t item) {
        return {Kind::statusItem, display, 0, item};
    }
    static constexpr DeskTarget mainMenuTitle(std::size_t display, std::size_t title) {
        return {Kind::mainMenuTitle, display, 0, title};
    }
    static constexpr DeskTarget menuRow(std::size_t row) { return {Kind::menuRow, 0, 0, row}; }
    static constexpr DeskTarget menuPanel() { return {Kind::menuPanel}; }
    static constexpr DeskTarget dockTile(std::size_t window) { return {Kind::dockTile, 0, window}; }
    static constexpr DeskTarget closeButton(std::size_t window) { return {Kind::closeButton, 0, window}; }
    static constexpr DeskTarget minimizeButton(std::size_t window) {
        return {Kind::minimizeButton, 0, window};
    }
    static constexpr DeskTarget titleBar(std::size_t window) { return {Kind::titleBar, 0, window}; }
    static constexpr DeskTarget control(std::size_t window, std::size_t element) {
        return {Kind::control, 0, window, element};
    }
    static constexpr DeskTarget ofWindow(std::size_t window) { return {Kind::window, 0, window}; }

    constexpr bool isOfWindow() const { return kind >= Kind::dockTile; }

    friend constexpr bool operator==(const DeskTarget&, const DeskTarget&) = default;
};

} // namespace kestrune::desk
