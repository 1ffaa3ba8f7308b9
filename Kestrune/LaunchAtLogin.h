// The application as a login item.
#pragma once

namespace kestrune {

// Whether the system starts the application when its user logs in. Only `enabled` counts: an item that waits
// for the user's approval is off. Main thread.
bool isLaunchedAtLogin();

// Brings the login item to that state, and asks the system for nothing when it is in it already. False when
// the system has refused, which is logged and shown to nobody. Main thread.
bool setLaunchAtLogin(bool isWanted);

} // namespace kestrune
