#include "sim/session/Faults.h"

namespace kestrune::sim {

void Faults::disableTaps(EventType reason) {
    system_.taps.disableAll(reason);
    system_.tellOfDisabledTaps();
}

} // namespace kestrune::sim
