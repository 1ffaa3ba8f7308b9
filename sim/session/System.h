// What the application meets of a simulated Mac: its services, each handed those that it needs.
#pragma once

#include "sim/formats/BundleContents.h"
#include "sim/hardware/Displays.h"
#include "sim/hardware/Dock.h"
#include "sim/hardware/VirtualClock.h"
#include "sim/services/Accessibility.h"
#include "sim/services/ApplicationState.h"
#include "sim/services/Current.h"
#include "sim/services/DefaultsDomain.h"
#include "sim/services/Journal.h"
#include "sim/services/Links.h"
#include "sim/services/LiveObjects.h"
#include "sim/services/LogRecords.h"
#include "sim/services/LoginItem.h"
#include "sim/services/MainThread.h"
#include "sim/services/MenuTracking.h"
#include "sim/services/Observers.h"
#include "sim/services/Process.h"
#include "sim/services/RunLoopSources.h"
#include "sim/services/StandingFaults.h"
#include "sim/services/StatusItems.h"
#include "sim/services/Surroundings.h"
#include "sim/services/TapChain.h"
#include "sim/services/Timers.h"
#include "sim/services/UpdateSupply.h"
#include "sim/services/Updates.h"
#include "sim/services/Windows.h"
#include "sim/session/FixedAdvanceMeasurer.h"
#include "sim/session/SessionOptions.h"
#include "ui/layout/Layout.h"

#include <memory>

namespace kestrune::sim {

// Each service is declared after those that it is handed. All that the seam asks for are current while this
// lives.
struct System {
    explicit System(SessionOptions options);
    ~System();

    System(const System&) = delete;
    System& operator=(const System&) = delete;

    // The application's taps that the system has switched off get to know it, unless the main thread is busy.
    void tellOfDisabledTaps();

    StandingFaults faults;
    UpdateSupply updateSupply;
    Journal journal;
    VirtualClock clock;
    Accessibility accessibility;
    Displays displays;
    Dock dock; // not met: the application sees nothing of it
    DefaultsDomain defaults;
    TapChain taps;
    RunLoopSources sources;
    const BundleContents bundle;
    const Surroundings surroundings;
    LoginItem loginItem{faults};
    Links links{accessibility, faults};
    LogRecords log;
    ApplicationState application;
    Process process;
    Timers timers{clock};
    MainThread mainThread{clock, timers};
    Observers observers;
    StatusItems statusItems{faults};
    MenuTracking menus{application, statusItems, bundle, timers, journal};
    Windows windows{application, displays, observers, journal, faults};
    Updates updates;
    const FixedAdvanceMeasurer fixedAdvance;
    const ui::Measurer& measurer;
    const std::shared_ptr<LiveObjects> liveObjects = std::make_shared<LiveObjects>(journal);

private:
    void systemCameForward(bool isInFront);
    void endProcess();

    // The last one, so that nothing is found any more while the others go.
    AllCurrent<Journal, Accessibility, Displays, DefaultsDomain, TapChain, RunLoopSources,
               const BundleContents, const Surroundings, LoginItem, Links, LogRecords, ApplicationState,
               Process, Timers, MainThread, Observers, StatusItems, Windows, Updates, const ui::Measurer,
               LiveObjects>
        current_{journal,      accessibility, displays,    defaults, taps,        sources,  bundle,
                 surroundings, loginItem,     links,       log,      application, process,  timers,
                 mainThread,   observers,     statusItems, windows,  updates,     measurer, *liveObjects};
};

} // namespace kestrune::sim
