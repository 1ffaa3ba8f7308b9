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

// Where the application and the displays stand.
struct Standing {
    bool applicationRuns = false;
    bool guardRuns = false;
    bool isWatching = false; // for the permission
    bool isEnabled = true;
    sim::Permission permission = sim::Permission::notListed;
    std::optional<std::string> pinned; // the display that keeps the Dock
    bool pinnedHasDock = false;
    std::optional<std::string> primary; // display
    std::optional<std::string> dock;    // the display that has it
    std::optional<std::string> choice;  // the stored identifier
    AppServiceStatus loginItem = AppServiceStatus::notRegistered;
    sim::UpdateFeed feed = sim::UpdateFeed::nothingNew;
    bool isShowingUpdate = false;
    bool isShowingAlert = false;           // of the updater
    std::size_t mails = 0;                 // that the mail program was asked for
    std::vector<std::string> windows;      // by their titles, the frontmost first
    std::vector<std::string> miniaturized; // by their titles
};

News newsOfPin(const std::string& display, bool hasDock);

News newsOfLaunch(const Standing& standing);

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

News newsOfUnplugging(const std::string& display, const Standing& before, const Standing& after);

// What the updater shows that it did not show before; absent when that is nothing.
std::optional<News> newsOfUpdates(const Standing& before, const Standing& after);

// What the next check for updates will find.
News newsOfFeed(sim::UpdateFeed feed);

} // namespace kestrune::desk
