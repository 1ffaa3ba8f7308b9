// What is in a scene, for tests that look at one.
#pragma once

#include "ui/Scene.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::ui {

// The places of the elements of one kind, in order.
template <typename Kind>
std::vector<std::size_t> placesOf(const Scene& scene) {
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < scene.elements.size(); ++place) {
        if (std::holds_alternative<Kind>(scene.elements[place])) {
            places.push_back(place);
        }
    }
    return places;
}

// The elements of one kind, in order.
template <typename Kind>
std::vector<Kind> elementsOf(const Scene& scene) {
    std::vector<Kind> elements;
    for (const std::size_t place : placesOf<Kind>(scene)) {
        elements.push_back(std::get<Kind>(scene.elements[place]));
    }
    return elements;
}

inline std::vector<std::string> buttonTitles(const Scene& scene) {
    std::vector<std::string> titles;
    for (const ButtonElement& button : elementsOf<ButtonElement>(scene)) {
        titles.push_back(button.title);
    }
    return titles;
}

// The place of the button with that title; absent when there is none.
inline std::optional<std::size_t> placeOfButton(const Scene& scene, std::string_view title) {
    for (const std::size_t place : placesOf<ButtonElement>(scene)) {
        if (std::get<ButtonElement>(scene.elements[place]).title == title) {
            return place;
        }
    }
    return std::nullopt;
}

// The texts outside of buttons.
inline std::vector<std::string> shownTexts(const Scene& scene) {
    std::vector<std::string> texts;
    for (const TextElement& text : elementsOf<TextElement>(scene)) {
        texts.push_back(text.text.string());
    }
    return texts;
}

} // namespace kestrune::ui
