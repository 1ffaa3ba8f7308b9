#include "platform/AccessibilityTrust.h"

#include "sim/Session.h"

namespace kestrune {

bool isProcessTrusted() {
    sim::Session& session = sim::Session::current();
    const bool trusted = session.accessibility().readsAsTrusted();
    session.journal().record("AXIsProcessTrusted() -> ", trusted);
    return trusted;
}

} // namespace kestrune
