// Exceptions through the functions of a loaded program.
#pragma once

#include "tests/macho/loader/LoadedImage.h"

#include <cstdint>
#include <span>
#include <vector>

namespace kestrune::macho {

// What the program's compact unwind information says, as a section .eh_frame. Throws MachError.
std::vector<std::uint8_t> callFramesOf(const LoadedImage& image);

// What the compact form cannot say is in DWARF as it is, in a section of the image; empty when there is none.
// Throws MachError for entries that leave the image or have no end.
std::span<std::uint8_t> dwarfFramesOf(const LoadedImage& image);

// From here on this process's unwinder, GCC's, knows how to leave the program's functions, so that exceptions
// of C++ and of Foundation pass through them. The image has to stay. Throws MachError for what the unwinder
// cannot be told.
void registerUnwinding(const LoadedImage& image);

} // namespace kestrune::macho
