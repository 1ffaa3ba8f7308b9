// Views laid out with letters of a fixed width.
#pragma once

#include "tests/ui/FixedAdvanceMeasurer.h"
#include "ui/SceneText.h"
#include "ui/View.h"
#include "ui/layout/Layout.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>

namespace kestrune::ui {

class LayoutFixture : public testing::Test {
protected:
    LayoutFixture() = default;
    explicit LayoutFixture(double scale) : measurer(scale) {}

    Rendering render(const View& view, const ProposedSize& proposal = {}) const {
        return layOut(view, proposal, context);
    }

    std::string describeView(const View& view, const ProposedSize& proposal = {}) const {
        return describe(render(view, proposal).scene);
    }

    Size sizeOfView(const View& view, const ProposedSize& proposal = {}) const {
        return render(view, proposal).scene.size;
    }

    // The frame of the element with that number.
    Rect frameOf(const View& view, std::size_t element, const ProposedSize& proposal = {}) const {
        return std::visit([](const auto& placed) { return placed.frame; },
                          render(view, proposal).scene.elements.at(element));
    }

    StyledText textOf(const View& view) const {
        return std::get<TextElement>(render(view).scene.elements.at(0)).text;
    }

    StyledSymbol symbolOf(const View& view) const {
        return std::get<SymbolElement>(render(view).scene.elements.at(0)).symbol;
    }

    ButtonElement buttonOf(const View& view, const ProposedSize& proposal = {}) const {
        return std::get<ButtonElement>(render(view, proposal).scene.elements.at(0));
    }

    ToggleElement toggleOf(const View& view) const {
        return std::get<ToggleElement>(render(view).scene.elements.at(1));
    }

    // A key without a translation stands for itself.
    std::unordered_map<std::string, std::string> translations;

    FixedAdvanceMeasurer measurer;
    LayoutContext context{measurer,
                          [this](std::string_view key) {
                              const auto found = translations.find(std::string(key));
                              return found == translations.end() ? std::string(key) : found->second;
                          },
                          [](std::string_view text) {
                              std::string upper(text);
                              for (char& character : upper) {
                                  const bool isLower = character >= 'a' && character <= 'z';
                                  character = static_cast<char>(isLower ? character - 'a' + 'A' : character);
                              }
                              return upper;
                          }};
};

// A rectangle of a fixed size.
inline View Box(double width, double height) {
    return RoundedRectangle({}).frame({.width = width, .height = height});
}

} // namespace kestrune::ui
