// How large things in scenes are on the desk.
#pragma once

#include "desk/paint/toolkit/CairoObjects.h"
#include "desk/paint/toolkit/StyledTextLayout.h"
#include "desk/paint/toolkit/TextMeasure.h"
#include "ui/layout/Layout.h"

namespace kestrune::desk {

// Agrees with what ScenePainter paints. Keep one: making it costs more than measuring.
class PangoMeasurer : public ui::Measurer {
public:
    PangoMeasurer();

    Size measureText(const ui::StyledText& text, std::optional<double> width) const override;
    Size measureSymbol(const ui::StyledSymbol& symbol) const override;
    Size measurePushButton(std::string_view title, ui::ControlSize size) const override;
    Size measureSwitch(ui::ControlSize size) const override;

private:
    SurfaceHandle surface_;
    ContextHandle context_;
    mutable StyledTextLayout text_; // the last that was measured
    mutable TextMeasure titles_;
};

} // namespace kestrune::desk
