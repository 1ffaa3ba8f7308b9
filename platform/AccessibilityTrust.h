// The Accessibility permission of this process (System Settings, Privacy & Security, Accessibility).
//
// Source: ApplicationServices, HIServices/AXUIElement.h.
#pragma once

namespace kestrune {

// AXIsProcessTrusted(). Without it an active event tap cannot be created. A grant is normally visible at the
// next call; after the application's row is deleted (not switched off) the answer can stay true.
bool isProcessTrusted();

// The entries of the dictionary for AXIsProcessTrustedWithOptions.
struct TrustOptions {
    bool prompt = false; // kAXTrustedCheckOptionPrompt
};

// AXIsProcessTrustedWithOptions(). With `prompt`, and without the permission, the application is listed in
// the Accessibility pane and the system shows its own dialog; neither is waited for.
bool isProcessTrustedWithOptions(const TrustOptions& options);

} // namespace kestrune
