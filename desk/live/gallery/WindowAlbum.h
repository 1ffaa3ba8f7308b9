// Pictures of one window in many states, each a file, and all of them next to each other.
#pragma once

#include "desk/paint/mac/SystemPicture.h"
#include "desk/recording/InputError.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kestrune::desk {

struct AlbumPage {
    std::string name;    // of the file, without the appearance
    std::string caption; // without the appearance
    WindowPicture window;
    bool dark = false;
};

struct WindowAlbum {
    std::string title;
    std::size_t columns = 1;
    std::vector<AlbumPage> pages; // row by row
};

// Makes the folder if need be. The error says why it cannot be written to.
std::optional<InputError> makeFolder(const std::string& folder);

// For each page a PNG named after it and its appearance, as in "waiting-dark.png", and "all.png". The folder
// must be there. An album that could not be made is not written.
std::optional<InputError> writeAlbum(const std::string& folder,
                                     const std::variant<WindowAlbum, InputError>& made);

} // namespace kestrune::desk
