// The look of the button that a page of the wizard leads to.
#pragma once

#include "ui/View.h"

namespace kestrune {

// A filled rounded rectangle behind the label. While the button is pressed only the fill dims, so that the
// label stays readable.
class AccentProminentButtonStyle : public ui::ButtonStyle {
public:
    AccentProminentButtonStyle(ui::Color fillColor, ui::Color foregroundColor)
        : fillColor_(fillColor), foregroundColor_(foregroundColor) {}

    ui::View makeBody(const Configuration& configuration) const override;

private:
    ui::Color fillColor_;
    ui::Color foregroundColor_;
};

} // namespace kestrune
