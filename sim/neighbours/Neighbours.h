// The programs beside the application, as far as they show windows: the system's dialog that asks for the
// permission, System Settings and the mail program.
#pragma once

#include "sim/neighbours/MailProgram.h"
#include "sim/neighbours/SystemSettings.h"
#include "sim/services/WindowLook.h"
#include "sim/services/Windows.h"
#include "sim/session/Session.h"
#include "ui/View.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::sim {

// Their windows are laid out, shown and used as the application's, and in one order with them.
class Neighbours {
public:
    // `session` must outlive them.
    explicit Neighbours(Session& session);

    Neighbours(const Neighbours&) = delete;
    Neighbours& operator=(const Neighbours&) = delete;

    // Opens, closes and lays out the windows as the session is now.
    void catchUp();

    // Each window opens anew where it opens on the displays that there are then.
    void displaysChanged();

    // What the menu bars say while the application has nothing to say there: the titles of the program whose
    // window receives the keys, else of the Finder.
    std::vector<std::string> menuTitles() const;

    // The user opens the pane of System Settings from its own list.
    void openLoginItems();

    const MailProgram& mail() const { return mail_; }

private:
    struct Neighbour {
        const char* program;
        WindowLevel level;
        WindowStyleMask style;
        WindowLook look;
        std::size_t display;    // where it opens; the last one that there is instead
        double heightOnDisplay; // of its centre, as a part of the display's height
        std::function<std::optional<std::string>()> title; // absent while it is closed
        std::function<ui::View()> view;
        std::function<void()> dismiss;
        std::function<std::string()> facts = [] { return std::string(); }; // that the view tells of
        std::string toldFacts = {};                                        // when it was laid out last
        Windows::WindowState window = nullptr;                             // null while it is closed
    };

    void open(Neighbour& neighbour) const;
    void close(Neighbour& neighbour) const;
    void comeForward(const Neighbour& neighbour) const;
    void leaveFront() const;

    Session& session_;
    SystemSettings settings_{session_};
    MailProgram mail_{session_};
    Neighbour dialogWindow_;
    Neighbour mailWindow_;
    Neighbour settingsWindow_;
    std::array<Neighbour*, 3> all_{&settingsWindow_, &mailWindow_, &dialogWindow_};
};

} // namespace kestrune::sim
