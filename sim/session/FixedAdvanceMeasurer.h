// Text of which every character is equally wide: sizes that are the same everywhere and can be worked out by
// hand.
#pragma once

#include "ui/layout/Layout.h"

namespace kestrune::sim {

// Body text: 7 points for each character, 8 for a bold one, 16 for each line.
class FixedAdvanceMeasurer : public ui::Measurer {
public:
    // `scale` makes every text larger, by a fraction of a point too.
    explicit FixedAdvanceMeasurer(double scale = 1) : scale_(scale) {}

    // Half an em, whole; heavy weights are one point wider.
    static double advance(const ui::Font& font, ui::FontWeight weight);

    static double heightOfLine(const ui::Font& font);

    // Breaks lines at spaces and at line feeds; never in a word.
    Size measureText(const ui::StyledText& text, std::optional<double> width) const override;

    // A square of 1.2 ems: 16 points in body text.
    Size measureSymbol(const ui::StyledSymbol& symbol) const override;

    // 7 points for each character and 28 around them.
    Size measurePushButton(std::string_view title, ui::ControlSize size) const override;

    Size measureSwitch(ui::ControlSize size) const override;

private:
    double scale_;
};

} // namespace kestrune::sim
