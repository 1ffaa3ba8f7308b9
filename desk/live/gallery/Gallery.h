// The table of all scenes, and pictures of them.
#pragma once

#include "desk/command/Options.h"
#include "desk/live/gallery/Stage.h"
#include "replay/recording/InputError.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

// Scenes that follow each other on one desk.
struct Story {
    void (*prepare)(LiveDeskSetup& setup);
    std::vector<Scene> scenes;
};

// Stories whose scenes are on one sheet, row by row.
struct Chapter {
    std::string name;
    std::string title;
    std::size_t columns = 1;
    double scale = 1; // of the sheet's small pictures
    std::vector<Story> stories;

    // As people call one of its scenes, as in: tour/held
    std::string nameOf(const Scene& scene) const { return name + "/" + scene.name; }
};

// The whole life of Kestrune.
Chapter tourChapter();

// Each state of the first-run wizard, and of Settings, in every look: in front, with the button or switch
// held down, with the keyboard at it, behind other windows. Also with texts at least 1.4 times as long, which
// is how long translations are assumed to become.
Chapter wizardChapter();
Chapter settingsChapter();

const std::vector<Chapter>& chapters();

// Draws scenes, all when none is named, on the displays and in the appearance of the options: "tour/held" is
// written as tour/held-light.png into the folder, which is made if need be, with two device pixels for each
// logical one. The name of a chapter is that of the sheet with all its scenes. The preferences that are
// stored are not touched. The error says which scenes there are when one is named that is not, what a scene
// did not find, or what could not be written.
std::optional<replay::InputError> drawGallery(const std::string& folder,
                                              const std::vector<std::string>& scenes, const Options& options);

} // namespace kestrune::desk
