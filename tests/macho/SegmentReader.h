// The load command of a segment.
#pragma once

#include "tests/macho/MachSlice.h"

namespace kestrune::macho {

// Throws MachError when the segment or one of its sections leaves the file, or a section its segment.
Segment readSegment(const Bytes& command, const Bytes& slice);

} // namespace kestrune::macho
