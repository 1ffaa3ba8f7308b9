// The Accessibility permission of this process (System Settings, Privacy & Security, Accessibility).
//
// Source: ApplicationServices, HIServices/AXUIElement.h.
#pragma once

namespace kestrune {

// AXIsProcessTrusted(). Without it an active event tap cannot be created. A grant is normally visible at the
// next call; after the application's row is deleted (not switched off) the answer can stay true.
bool isProcessTrusted();

} // namespace kestrune
