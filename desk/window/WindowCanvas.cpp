#include "desk/window/WindowCanvas.h"

#include <string>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr int SmallestWidth = 720;
constexpr int SmallestHeight = 450;

RendererHandle createRenderer(SDL_Window* window) {
    RendererHandle renderer{
        SDL_CreateRenderer(window, -1, SDL_RENDERER_ACCELERATED | SDL_RENDERER_PRESENTVSYNC)};
    if (!renderer) {
        renderer.reset(SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE));
    }
    return renderer;
}

} // namespace

std::optional<WindowCanvas> WindowCanvas::open(Size size) {
    WindowHandle window{SDL_CreateWindow("Kestrune", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                         static_cast<int>(size.width), static_cast<int>(size.height),
                                         SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI)};
    if (!window) {
        return std::nullopt;
    }
    SDL_SetWindowMinimumSize(window.get(), SmallestWidth, SmallestHeight);
    RendererHandle renderer = createRenderer(window.get());
    if (!renderer) {
        return std::nullopt;
    }
    return WindowCanvas(std::move(window), std::move(renderer));
}

WindowCanvas::WindowCanvas(WindowHandle window, RendererHandle renderer)
    : window_(std::move(window)), renderer_(std::move(renderer)) {}

Size WindowCanvas::size() const {
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(window_.get(), &width, &height);
    return {static_cast<double>(width), static_cast<double>(height)};
}

double WindowCanvas::scale() const {
    int pixelWidth = 0;
    int pixelHeight = 0;
    SDL_GetRendererOutputSize(renderer_.get(), &pixelWidth, &pixelHeight);
    const double width = size().width;
    return width > 0 && pixelWidth > 0 ? pixelWidth / width : 1;
}

void WindowCanvas::show(const DeskPicture& picture) {
    if (shown_ && shown_->picture == picture && shown_->size == size() && shown_->scale == scale()) {
        return;
    }
    if (!fit()) {
        return;
    }
    painter_.paint(surface_->context(), picture, size());
    SDL_UpdateTexture(texture_.get(), nullptr, surface_->pixels().data(), surface_->stride());
    SDL_RenderClear(renderer_.get());
    SDL_RenderCopy(renderer_.get(), texture_.get(), nullptr, nullptr);
    SDL_RenderPresent(renderer_.get());
    SDL_SetWindowTitle(window_.get(), ("Kestrune: " + picture.whatHappened).c_str());
    shown_ = Shown{picture, size(), scale()};
}

// Whether there is memory and a texture in the window's size.
bool WindowCanvas::fit() {
    if (surface_ && texture_ && shown_ && shown_->size == size() && shown_->scale == scale()) {
        return true;
    }
    surface_ = Surface::create(size(), scale());
    if (!surface_) {
        return false;
    }
    texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING,
                                     surface_->pixelWidth(), surface_->pixelHeight()));
    return texture_ != nullptr;
}

} // namespace kestrune::desk
