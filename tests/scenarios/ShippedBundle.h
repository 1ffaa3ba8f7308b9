// The application's own bundle, as it is shipped; each implementation reads it in its own way.
#pragma once

#include "tests/contract/World.h"

namespace kestrune::scenarios {

// The entries of Info.plist that are texts, the texts in English and the images. The pictures' own pixels are
// left out.
contract::BundleFiles shippedBundle();

} // namespace kestrune::scenarios
