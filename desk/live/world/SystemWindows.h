// The windows that are none of the application's: the dialog that asks for the permission, the mail program's
// and System Settings'.
#pragma once

#include "desk/live/world/MailProgram.h"
#include "desk/live/world/SystemSettings.h"
#include "desk/paint/mac/SystemPicture.h"
#include "sim/session/Session.h"
#include "ui/View.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

// Laid out, shown and used as those of the application, whose own list it is not in.
struct SystemWindow {
    WindowLook look = WindowLook::standard;
    WindowLevel level = WindowLevel::normal;
    std::size_t display = 0;                           // where it opens; the last one that there is instead
    double heightOnDisplay = 0;                        // of its centre, as a part of the display's height
    std::function<std::optional<std::string>()> title; // absent while it is closed
    std::function<ui::View()> view;
    std::function<void()> close;               // null: it cannot be closed
    sim::Windows::WindowState state = nullptr; // null while it is closed

    double titleBarHeight() const;
};

class SystemWindows {
public:
    using WindowState = sim::Windows::WindowState;

    // `session` must outlive the windows.
    explicit SystemWindows(sim::Session& session);

    SystemWindows(const SystemWindows&) = delete;
    SystemWindows& operator=(const SystemWindows&) = delete;

    // Opens, closes and lays out the windows as the session is now.
    void update();

    // Those that are open, from front to back.
    std::vector<WindowState> shown() const;

    // Null for any other window.
    const SystemWindow* find(const WindowState& window) const;

    // Each opens anew where it opens on the displays that there are then.
    void displaysChanged();

    SystemSettings& settings() { return settings_; }
    MailProgram& mail() { return mail_; }

private:
    void open(SystemWindow& window) const;
    void fit(SystemWindow& window) const;

    sim::Session& session_;
    SystemSettings settings_{session_};
    MailProgram mail_{session_};
    std::vector<SystemWindow> windows_; // from front to back
};

} // namespace kestrune::desk
