// The views of the system's windows, whatever they have to say.

#include "desk/live/world/SystemViews.h"

#include "desk/paint/mac/ScenePainter.h"
#include "tests/base/Overlap.h"
#include "tests/desk/paint/PaintedPicture.h"
#include "ui/layout/Layout.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {
namespace {

ui::Scene laidOut(const ui::View& view) {
    static const PangoMeasurer measurer;
    const auto asItIs = [](std::string_view text) { return std::string(text); };
    return ui::layOut(view, {}, {measurer, asItIs, asItIs}).scene;
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

TEST(SystemViews, HoldThePartsOfTheDialogApart) {
    for (const std::string& name : names()) {
        expectApart(laidOut(permissionDialog(
                        {name, ""}, [] {}, [] {})),
                    name);
    }
}

TEST(SystemViews, GiveTheDialogTheHeightOfItsText) {
    const auto heightWith = [](const std::string& name) {
        return laidOut(permissionDialog(
                           {name, ""}, [] {}, [] {}))
            .size.height;
    };
    EXPECT_GT(heightWith(names().back()), heightWith("Kestrune"));
}

TEST(SystemViews, HoldTheRowsOfAPaneApart) {
    for (const std::size_t selected : {0U, 1U, 2U}) {
        SettingsPane pane{"Allow the applications below to control your computer.", {}, [] {}, [] {}};
        for (const std::string& name : names()) {
            pane.rows.push_back({{name, ""}, true, pane.rows.size() == selected, [] {}, [] {}});
        }
        expectApart(laidOut(settingsPane(pane)), "pane");
    }
    expectApart(laidOut(settingsPane({"Nothing is listed.", {}, [] {}, [] {}})), "empty pane");
}

TEST(SystemViews, CoverARowWithTheButtonThatSelectsIt) {
    const SettingsPane pane{"Sentence.", {{{"Kestrune", ""}, true, false, [] {}, [] {}}}, [] {}, [] {}};
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

TEST(SystemViews, HoldThePartsOfAMailApartHoweverLongTheyAre) {
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
} // namespace kestrune::desk
