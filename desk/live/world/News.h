// What just happened on the desk, as one plain sentence.
#pragma once

#include "desk/paint/desk/DeskPicture.h"
#include "sim/session/Session.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

struct News {
    std::string text; // without a full stop
    Occurrence kind = Occurrence::neutral;
};

// The names of the displays that matter, before or after something happened; absent where there is none.
struct Whereabouts {
    std::optional<std::string> primary;
    std::optional<std::string> pinned;
    std::optional<std::string> dock;
    bool isPinStored = false;
};

// Where the application stands.
struct Standing {
    bool applicationRuns = false;
    bool guardRuns = false;
    bool isWatching = false; // for the permission
    bool isEnabled = true;
    sim::Permission permission = sim::Permission::notListed;
    std::optional<std::string> pinned; // the display that keeps the Dock
    bool pinnedHasDock = false;
    std::optional<std::string> choice; // the stored identifier
    AppServiceStatus loginItem = AppServiceStatus::notRegistered;
    std::size_t mails = 0;                 // that the mail program was asked for
    std::vector<std::string> windows;      // by their titles, the frontmost first
    std::vector<std::string> miniaturized; // by their titles
};

News newsOfHeldPointer(const sim::Delivery& delivery, const std::string& display);
News newsOfDockMove(const std::string& display);

// `switchedOnAgain`: whether the guard had its tap back after the system had given up waiting.
News newsOfUnansweredEvent(bool switchedOnAgain);

News newsOfPin(const std::string& display, bool hasDock);

News newsOfLaunch(const Standing& standing);
News newsOfQuit();

// Why the guard acts or does not.
News newsOfGuard(const Standing& standing);

// What a press of a button or a key has changed; absent when that is nothing.
std::optional<News> newsOfChange(const Standing& before, const Standing& after);

// A row of a menu was chosen, and nothing has changed but perhaps the order of the windows.
News newsOfChoiceWithoutEffect(const std::string& row, const Standing& standing);

// A button or switch of a window was pressed, and nothing else is worth telling.
News newsOfControl(const std::string& title);

// The menu could not be used for what was asked.
News newsOfClosedMenu(const Standing& standing);

News newsOfUnplugging(const std::string& display, const Whereabouts& before, const Whereabouts& after);
News newsOfPlugging(const std::string& display, bool isPrimary);

// Whether what becomes a login item waits for the user.
News newsOfLoginApproval(bool isAwaited);

// What the next check for updates will find.
News newsOfFeed(sim::UpdateFeed feed);

// The updater checks by itself, if the application runs.
News newsOfScheduledCheck(sim::UpdateFeed feed, bool applicationRuns);

News newsOfFoundUpdate();
News newsOfUpdateAlert(sim::UpdateFeed feed);

News newsOfTapTimeout(bool switchedOnAgain);
News newsOfMargin(double margin);

} // namespace kestrune::desk
