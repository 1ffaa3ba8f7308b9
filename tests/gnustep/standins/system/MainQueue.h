// The queue of the main thread.
#pragma once

namespace kestrune::gnustep {

void installMainQueue();

} // namespace kestrune::gnustep
