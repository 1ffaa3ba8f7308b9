// Sizes of texts, symbols and controls, as the platform has them.
#pragma once

#include "ui/layout/Layout.h"

namespace kestrune::mac {

class PlatformMeasurer : public ui::Measurer {
public:
    Size measureText(const ui::StyledText& text, std::optional<double> width) const override;

    // Nothing for a symbol that the platform does not have.
    Size measureSymbol(const ui::StyledSymbol& symbol) const override;
    Size measurePushButton(std::string_view title, ui::ControlSize size) const override;
    Size measureSwitch(ui::ControlSize size) const override;
};

} // namespace kestrune::mac
