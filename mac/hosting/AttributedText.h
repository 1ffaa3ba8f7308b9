// Texts with their fonts and colours, as the platform lays them out.
#pragma once

#include "mac/objc/Retained.h"
#include "ui/Scene.h"

namespace kestrune::mac {

// NSStringDrawingUsesLineFragmentOrigin and NSStringDrawingUsesFontLeading: lines from the top on, as a label
// has them.
inline constexpr Integer TextLayoutOptions = 1 | 2;

// `opacity` is from 0 for invisible to 1.
Retained attributedText(const ui::StyledText& text, double opacity = 1);

} // namespace kestrune::mac
