// What becomes of what the application asks the system for.
#pragma once

namespace kestrune::gnustep {

// Tells the changes since the last time: the status of the login item, the activation policy, the URLs that
// were opened, what the updater was asked for.
void watchSystem();

} // namespace kestrune::gnustep
