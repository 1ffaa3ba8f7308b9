#include "desk/window/DeskWindow.h"

#include "desk/live/gallery/Gallery.h"
#include "desk/live/hand/DeskKeys.h"
#include "desk/live/hand/Hand.h"
#include "desk/live/world/LivePicture.h"
#include "desk/paint/desk/DeskHitTest.h"
#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/sheets/Sheet.h"
#include "desk/window/WindowCanvas.h"

#include <chrono>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr int BadInput = 2;
constexpr const char* GalleryFolder = "out/gallery";
constexpr const char* UsualScreenshot = "kestrune-desk.png";

// Between two looks at the events, in milliseconds. SDL_WaitEventTimeout would sleep until there is one, but
// on X11 it can leave a message to the window on its way when the window goes, which ends the process.
constexpr Uint32 Pause = 8;

int refuse(const std::string& message) {
    std::fprintf(stderr, "kestrune-desk: %s\n", message.c_str());
    return BadInput;
}

EventType motionType(Uint32 buttons) {
    if ((buttons & SDL_BUTTON_LMASK) != 0) {
        return EventType::leftMouseDragged;
    }
    if ((buttons & SDL_BUTTON_RMASK) != 0) {
        return EventType::rightMouseDragged;
    }
    return buttons != 0 ? EventType::otherMouseDragged : EventType::mouseMoved;
}

// The key as the desk knows it, 0 for one that it does not know.
char deskKey(SDL_Keycode key) {
    switch (key) {
    case SDLK_KP_PLUS:
    case SDLK_PLUS:
    case SDLK_EQUALS: // The plus sign's key without Shift.
        return '+';
    case SDLK_KP_MINUS:
    case SDLK_MINUS:
        return '-';
    default:
        return key > 0 && key < 0x80 ? static_cast<char>(key) : '\0';
    }
}

// The keys of menus, dialogs and windows.
std::optional<NavigationKey> navigationKey(SDL_Keysym pressed) {
    switch (pressed.sym) {
    case SDLK_UP:
        return NavigationKey::up;
    case SDLK_DOWN:
        return NavigationKey::down;
    case SDLK_LEFT:
        return NavigationKey::left;
    case SDLK_RIGHT:
        return NavigationKey::right;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
        return NavigationKey::enter;
    case SDLK_SPACE:
        return NavigationKey::space;
    case SDLK_TAB:
        return (pressed.mod & KMOD_SHIFT) != 0 ? NavigationKey::backTab : NavigationKey::tab;
    case SDLK_ESCAPE:
        return NavigationKey::escape;
    default:
        return std::nullopt;
    }
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
        result.keys = hidesKeys_ ? legendOfHiddenKeys() : keyLegend();
        return result;
    }

    sim::Duration elapsed() const { return std::chrono::steady_clock::now() - start_; }

    void handle(const SDL_Event& event) {
        switch (event.type) {
        case SDL_QUIT:
            isClosed_ = true;
            break;
        case SDL_KEYDOWN:
            press(event.key);
            break;
        case SDL_MOUSEBUTTONDOWN:
            if (event.button.button == SDL_BUTTON_LEFT) {
                desk_.pressButton(targetAt(placeOf(event.button)));
            }
            break;
        case SDL_MOUSEBUTTONUP:
            if (event.button.button == SDL_BUTTON_LEFT) {
                desk_.releaseButton(targetAt(placeOf(event.button)));
            }
            break;
        case SDL_MOUSEMOTION:
            handleMotion(event.motion);
            break;
        case SDL_WINDOWEVENT:
            if (event.window.event == SDL_WINDOWEVENT_EXPOSED) {
                canvas_.forget();
            }
            break;
        case SDL_RENDER_TARGETS_RESET:
        case SDL_RENDER_DEVICE_RESET:
            canvas_.forget();
            break;
        default:
            break;
        }
    }

    void handleMotion(const SDL_MouseMotionEvent& motion) {
        const Point place = placeOf(motion);
        follow(place);
        const DeskPicture shown = picture();
        const DeskLayout seen = DeskLayout::of(shown, canvas_.size());
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

    DeskLayout layout() { return DeskLayout::of(picture(), canvas_.size()); }

    std::optional<DeskTarget> targetAt(Point place, const DeskPicture& shown, const DeskLayout& seen) {
        const std::optional<Point> point = seen.pointAt(place);
        return point ? hitTest_.targetAt(shown, *point) : std::nullopt;
    }

    std::optional<DeskTarget> targetAt(Point place) { return targetAt(place, picture(), layout()); }

    void press(const SDL_KeyboardEvent& event) {
        const auto navigation = navigationKey(event.keysym);
        if (navigation && desk_.navigate(*navigation)) {
            return;
        }
        const char character = deskKey(event.keysym.sym);
        if (event.repeat != 0 && character != '+' && character != '-') {
            return;
        }
        // Command; keyboards that are not a Mac's have Control where its hand looks for it.
        if ((event.keysym.mod & (KMOD_CTRL | KMOD_GUI)) != 0) {
            if (character != '\0') {
                desk_.pressEquivalent(std::string(1, character), (event.keysym.mod & KMOD_SHIFT) != 0);
            }
            return;
        }
        if (const auto command = pressDeskKey(desk_, character)) {
            perform(*command);
        }
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

// SDL's video for the length of a scope.
class Video {
public:
    Video() : isThere_(SDL_Init(SDL_INIT_VIDEO) == 0) {}
    ~Video() { SDL_Quit(); }

    Video(const Video&) = delete;
    Video& operator=(const Video&) = delete;

    // Whether a person can see and use a window.
    bool isUsable() const {
        if (!isThere_) {
            return false;
        }
        const std::string_view driver = SDL_GetCurrentVideoDriver();
        return driver != "dummy" && driver != "offscreen";
    }

private:
    bool isThere_;
};

int drawGalleryInstead(const Options& options) {
    std::printf("No display server gives a window: pictures of all scenes go to %s\n", GalleryFolder);
    const auto error = drawGallery(GalleryFolder, {}, options);
    return error ? refuse(error->message) : 0;
}

int finish(DeskWindow& window, LiveDesk& desk, const Outcome& outcome) {
    if (outcome.screenshot) {
        if (const auto error = window.writeTo(*outcome.screenshot)) {
            return refuse(error->message);
        }
    }
    if (const auto& error = desk.savingError()) {
        return refuse(*error);
    }
    const replay::Report report = desk.report();
    const std::string text = outcome.asJSON ? replay::reportAsJSON(report) : replay::reportAsText(report);
    std::fwrite(text.data(), 1, text.size(), stdout);
    return 0;
}

} // namespace

int runDeskWindow(const Options& options, const Outcome& outcome) {
    auto opened = openDesk(options);
    if (const auto* error = std::get_if<replay::InputError>(&opened)) {
        return refuse(error->message);
    }
    auto desk = std::get<std::unique_ptr<LiveDesk>>(std::move(opened));
    const Video video;
    std::optional<WindowCanvas> canvas = video.isUsable() ? WindowCanvas::open(UsualWindow) : std::nullopt;
    if (!canvas) {
        desk.reset(); // There is one session at a time, and each scene has its own.
        return drawGalleryInstead(options);
    }
    DeskWindow window(*std::move(canvas), *desk, options.dark, outcome);
    window.run();
    return finish(window, *desk, outcome);
}

} // namespace kestrune::desk
