#include "sim/neighbours/Neighbours.h"

#include "sim/neighbours/NeighbourViews.h"
#include "sim/services/HostedView.h"
#include "sim/services/WindowState.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace kestrune::sim {

namespace {

constexpr const char* DialogProgram = "universalAccessAuthWarn"; // It has no menu bar.
constexpr const char* SettingsProgram = "System Settings";
constexpr const char* MailProgramName = "Mail";

std::optional<std::string> titleIf(bool isOpen, const char* title) {
    return isOpen ? std::optional<std::string>(title) : std::nullopt;
}

} // namespace

// The dialog shows on the primary display, the others beside it where there is another.
Neighbours::Neighbours(Session& session)
    : session_(session),
      dialogWindow_{
          DialogProgram,
          WindowLevel::floating,
          WindowStyleMask::titled,
          WindowLook::standard,
          0,
          0.32,
          [this] {
              return titleIf(session_.accessibility().isDialogShown(), "Accessibility Access (Events)");
          },
          [this] {
              return permissionDialog(
                  listedApplication(session_.bundle()), [this] { session_.user().openSettingsFromDialog(); },
                  [this] { session_.user().denyInDialog(); });
          },
          [this] { session_.user().denyInDialog(); }},
      mailWindow_{MailProgramName,
                  WindowLevel::normal,
                  WindowStyleMask::titled | WindowStyleMask::closable,
                  WindowLook::paper,
                  1,
                  0.5,
                  [this] { return titleIf(mail_.mail().has_value(), "New Message"); },
                  [this] { return mailView(*mail_.mail()); },
                  [this] {
                      mail_.close();
                      leaveFront();
                  },
                  [this] {
                      const MailLink& mail = *mail_.mail();
                      return mail.recipient + "\n" + mail.subject + "\n" + mail.body;
                  }},
      settingsWindow_{SettingsProgram,
                      WindowLevel::normal,
                      WindowStyleMask::titled | WindowStyleMask::closable,
                      WindowLook::sidebar,
                      1,
                      0.54,
                      [this] { return settings_.title(); },
                      [this] { return settings_.view(); },
                      [this] {
                          if (!settings_.close()) {
                              leaveFront();
                          }
                      },
                      [this] { return settings_.facts(); }} {}

void Neighbours::catchUp() {
    if (mail_.lookForLinks()) {
        comeForward(mailWindow_);
    }
    for (Neighbour* const neighbour : all_) {
        const auto title = session_.displays().connected().empty() ? std::nullopt : neighbour->title();
        if (!title) {
            close(*neighbour);
            continue;
        }
        const std::string facts = neighbour->facts();
        if (!neighbour->window) {
            open(*neighbour);
        } else if (facts != neighbour->toldFacts) {
            neighbour->window->content->host().render();
            neighbour->window->setContentSize(Windows::sceneOf(*neighbour->window).size);
        }
        neighbour->window->title = *title;
        neighbour->toldFacts = facts;
    }
}

void Neighbours::open(Neighbour& neighbour) const {
    neighbour.window = std::make_shared<Window::State>();
    Window::State& window = *neighbour.window;
    window.owner = neighbour.program;
    window.level = neighbour.level;
    window.styleMask = neighbour.style;
    window.look = neighbour.look;
    window.dismiss = neighbour.dismiss;
    window.content = HostedView::make({neighbour.view, nullptr});
    window.setContentSize(Windows::sceneOf(window).size);
    const auto& displays = session_.displays().connected();
    const Rect& display = displays[std::min(neighbour.display, displays.size() - 1)].bounds;
    const Size size = window.frame.size;
    session_.user().moveWindow(
        neighbour.window, {std::round(display.minX() + (display.width() - size.width) / 2),
                           std::max(display.minY() + Windows::MenuBarHeight,
                                    std::round(display.minY() + display.height() * neighbour.heightOnDisplay -
                                               size.height / 2))});
    session_.windows().orderFront(neighbour.window);
}

void Neighbours::close(Neighbour& neighbour) const {
    if (neighbour.window) {
        session_.windows().orderOut(neighbour.window);
        neighbour.window.reset();
    }
}

void Neighbours::displaysChanged() {
    for (Neighbour* const neighbour : all_) {
        close(*neighbour);
    }
}

void Neighbours::openLoginItems() {
    settings_.openLoginItems();
    comeForward(settingsWindow_);
}

void Neighbours::comeForward(const Neighbour& neighbour) const {
    session_.user().switchAway();
    if (neighbour.window) {
        session_.windows().orderFront(neighbour.window);
    }
}

// The application is active again if it has a window and a place in the Dock.
void Neighbours::leaveFront() const {
    if (session_.application().policy == ActivationPolicy::regular && !session_.windows().shown().empty()) {
        session_.user().switchToApplication();
    }
}

std::vector<std::string> Neighbours::menuTitles() const {
    const auto front = session_.windows().receiverOfKeys();
    if (front && front->owner == SettingsProgram) {
        return {SettingsProgram, "Edit", "View", "Window", "Help"};
    }
    if (front && front->owner == MailProgramName) {
        return {MailProgramName, "File", "Edit", "View", "Mailbox", "Message", "Format", "Window", "Help"};
    }
    return {"Finder", "File", "Edit", "View", "Go", "Window", "Help"};
}

} // namespace kestrune::sim
