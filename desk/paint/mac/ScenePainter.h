// What an application shows in a window.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/Canvas.h"
#include "desk/paint/mac/SystemPicture.h"
#include "ui/Scene.h"
#include "ui/SystemColor.h"
#include "ui/layout/Layout.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kestrune::desk {

Color sceneColor(const Palette& palette, ui::Color color);

// In the order of ui::Color.
using SceneColors = std::array<Color, ui::SystemColors.size()>;

// What a scene does not know about itself. Elements are indices into the scene's.
struct SceneState {
    std::optional<std::size_t> pressedElement = std::nullopt;
    std::optional<std::size_t> focusedElement = std::nullopt; // what the keyboard works on
    std::optional<MovingSwitch> movingSwitch = std::nullopt;
    bool isInKeyWindow = true;
    std::optional<SceneColors> colors = std::nullopt; // absent: the system's
};

// `origin` is where the scene's upper left corner goes.
void paintScene(const Canvas& canvas, const ui::Scene& scene, Point origin, const SceneState& state);

// How large things in scenes are, in agreement with what is painted. Keep one: making it costs more than
// measuring.
class PangoMeasurer : public ui::Measurer {
public:
    Size measureText(const ui::StyledText& text, std::optional<double> width) const override;
    Size measureSymbol(const ui::StyledSymbol& symbol) const override;
    Size measurePushButton(std::string_view title, ui::ControlSize size) const override;
    Size measureSwitch(ui::ControlSize size) const override;

private:
    mutable TextPainter text_; // it keeps the last that was measured
};

} // namespace kestrune::desk
