#include "platform/AccessibilityTrust.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Accessibility.h"
#include "sim/services/Current.h"

namespace kestrune {

bool isProcessTrusted() {
    const bool trusted = sim::current<sim::Accessibility>().readsAsTrusted();
    sim::recordCall("AXIsProcessTrusted() -> ", trusted);
    return trusted;
}

bool isProcessTrustedWithOptions(const TrustOptions& options) {
    const bool trusted = sim::current<sim::Accessibility>().readsAsTrusted();
    sim::recordCall("AXIsProcessTrustedWithOptions({kAXTrustedCheckOptionPrompt: ", options.prompt, "}) -> ",
                    trusted);
    if (options.prompt && !trusted) {
        sim::current<sim::Accessibility>().askUser();
    }
    return trusted;
}

} // namespace kestrune
