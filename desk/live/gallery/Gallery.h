// Pictures of scenes on the desk.
#pragma once

#include "desk/command/Options.h"
#include "desk/live/gallery/Chapter.h"
#include "replay/recording/InputError.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrune::desk {

const std::vector<Chapter>& chapters();

// Draws scenes, all when none is named, on the displays and in the appearance of the options: "tour/held" is
// written as tour/held-light.png into the folder, which is made if need be, with two device pixels for each
// logical one. The name of a chapter is that of the sheet with all its scenes. The preferences that are
// stored are not touched. The error says which scenes there are when one is named that is not, what a scene
// did not find, or what could not be written.
std::optional<replay::InputError> drawGallery(const std::string& folder,
                                              const std::vector<std::string>& scenes, const Options& options);

} // namespace kestrune::desk
