#include "desk/paint/toolkit/PangoMeasurer.h"

#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/SymbolPainter.h"
#include "ui/ControlMetrics.h"

namespace kestrune::desk {

PangoMeasurer::PangoMeasurer()
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1)),
      context_(cairo_create(surface_.get())),
      text_(context_.get()) {}

Size PangoMeasurer::measureText(const ui::StyledText& text, std::optional<double> width) const {
    text_.set(text, width);
    return text_.size();
}

Size PangoMeasurer::measureSymbol(const ui::StyledSymbol& symbol) const { return symbolSize(symbol); }

Size PangoMeasurer::measurePushButton(std::string_view title, ui::ControlSize size) const {
    const PushButtonLook look = pushButtonLook(size);
    return {titles_.width(title, look.label) + 2 * look.padding, look.height};
}

Size PangoMeasurer::measureSwitch(ui::ControlSize size) const { return ui::switchSize(size); }

} // namespace kestrune::desk
