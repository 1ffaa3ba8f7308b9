#include "sim/session/System.h"

#include "base/Fatal.h"

#include <utility>

namespace kestrune::sim {

System::System(SessionOptions options)
    : updateSupply{.framework = options.updateFramework},
      journal(options.recordJournal),
      accessibility(options.permission, faults, [this](bool isInFront) { systemCameForward(isInFront); }),
      displays(std::move(options.displays)),
      dock(displays, options.dockDwell),
      defaults(std::move(options.defaults)),
      bundle(std::move(options.bundle)),
      surroundings(std::move(options.surroundings)),
      process(application, bundle, [this] { endProcess(); }),
      updates(updateSupply, bundle, mainThread, windows, journal),
      measurer(options.measurer != nullptr ? *options.measurer : fixedAdvance) {}

System::~System() {
    setFatalErrorReporter({}); // the application's, which would call the platform
}

void System::tellOfDisabledTaps() {
    if (mainThread.isFree()) {
        taps.notify();
    }
}

// Whoever puts away what was in front comes back to the application, if it has something to show.
void System::systemCameForward(bool isInFront) {
    if (isInFront) {
        windows.setActive(false);
    } else if (application.policy == ActivationPolicy::regular && !windows.shown().empty()) {
        windows.setActive(true);
    }
}

void System::endProcess() {
    mainThread.clear();
    timers.clear();
    menus.close();
    observers.clear();
    statusItems.clear();
    windows.clear();
    updates.clear();
    process.objects().clear();
    taps.clear();
    sources.clear();
    accessibility.processEnded();
    application = {};
}

} // namespace kestrune::sim
