// The names of the attributes that texts have.
//
// Source: AppKit, NSAttributedString.h.
#pragma once

#include "mac/vocabulary/Runtime.h"

// NOLINTBEGIN(readability-identifier-naming): the names are the platform's.
extern "C" {

extern const id NSFontAttributeName;
extern const id NSForegroundColorAttributeName;
extern const id NSParagraphStyleAttributeName;

} // extern "C"
// NOLINTEND(readability-identifier-naming)
