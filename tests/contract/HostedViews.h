// A model and a style for the views that are hosted in tests.
#pragma once

#include "ui/ObservableObject.h"
#include "ui/View.h"

namespace kestrune::contract {

struct Counter : ui::ObservableObject {
    ui::Published<int> value{*this, 0};
};

// A filled rounded rectangle behind the label, which dims while the button is pressed.
struct FilledStyle : ui::ButtonStyle {
    ui::View makeBody(const Configuration& configuration) const override {
        return configuration.label.padding(8).background(ui::RoundedRectangle(
            {.cornerRadius = 6, .fill = ui::Color::accent, .opacity = configuration.isPressed ? 0.75 : 1}));
    }
};

} // namespace kestrune::contract
