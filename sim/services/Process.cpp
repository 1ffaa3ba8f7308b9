#include "sim/services/Process.h"

namespace kestrune::sim {

void Process::startApplication() {
    if (!application_.exists) {
        application_.exists = true;
        application_.policy =
            bundle_.infoFlag("LSUIElement") ? ActivationPolicy::accessory : ActivationPolicy::regular;
    }
}

} // namespace kestrune::sim
