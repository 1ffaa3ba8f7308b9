// How far two pictures are from each other, in a measure that does not see how edges are smoothed.
#pragma once

#include <filesystem>
#include <optional>

namespace kestrune::desk {

// In steps of an 8-bit colour component, of which there are 255.
struct PictureDifference {
    double mean = 0;    // of all components of all pixels
    double maximum = 0; // of the components of tiles of 4 × 4 pixels, each averaged before it is compared
};

// Absent when one of the PNG files cannot be read, or when their sizes are not the same.
std::optional<PictureDifference> differenceOfPictures(const std::filesystem::path& one,
                                                      const std::filesystem::path& other);

} // namespace kestrune::desk
