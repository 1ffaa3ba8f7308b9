// What an application shows in a window.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/mac/SystemPicture.h"
#include "desk/paint/toolkit/Canvas.h"
#include "ui/Scene.h"

#include <cstddef>
#include <optional>

namespace kestrune::desk {

// What a scene does not know about itself. Elements are indices into the scene's.
struct SceneState {
    std::optional<std::size_t> pressedElement = std::nullopt;
    std::optional<std::size_t> focusedElement = std::nullopt; // what the keyboard works on
    std::optional<MovingSwitch> movingSwitch = std::nullopt;
    bool isInKeyWindow = true;
};

// `origin` is where the scene's upper left corner goes.
void paintScene(const Canvas& canvas, const ui::Scene& scene, Point origin, const SceneState& state);

} // namespace kestrune::desk
