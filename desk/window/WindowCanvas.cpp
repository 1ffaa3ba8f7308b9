#include "desk/window/WindowCanvas.h"

#include <string>
#include <string_view>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr int SmallestWidth = 720;
constexpr int SmallestHeight = 450;

} // namespace

std::optional<WindowCanvas> WindowCanvas::open(Size size) {
    WindowCanvas canvas;
    const char* const driver = SDL_GetCurrentVideoDriver();
    if (driver == nullptr || driver == std::string_view("dummy") || driver == std::string_view("offscreen")) {
        return std::nullopt;
    }
    canvas.window_.reset(SDL_CreateWindow("Kestrune", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                          static_cast<int>(size.width), static_cast<int>(size.height),
                                          SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI));
    if (!canvas.window_) {
        return std::nullopt;
    }
    SDL_Window* const window = canvas.window_.get();
    SDL_SetWindowMinimumSize(window, SmallestWidth, SmallestHeight);
    canvas.renderer_.reset(
        SDL_CreateRenderer(window, -1, SDL_RENDERER_ACCELERATED | SDL_RENDERER_PRESENTVSYNC));
    if (!canvas.renderer_) {
        canvas.renderer_.reset(SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE));
    }
    return canvas.renderer_ ? std::optional(std::move(canvas)) : std::nullopt;
}

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
    const Shown wanted{picture, size(), scale()};
    if (shown_ == wanted) {
        return;
    }
    const bool isSameSize = shown_ && shown_->size == wanted.size && shown_->scale == wanted.scale;
    if (!isSameSize && !makeRoom()) {
        return;
    }
    painter_.paint(surface_->context(), picture, size());
    SDL_UpdateTexture(texture_.get(), nullptr, surface_->pixels().data(), surface_->stride());
    SDL_RenderClear(renderer_.get());
    SDL_RenderCopy(renderer_.get(), texture_.get(), nullptr, nullptr);
    SDL_RenderPresent(renderer_.get());
    SDL_SetWindowTitle(window_.get(), ("Kestrune: " + picture.whatHappened).c_str());
    shown_ = wanted;
}

// Whether there is memory and a texture in the window's size.
bool WindowCanvas::makeRoom() {
    shown_.reset();
    surface_ = Surface::create(size(), scale());
    if (!surface_) {
        return false;
    }
    texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING,
                                     surface_->pixelWidth(), surface_->pixelHeight()));
    return texture_ != nullptr;
}

} // namespace kestrune::desk
