#include "platform/AccessibilityTrust.h"

#include "mac/c/Quartz.h"

namespace kestrune {

bool isProcessTrusted() { return AXIsProcessTrusted() != 0; }

bool isProcessTrustedWithOptions(const TrustOptions& options) {
    const void* key = kAXTrustedCheckOptionPrompt;
    const void* value = options.prompt ? kCFBooleanTrue : kCFBooleanFalse;
    const mac::CFOwned<CFDictionaryRef> dictionary(CFDictionaryCreate(kCFAllocatorDefault, &key, &value, 1,
                                                                      &kCFTypeDictionaryKeyCallBacks,
                                                                      &kCFTypeDictionaryValueCallBacks));
    return AXIsProcessTrustedWithOptions(dictionary.get()) != 0;
}

} // namespace kestrune
