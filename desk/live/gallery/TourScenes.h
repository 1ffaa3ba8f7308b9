// The scenes of the tour.
#pragma once

#include "desk/live/gallery/TourHand.h"
#include "desk/live/world/LiveDesk.h"
#include "desk/recording/InputError.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {

// Plays the story scene by scene on a desk on which the application was just launched for the first time,
// without the permission.
class TourScenes {
public:
    // The story is about the display that is pinned and another one. `desk` must outlive the scenes.
    explicit TourScenes(LiveDesk& desk);

    // Whether there are two displays with a bottom edge that the pointer can be pushed against.
    bool canBePlayed() const { return other_.has_value(); }

    // What of the displays a scene is about.
    enum class Frame { everything, display, whatIsOpen, pointer }; // the display with the pointer

    struct Scene {
        std::string name;                  // for a file, without suffix
        std::string (TourScenes::*play)(); // tells in a sentence what was played
        Frame frame = Frame::everything;
    };
    static const std::vector<Scene>& all();

    // What is to be shown of a scene once it was played.
    static std::optional<Rect> framed(const Scene& scene, const DeskPicture& picture);

    // Plays a scene after those before it. Its story, or what was not there that it needs.
    std::variant<std::string, InputError> perform(const Scene& scene);

private:
    std::string firstLaunch();
    std::string letDockLeave();
    std::string openMenuBeforeSetup();
    std::string askForPermission();
    std::string grantPermission();
    std::string finishWizard();
    std::string bringDockHome();
    std::string hold();
    std::string holdDrag();
    std::string restToSeeTheToolTip();
    std::string openMenuAfterSetup();
    std::string chooseOther();
    std::string pushWhereChosen();
    std::string switchOff();
    std::string switchOn();
    std::string plugIn();
    std::string deepen();
    std::string unplugPinned();
    std::string plugInAgain();
    std::string revoke();
    std::string grantAgain();
    std::string timeOut();
    std::string openSettings();
    std::string launchAtLogin();
    std::string findNothingNew();
    std::string findNewVersion();
    std::string reportBug();
    std::string leaveOneDisplay();
    std::string quit();
    std::string launchAgain();

    // The last ones go.
    void unplugAllBut(std::size_t count);

    const std::string& nameOf(DisplayID number);
    std::string pinnedName();

    LiveDesk& desk_;
    TourHand hand_;
    DisplayID first_;
    std::optional<DisplayID> other_;
};

} // namespace kestrune::desk
