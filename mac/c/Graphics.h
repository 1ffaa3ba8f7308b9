// AppKit's functions for drawing.
//
// Source: AppKit, NSGraphics.h.
#pragma once

#include "base/Geometry.h"

// NOLINTBEGIN(readability-identifier-naming): the names are the platform's.
extern "C" {

// `operation` is an NSCompositingOperation.
void NSRectFillUsingOperation(kestrune::Rect area, unsigned long operation);

} // extern "C"
// NOLINTEND(readability-identifier-naming)
