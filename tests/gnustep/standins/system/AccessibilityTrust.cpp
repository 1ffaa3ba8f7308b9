// The Accessibility permission.
//
// This is what we believe the Mac does, and no proof of it: a deleted row still reads as trusted, a row of an
// older build does not; whoever asks with a prompt is listed, and the user is asked; and an attempt at an
// active tap lists the application as well.
#include "tests/gnustep/standins/system/AccessibilityTrust.h"

#include "mac/c/Quartz.h"
#include "tests/gnustep/standins/system/CoreFoundation.h"

namespace kestrune::gnustep {

using contract::Trust;

namespace {

constexpr char PromptKey = 0;

void listApplication() {
    if (accessibilityRow().trust == Trust::notListed) {
        accessibilityRow().trust = Trust::switchedOff;
    }
}

} // namespace

AccessibilityRow& accessibilityRow() {
    static AccessibilityRow row;
    return row;
}

bool mayHaveActiveTap() {
    listApplication();
    return accessibilityRow().trust == Trust::granted;
}

extern "C" {

CFStringRef kAXTrustedCheckOptionPrompt = reinterpret_cast<CFStringRef>(&PromptKey);

unsigned char AXIsProcessTrusted() {
    const Trust trust = accessibilityRow().trust;
    return trust == Trust::granted || trust == Trust::rowDeleted ? 1 : 0;
}

unsigned char AXIsProcessTrustedWithOptions(CFDictionaryRef options) {
    const unsigned char isTrusted = AXIsProcessTrusted();
    if (isTrusted == 0 && valueOfKey(options, kAXTrustedCheckOptionPrompt) == kCFBooleanTrue) {
        listApplication();
        accessibilityRow().isDialogShown = true;
    }
    return isTrusted;
}

} // extern "C"

} // namespace kestrune::gnustep
