// Which window lies in front of which.
#pragma once

namespace kestrune::gnustep {

void installWindowOrder();

} // namespace kestrune::gnustep
