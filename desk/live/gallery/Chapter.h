// The table of all scenes.
#pragma once

#include "desk/live/gallery/Stage.h"
#include "desk/live/world/LiveDeskSetup.h"

#include <cstddef>
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
// held down, with the keyboard at it, behind other windows. Also with texts 1.4 times as long, which is how
// long translations are assumed to become.
Chapter wizardChapter();
Chapter settingsChapter();

} // namespace kestrune::desk
