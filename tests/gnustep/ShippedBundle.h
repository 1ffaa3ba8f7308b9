// The application's own bundle, as it is shipped.
#pragma once

#include "tests/contract/World.h"

namespace kestrune::gnustep {

// The entries of Info.plist that are texts, the texts in English and the images. The pictures' own pixels are
// left out.
contract::BundleFiles shippedBundle();

} // namespace kestrune::gnustep
