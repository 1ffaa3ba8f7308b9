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

template <typename Object, auto destroy>
struct DestroyedBy {
    void operator()(Object* object) const { destroy(object); }
};

template <typename Object, auto destroy>
using SdlHandle = std::unique_ptr<Object, DestroyedBy<Object, destroy>>;

// SDL's video, from the first window to the last.
struct Video {
    Video() { SDL_Init(SDL_INIT_VIDEO); }
    ~Video() { SDL_Quit(); }

    Video(const Video&) = delete;
    Video& operator=(const Video&) = delete;
};

// There is one at a time.
class WindowCanvas {
public:
    // Absent when the display server does not give a window that a person can see and use.
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

        friend bool operator==(const Shown&, const Shown&) = default;
    };

    WindowCanvas() = default;

    bool makeRoom();

    std::unique_ptr<Video> video_ = std::make_unique<Video>();
    SdlHandle<SDL_Window, SDL_DestroyWindow> window_;
    SdlHandle<SDL_Renderer, SDL_DestroyRenderer> renderer_;
    SdlHandle<SDL_Texture, SDL_DestroyTexture> texture_;
    std::optional<Surface> surface_;
    DeskPainter painter_;
    std::optional<Shown> shown_;
};

} // namespace kestrune::desk
