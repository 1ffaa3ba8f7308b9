// Texts with their fonts and colours, as the platform lays them out.
#pragma once

#include "mac/objc/Retained.h"
#include "ui/Scene.h"

namespace kestrune::mac {

// NSStringDrawingUsesLineFragmentOrigin and NSStringDrawingUsesFontLeading: lines from the top on, as a label
// has them.
inline constexpr Integer TextLayoutOptions = 1 | 2;

// NSTextAlignment's numbers for centre and right, which are exchanged on Apple's processors; left is 0.
//
// Source: NSText.h, under TARGET_ABI_USES_IOS_VALUES.
enum class AlignmentNumbers { ofApplesProcessors, ofOthers };
#if defined(__APPLE__) && defined(__aarch64__)
inline constexpr AlignmentNumbers AlignmentNumbersHere = AlignmentNumbers::ofApplesProcessors;
#else
inline constexpr AlignmentNumbers AlignmentNumbersHere = AlignmentNumbers::ofOthers;
#endif

Integer platformAlignment(ui::TextAlignment alignment, AlignmentNumbers numbers = AlignmentNumbersHere);

// `opacity` is from 0 for invisible to 1.
Retained attributedText(const ui::StyledText& text, double opacity = 1);

} // namespace kestrune::mac
