#include "platform/AccessibilityTrust.h"

#include "sim/session/Session.h"

namespace kestrune {

bool isProcessTrusted() {
    sim::Session& session = sim::Session::current();
    const bool trusted = session.accessibility().readsAsTrusted();
    session.journal().record("AXIsProcessTrusted() -> ", trusted);
    return trusted;
}

bool isProcessTrustedWithOptions(const TrustOptions& options) {
    sim::Session& session = sim::Session::current();
    const bool trusted = session.accessibility().readsAsTrusted();
    session.journal().record("AXIsProcessTrustedWithOptions({kAXTrustedCheckOptionPrompt: ", options.prompt,
                             "}) -> ", trusted);
    if (options.prompt && !trusted) {
        session.accessibility().askUser();
    }
    return trusted;
}

} // namespace kestrune
