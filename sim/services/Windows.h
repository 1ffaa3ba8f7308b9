// The windows on the screen, in one order from front to back, and the user who works with them: the
// application's, and those of the programs beside it.
//
// Source: docs/MAC_FACTS.md, "Windows".
#pragma once

#include "platform/Window.h"
#include "sim/services/StandingFaults.h"
#include "ui/Scene.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::sim {

class Displays;
class Journal;
class Observers;
struct ApplicationState;

class Windows {
public:
    using WindowState = std::shared_ptr<Window::State>;

    // Nothing of a window goes above the lower edge of a display's menu bar; in points.
    static constexpr double MenuBarHeight = 24;

    // All of them must outlive this.
    Windows(ApplicationState& application, const Displays& displays, const Observers& observers,
            Journal& journal, const StandingFaults& faults)
        : application_(application),
          displays_(displays),
          observers_(observers),
          journal_(journal),
          faults_(faults) {}

    // The windows that are to be seen, whoever's they are, the frontmost first: by level, and within a level
    // the one first that was ordered front last. A program that becomes active comes forward with all of its
    // windows; beside the application all others count as one.
    std::vector<WindowState> stack() const;

    // The application's among them. It knows of no others.
    std::vector<WindowState> shown() const;

    // Those in the Dock, in the order in which they were made.
    std::vector<WindowState> miniaturized() const;

    // Every one of the process, on screen or not, from the first to the latest.
    std::vector<WindowState> all() const;
    void add(const WindowState& window);

    // The application's window that receives the keys, and is the main window too, as nothing here has
    // panels; null while the application is not active or shows no window.
    WindowState keyWindow() const;

    // The window that receives the keys, whoever's it is: while the application is not active the frontmost
    // one of another program. Null when there is none.
    WindowState receiverOfKeys() const;

    // What the hosted view of a window shows; nothing when it hosts none.
    static const ui::Scene& sceneOf(const Window::State& window);

    // In the middle of the main display: halfway across its room, and with twice as much room below as above.
    void center(Window::State& window) const;

    // In front of its level, also from the Dock; only the first one asks for the keys.
    void makeKeyAndOrderFront(const WindowState& window);
    void orderFront(const WindowState& window);
    void orderOut(const WindowState& window);

    // Where the user's clicks arrive. A click into a window, or on its tile in the Dock, makes its program
    // active and the window key; the close button and the minimise button work where the window
    // has them.
    void click(const WindowState& window);
    void closeByUser(const WindowState& window);
    void miniaturizeByUser(const WindowState& window);

    // Where a drag arrives; the top left corner in global display coordinates.
    void moveTo(const WindowState& window, Point topLeft) const;

    // The application becomes the active one, or ceases to be.
    void setActive(bool isActive);

    // The same at the application's own wish, if the system lets it.
    void activateByApplication();

    // The platform makes an object of the class itself, from an archive or from a bare window: both are
    // refused.
    void registerController(std::string_view className, std::string_view sourcePath);
    [[noreturn]] void refuseConstruction(std::string_view className) const;

    // The application's process has ended.
    void clear();

private:
    void takeOut(const Window::State& window);
    void hide(Window::State& window);
    void tellNewKeyWindow(const WindowState& before) const;
    static void requireUnreleased(const Window::State& window);

    ApplicationState& application_;
    const Displays& displays_;
    const Observers& observers_;
    Journal& journal_;
    const StandingFaults& faults_;
    std::vector<std::weak_ptr<Window::State>> all_;
    std::vector<std::weak_ptr<Window::State>> ordered_; // the front one first, whatever its level
    std::weak_ptr<Window::State> wantedKey_;            // the one that was made key last
    std::map<std::string, std::string, std::less<>> sourcePaths_;
};

} // namespace kestrune::sim
