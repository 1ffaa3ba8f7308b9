// The simulated Mac's windows as the desk paints them.
#include "desk/paint/mac/ScenePainter.h"
#include "desk/paint/toolkit/Shapes.h"
#include "desk/paint/toolkit/Surface.h"
#include "sim/services/WindowState.h"
#include "sim/session/Session.h"
#include "tests/contract/World.h"

#include <cstdint>
#include <cstring>

namespace kestrune::contract {

SeenColor World::colorAt(Point place, std::size_t window) const {
    const ui::Scene& scene = sim::Windows::sceneOf(*sim::Session::current().windows().shown().at(window));
    const desk::Surface surface = *desk::Surface::create(scene.size, 1);
    desk::TextPainter text{surface.context()};
    desk::ImageStore images;
    const desk::Canvas canvas{surface.context(), text, images, desk::paletteFor(false)};
    desk::setColor(canvas.context, canvas.palette.application.window);
    cairo_paint(canvas.context);
    desk::paintScene(canvas, scene, {0, 0}, {});
    std::uint32_t pixel = 0;
    std::memcpy(&pixel,
                surface.pixels().data() + static_cast<std::ptrdiff_t>(place.y) * surface.stride() +
                    static_cast<std::ptrdiff_t>(place.x) * 4,
                sizeof(pixel));
    return {static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
            static_cast<int>(pixel & 0xFF)};
}

} // namespace kestrune::contract
