// The bottom of the window: what just happened, the counters, and the keys.
#pragma once

#include "desk/paint/desk/DeskLayout.h"
#include "desk/paint/desk/DeskPicture.h"
#include "desk/paint/toolkit/Canvas.h"

#include <cstdint>
#include <string>

namespace kestrune::desk {

// What just happened, and the counters.
void paintStatus(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture);

// The keys, and the line above the status bar.
void paintKeys(const Canvas& canvas, const DeskLayout& layout, const DeskPicture& picture);

// 1234567 as "1,234,567".
std::string groupedNumber(std::uint64_t number);

} // namespace kestrune::desk
