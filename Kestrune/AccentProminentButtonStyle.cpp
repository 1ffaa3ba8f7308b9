#include "Kestrune/AccentProminentButtonStyle.h"

namespace kestrune {

namespace {

constexpr double CornerRadius = 6;
constexpr double PressedOpacity = 0.75;

} // namespace

ui::View AccentProminentButtonStyle::makeBody(const Configuration& configuration) const {
    const ui::View fill = ui::RoundedRectangle({.cornerRadius = CornerRadius,
                                                .cornerStyle = ui::CornerStyle::continuous,
                                                .fill = fillColor_,
                                                .opacity = configuration.isPressed ? PressedOpacity : 1});
    return configuration.label.font(ui::Font::preferred(ui::TextStyle::body))
        .fontWeight(ui::FontWeight::semibold)
        .foregroundStyle(foregroundColor_)
        .padding({.top = 8, .bottom = 8})
        .padding({.leading = 16, .trailing = 16})
        .background(fill);
}

} // namespace kestrune
