// The contents of a bundle from the folder that its resources are kept in.
#pragma once

#include "sim/formats/BundleContents.h"

#include <string>
#include <variant>

namespace kestrune::sim {

// `folder` has Info.plist, en.lproj/Localizable.strings (which may be missing, as the keys are the English
// texts) and images in PNG format, those for double density with "@2x" after the name. The error is one line
// that names the file.
std::variant<BundleContents, std::string> loadResourceFolder(const std::string& folder);

} // namespace kestrune::sim
