// Which images are templates.
#pragma once

#include "mac/objc/Runtime.h"

namespace kestrune::gnustep {

void installTemplateImages();

bool isTemplateImage(id image);

} // namespace kestrune::gnustep
