// A window on the screen that shows pictures of the desk.
#pragma once

#include "base/Geometry.h"
#include "desk/paint/desk/DeskPainter.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/Surface.h"

#include <SDL.h>

#include <memory>
#include <optional>

namespace kestrune::desk {

template <auto destroy>
struct DestroyedBy {
    template <typename Object>
    void operator()(Object* object) const {
        destroy(object);
    }
};

using WindowHandle = std::unique_ptr<SDL_Window, DestroyedBy<SDL_DestroyWindow>>;
using RendererHandle = std::unique_ptr<SDL_Renderer, DestroyedBy<SDL_DestroyRenderer>>;
using TextureHandle = std::unique_ptr<SDL_Texture, DestroyedBy<SDL_DestroyTexture>>;

// Needs SDL's video; must go before that does.
class WindowCanvas {
public:
    // Absent when the display server does not give a window.
    static std::optional<WindowCanvas> open(Size size);

    // In logical pixels, the unit of the mouse.
    Size size() const;

    // Device pixels for each logical one.
    double scale() const;

    // Paints when the picture or the window's size is another than the last time. The title tells what
    // happened.
    void show(const DeskPicture& picture);

    // The window was uncovered or its contents were lost: the next picture is shown in any case.
    void forget() { shown_.reset(); }

private:
    struct Shown {
        DeskPicture picture;
        Size size;
        double scale;
    };

    WindowCanvas(WindowHandle window, RendererHandle renderer);

    bool fit();

    WindowHandle window_;
    RendererHandle renderer_;
    TextureHandle texture_;
    std::optional<Surface> surface_;
    DeskPainter painter_;
    std::optional<Shown> shown_;
};

} // namespace kestrune::desk
