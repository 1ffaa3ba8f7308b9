#include "desk/window/DeskWindow.h"

#include "desk/live/gallery/Gallery.h"
#include "desk/live/hand/DeskKeys.h"
#include "desk/live/hand/Hand.h"
#include "desk/live/world/LivePicture.h"
#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPainter.h"
#include "desk/paint/desk/DeskParts.h"
#include "desk/paint/sheets/Sheet.h"
#include "desk/paint/toolkit/Surface.h"

#include <SDL.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr const char* GalleryFolder = "out/gallery";
constexpr const char* UsualScreenshot = "kestrune-desk.png";

// Between two looks at the events, in milliseconds. SDL_WaitEventTimeout would sleep until there is one, but
// on X11 it can leave a message to the window on its way when the window goes, which ends the process.
constexpr Uint32 Pause = 8;

constexpr int SmallestWidth = 720;
constexpr int SmallestHeight = 450;

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

// A window on the screen that shows pictures of the desk. There is one at a time.
class WindowCanvas {
public:
    // Absent when the display server does not give a window that a person can see and use.
    static std::optional<WindowCanvas> open(Size size) {
        WindowCanvas canvas;
        const char* const driver = SDL_GetCurrentVideoDriver();
        if (driver == nullptr || driver == std::string_view("dummy") ||
            driver == std::string_view("offscreen")) {
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

    // In logical pixels, the unit of the mouse.
    Size size() const {
        int width = 0;
        int height = 0;
        SDL_GetWindowSize(window_.get(), &width, &height);
        return {static_cast<double>(width), static_cast<double>(height)};
    }

    // Device pixels for each logical one.
    double scale() const {
        int pixelWidth = 0;
        int pixelHeight = 0;
        SDL_GetRendererOutputSize(renderer_.get(), &pixelWidth, &pixelHeight);
        const double width = size().width;
        return width > 0 && pixelWidth > 0 ? pixelWidth / width : 1;
    }

    // Paints when the picture or the window's size is another than the last time. The title tells what
    // happened.
    void show(const DeskPicture& picture) {
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

    // Whether there is memory and a texture in the window's size.
    bool makeRoom() {
        shown_.reset();
        surface_ = Surface::create(size(), scale());
        if (!surface_) {
            return false;
        }
        texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888,
                                         SDL_TEXTUREACCESS_STREAMING, surface_->pixelWidth(),
                                         surface_->pixelHeight()));
        return texture_ != nullptr;
    }

    std::unique_ptr<Video> video_ = std::make_unique<Video>();
    SdlHandle<SDL_Window, SDL_DestroyWindow> window_;
    SdlHandle<SDL_Renderer, SDL_DestroyRenderer> renderer_;
    SdlHandle<SDL_Texture, SDL_DestroyTexture> texture_;
    std::optional<Surface> surface_;
    DeskPainter painter_;
    std::optional<Shown> shown_;
};

EventType motionType(Uint32 buttons) {
    if ((buttons & SDL_BUTTON_LMASK) != 0) {
        return EventType::leftMouseDragged;
    }
    if ((buttons & SDL_BUTTON_RMASK) != 0) {
        return EventType::rightMouseDragged;
    }
    return buttons != 0 ? EventType::otherMouseDragged : EventType::mouseMoved;
}

KeyPress keyPress(const SDL_KeyboardEvent& event) {
    // Where the character on the cap is not the key's own number.
    constexpr std::array<std::pair<SDL_Keycode, char32_t>, 11> Caps = {{
        {SDLK_UP, U'↑'},
        {SDLK_DOWN, U'↓'},
        {SDLK_LEFT, U'←'},
        {SDLK_RIGHT, U'→'},
        {SDLK_RETURN, U'⏎'},
        {SDLK_KP_ENTER, U'⏎'},
        {SDLK_TAB, U'⇥'},
        {SDLK_ESCAPE, U'⎋'},
        {SDLK_KP_PLUS, U'+'},
        {SDLK_EQUALS, U'+'}, // The plus sign's key without Shift.
        {SDLK_KP_MINUS, U'-'},
    }};
    const SDL_Keysym& key = event.keysym;
    const auto found =
        std::find_if(Caps.begin(), Caps.end(), [&key](const auto& cap) { return cap.first == key.sym; });
    const bool isCharacter = key.sym > 0 && key.sym < 0x80;
    // Keyboards that are not a Mac's have Control where its hand looks for Command.
    return {found != Caps.end() ? found->second : static_cast<char32_t>(isCharacter ? key.sym : 0),
            (key.mod & KMOD_SHIFT) != 0, (key.mod & (KMOD_CTRL | KMOD_GUI)) != 0, event.repeat != 0};
}

class DeskWindow {
public:
    DeskWindow(WindowCanvas canvas, LiveDesk& desk, bool dark, const Outcome& outcome)
        : canvas_(std::move(canvas)), desk_(desk), outcome_(outcome), hand_(desk), isDark_(dark) {}

    void run() {
        while (!isClosed_) {
            SDL_Event event;
            while (SDL_PollEvent(&event) != 0) {
                hand_.letTimePass(elapsed());
                handle(event);
            }
            hand_.letTimePass(elapsed());
            canvas_.show(picture());
            SDL_Delay(Pause);
        }
    }

    std::optional<PaintError> writeTo(const std::string& path) {
        return writePicture(path, pictureOfDesk(picture(), canvas_.size()), canvas_.scale());
    }

private:
    DeskPicture picture() {
        DeskPicture result = pictureOf(desk_);
        result.dark = isDark_;
        if (zoomedTo_) {
            result.shown = Rect{zoomedTo_->x, zoomedTo_->y, 0, 0};
        }
        result.keys = keyLegend(hidesKeys_);
        return result;
    }

