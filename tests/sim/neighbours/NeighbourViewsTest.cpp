// The views of the programs beside the application, whatever they have to say.

#include "sim/neighbours/NeighbourViews.h"

#include "sim/session/FixedAdvanceMeasurer.h"
#include "tests/base/Overlap.h"
#include "ui/layout/Layout.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace kestrune::sim {
namespace {

ui::Scene laidOut(const ui::View& view) {
    static const FixedAdvanceMeasurer measurer;
    const auto asItIs = [](std::string_view text) { return std::string(text); };
    return ui::layOut(view, {}, {measurer, asItIs, asItIs}).scene;
}

bool encloses(const Rect& outer, const Rect& inner) {
    return outer.minX() <= inner.minX() && outer.minY() <= inner.minY() && inner.maxX() <= outer.maxX() &&
           inner.maxY() <= outer.maxY();
}

// What must not lie over one another: everything but shapes and the buttons behind other things.
std::vector<Rect> contentsOf(const ui::Scene& scene) {
    std::vector<Rect> frames;
    for (const ui::Element& element : scene.elements) {
        const auto* const button = std::get_if<ui::ButtonElement>(&element);
        const bool isBehind = button != nullptr && button->title.starts_with("Select ");
        if (!isBehind && !std::holds_alternative<ui::ShapeElement>(element)) {
            frames.push_back(std::visit([](const auto& placed) { return placed.frame; }, element));
        }
    }
    return frames;
}

void expectApart(const ui::Scene& scene, const std::string& name) {
    const std::vector<Rect> frames = contentsOf(scene);
    EXPECT_GT(frames.size(), 1U);
    for (std::size_t first = 0; first < frames.size(); ++first) {
        EXPECT_TRUE(encloses({0, 0, scene.size.width, scene.size.height}, frames[first])) << name << first;
        for (std::size_t second = first + 1; second < frames.size(); ++second) {
            EXPECT_FALSE(overlap(frames[first], frames[second])) << name << first << " " << second;
        }
    }
}

const std::vector<std::string>& names() {
    static const std::vector<std::string> all{
        "Kestrune", "", "An application with a very long name indeed, and more than fits into one line"};
    return all;
}

TEST(NeighbourViews, HoldThePartsOfTheDialogApart) {
    for (const std::string& name : names()) {
        expectApart(laidOut(permissionDialog(
                        {name, ""}, [] {}, [] {})),
                    name);
    }
}

TEST(NeighbourViews, GiveTheDialogTheHeightOfItsText) {
    const auto heightWith = [](const std::string& name) {
        return laidOut(permissionDialog(
                           {name, ""}, [] {}, [] {}))
            .size.height;
    };
    EXPECT_GT(heightWith(names().back()), heightWith("Kestrune"));
}

TEST(NeighbourViews, HoldTheRowsOfAPaneApart) {
    for (const std::size_t selected : {0U, 1U, 2U}) {
        SettingsPane pane{
            "General", "Allow the applications below to control your computer.", {}, [] {}, [] {}};
        for (const std::string& name : names()) {
            pane.rows.push_back({{name, ""}, true, pane.rows.size() == selected, [] {}, [] {}});
        }
        expectApart(laidOut(settingsPane(pane)), "pane");
    }
    expectApart(laidOut(settingsPane({"General", "Nothing is listed.", {}, [] {}, [] {}})), "empty pane");
}

TEST(NeighbourViews, CoverARowWithTheButtonThatSelectsIt) {
    const SettingsPane pane{
        "General", "Sentence.", {{{"Kestrune", ""}, true, false, [] {}, [] {}}}, [] {}, [] {}};
    const ui::Scene scene = laidOut(settingsPane(pane));
    Rect row = Rect::null();
    for (const ui::Element& element : scene.elements) {
        const auto* const button = std::get_if<ui::ButtonElement>(&element);
        row = button != nullptr && button->title == "Select Kestrune" ? button->frame : row;
    }
    for (const ui::Element& element : scene.elements) {
        if (const auto* const toggle = std::get_if<ui::ToggleElement>(&element)) {
            EXPECT_TRUE(encloses(row, toggle->frame));
        }
        const auto* const text = std::get_if<ui::TextElement>(&element);
        if (text != nullptr && text->text.string() == "Kestrune") {
            EXPECT_TRUE(encloses(row, text->frame));
        }
    }
}

TEST(NeighbourViews, HoldThePartsOfAMailApartHoweverLongTheyAre) {
    const std::string longer(300, 'w');
    std::string lines;
    for (int line = 0; line < 60; ++line) {
        lines += "line\n";
    }
    for (const MailLink& mail :
         {MailLink{"support@example.org", "A bug", "What went wrong:\n\n---\nmacOS: 14.5.0"},
          MailLink{"", "", ""}, MailLink{"a@b " + names().back(), names().back() + names().back(), lines}}) {
        expectApart(laidOut(mailView(mail)), mail.subject);
    }
}

} // namespace
} // namespace kestrune::sim
