// Where labels have their texts.
#pragma once

namespace kestrune::gnustep {

void installLabelInsets();

} // namespace kestrune::gnustep
