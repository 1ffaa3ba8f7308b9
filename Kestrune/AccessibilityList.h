// Getting the application into the list of the Accessibility pane.
#pragma once

namespace kestrune {

// Asks for an active event tap and throws it away: the system lists an application that asked, so that the
// user finds it in the pane and only has to switch it on. Main thread.
void registerForAccessibilityList();

} // namespace kestrune