    sim::Duration elapsed() const { return std::chrono::steady_clock::now() - start_; }

    void handle(const SDL_Event& event) {
        switch (event.type) {
        case SDL_QUIT:
            isClosed_ = true;
            break;
        case SDL_KEYDOWN:
            if (const auto command = pressDeskKey(desk_, keyPress(event.key))) {
                perform(*command);
            }
            break;
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            if (event.button.button == SDL_BUTTON_LEFT) {
                const DeskPicture shown = picture();
                const auto target = targetAt(placeOf(event.button), shown, layoutOf(shown));
                event.type == SDL_MOUSEBUTTONDOWN ? desk_.pressButton(target) : desk_.releaseButton(target);
            }
            break;
        case SDL_MOUSEMOTION:
            handleMotion(event.motion);
            break;
        case SDL_RENDER_TARGETS_RESET:
        case SDL_RENDER_DEVICE_RESET:
            canvas_.forget();
            break;
        default:
            if (event.type == SDL_WINDOWEVENT && event.window.event == SDL_WINDOWEVENT_EXPOSED) {
                canvas_.forget();
            }
        }
    }

    void handleMotion(const SDL_MouseMotionEvent& motion) {
        const Point place = placeOf(motion);
        follow(place);
        const DeskPicture shown = picture();
        const DeskLayout seen = layoutOf(shown);
        const std::optional<DeskTarget> target = targetAt(place, shown, seen);
        hand_.moveTo(seen.toGlobal(place), motionType(motion.state), elapsed());
        desk_.hover(target);
        // The simulated pointer stands in for the real one on the stage.
        const bool isOnStage = !seen.isEmpty() && seen.stage().contains(place);
        SDL_ShowCursor(isOnStage ? SDL_DISABLE : SDL_ENABLE);
    }

    // Where only a part of the displays is shown, that comes along with the pointer.
    void follow(Point place) {
        if (zoomedTo_) {
            const DeskLayout seen = layout();
            zoomedTo_ = seen.stage().contains(place) ? seen.centerFor(place) : *zoomedTo_;
        }
    }

    template <typename MouseEvent>
    static Point placeOf(const MouseEvent& event) {
        return {static_cast<double>(event.x), static_cast<double>(event.y)};
    }

    DeskLayout layoutOf(const DeskPicture& shown) { return DeskLayout::of(shown, canvas_.size()); }
    DeskLayout layout() { return layoutOf(picture()); }

    std::optional<DeskTarget> targetAt(Point place, const DeskPicture& shown, const DeskLayout& seen) {
        const std::optional<Point> point = seen.pointAt(place);
        return point ? hitTest_.targetAt(shown, *point) : std::nullopt;
    }

    void perform(WindowCommand command) {
        switch (command) {
        case WindowCommand::zoom:
            zoom();
            break;
        case WindowCommand::changeAppearance:
            isDark_ = !isDark_;
            break;
        case WindowCommand::savePicture:
            saveScreenshot();
            break;
        case WindowCommand::hideKeys:
            hidesKeys_ = !hidesKeys_;
            break;
        case WindowCommand::quit:
            isClosed_ = true;
            break;
        }
    }

    void zoom() {
        const Point pointer = desk_.session().pointer();
        const auto placeOfPointer = [&](const DeskLayout& seen) {
            const DisplayPlace* const place = seen.placeContaining(pointer);
            return place != nullptr ? std::optional(place->toWindow(pointer)) : std::nullopt;
        };
        const std::optional<Point> before = placeOfPointer(layout());
        if (zoomedTo_ || !before) {
            zoomedTo_.reset();
            return;
        }
        zoomedTo_ = pointer;
        // The pointer stays where it is in the window, as far as there is something around it.
        const DeskLayout zoomed = layout();
        const Point after = *placeOfPointer(zoomed);
        zoomedTo_ = zoomed.centerAfter({after.x - before->x, after.y - before->y});
    }

    void saveScreenshot() {
        const std::string path = outcome_.screenshot.value_or(UsualScreenshot);
        const auto error = writeTo(path);
        desk_.announce(error ? News{"The picture was not saved: " + error->message, Occurrence::warning}
                             : News{"The picture was saved as " + path, Occurrence::neutral});
    }

    WindowCanvas canvas_;
    LiveDesk& desk_;
    const Outcome& outcome_;
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    Hand hand_;
    DeskHitTest hitTest_;
    bool isDark_;
    bool hidesKeys_ = false;
    std::optional<Point> zoomedTo_; // in the middle of the stage, in global display coordinates
    bool isClosed_ = false;
};

} // namespace

std::variant<std::string, replay::InputError> runDeskWindow(const Options& options, const Outcome& outcome) {
    auto opened = openDesk(options);
    if (const auto* error = std::get_if<replay::InputError>(&opened)) {
        return *error;
    }
    auto desk = std::get<std::unique_ptr<LiveDesk>>(std::move(opened));
    std::optional<WindowCanvas> canvas = WindowCanvas::open(UsualWindow);
    if (!canvas) {
        desk.reset(); // There is one session at a time, and each scene has its own.
        if (const auto error = drawGallery(GalleryFolder, {}, options)) {
            return *error;
        }
        return std::string("No display server gives a window: pictures of all scenes are in ") +
               GalleryFolder + "\n";
    }
    DeskWindow window(*std::move(canvas), *desk, options.dark, outcome);
    window.run();
    if (const auto error = outcome.screenshot ? window.writeTo(*outcome.screenshot) : std::nullopt) {
        return replay::InputError{error->message};
    }
    if (const auto& error = desk->savingError()) {
        return replay::InputError{*error};
    }
    return outcome.asJSON ? replay::reportAsJSON(desk->report()) : replay::reportAsText(desk->report());
}

} // namespace kestrune::desk
