// The application's windows on the screen as the platform orders them, and which of them has the keys.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kestrune::simulate {

enum class WindowKind { wizard, settings, updates };

struct WindowModel {
    WindowKind kind;
    std::string title;
    std::string className = "NSWindow";
    bool isFloating = false;
    bool hides = false; // while the application is not active
    bool isVisible = false;
};

class WindowsModel {
public:
    using Window = std::shared_ptr<WindowModel>;

    // `becameKey` is told of each window when it gets the keys, if somebody could hear of it.
    explicit WindowsModel(std::function<void(WindowModel&)> becameKey) : becameKey_(std::move(becameKey)) {}

    // Every one, from the first to the latest; and those on the screen, the frontmost first.
    const std::vector<Window>& all() const { return all_; }
    std::vector<Window> shown() const;

    // Has the keys; null when no window has them.
    Window key() const;

    bool isActive() const { return isActive_; }
    void setActive(bool isActive);

    Window add(WindowModel window);
    void makeKeyAndOrderFront(const Window& window);
    void orderFront(const Window& window);
    void orderOut(const Window& window);
    void click(const Window& window);

    // Nobody holds it any more.
    void remove(const Window& window);

private:
    void tellNewKey(const Window& before);

    std::function<void(WindowModel&)> becameKey_;
    bool isActive_ = false;
    std::vector<Window> all_;
    std::vector<Window> ordered_; // the front one first, whatever its level
    Window wanted_;               // made key last; null when it is gone
};

} // namespace kestrune::simulate
