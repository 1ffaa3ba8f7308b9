// The queue of the main thread.
#pragma once

namespace kestrune::gnustep {

void installMainQueue();

// How much has been dispatched to it so far, apart from what is for later.
unsigned dispatchedTasks();

} // namespace kestrune::gnustep
