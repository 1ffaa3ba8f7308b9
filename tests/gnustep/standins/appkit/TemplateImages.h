// Which images are templates.
#pragma once

namespace kestrune::gnustep {

void installTemplateImages();

} // namespace kestrune::gnustep
