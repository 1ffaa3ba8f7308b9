// What the windows on the desk are called, and what they say.
#pragma once

#include "desk/live/world/LivePicture.h"
#include "desk/live/world/WindowParts.h"
#include "desk/paint/mac/ApplicationIcon.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrune::desk {

// The frontmost first.
inline std::vector<std::string> titlesIn(const DeskPicture& picture) {
    std::vector<std::string> titles;
    for (const WindowPicture& window : picture.windows) {
        titles.push_back(window.title);
    }
    return titles;
}
inline std::vector<std::string> windowTitlesOn(LiveDesk& desk) { return titlesIn(pictureOf(desk)); }

// The files of the applications' icons that a window shows.
inline std::vector<std::string> iconsIn(const WindowPicture& window) {
    std::vector<std::string> paths;
    for (const ui::Element& element : window.scene.elements) {
        const auto* const symbol = std::get_if<ui::SymbolElement>(&element);
        if (const auto path = symbol != nullptr ? pathOfIcon(symbol->symbol.name) : std::nullopt) {
            paths.push_back(*path);
        }
    }
    return paths;
}

// The texts that stand in a window, from the first.
inline std::vector<std::string> textsIn(const WindowPicture& window) {
    std::vector<std::string> texts;
    for (const ui::Element& element : window.scene.elements) {
        if (const auto* const text = std::get_if<ui::TextElement>(&element)) {
            texts.push_back(text->text.string());
        }
    }
    return texts;
}

// Of the frontmost window that has one of that title; absent without one.
inline std::optional<bool> isSwitchOn(const DeskPicture& picture, std::string_view title) {
    for (const WindowPicture& window : picture.windows) {
        for (const ui::Element& element : window.scene.elements) {
            const auto* const toggle = std::get_if<ui::ToggleElement>(&element);
            if (toggle != nullptr && toggle->title == title) {
                return toggle->isOn;
            }
        }
    }
    return std::nullopt;
}

} // namespace kestrune::desk
