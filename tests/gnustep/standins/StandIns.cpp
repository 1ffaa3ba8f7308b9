#include "tests/gnustep/standins/StandIns.h"

#include "mac/objc/Pool.h"
#include "tests/gnustep/standins/ActivationPolicy.h"
#include "tests/gnustep/standins/Deallocation.h"
#include "tests/gnustep/standins/MainBundle.h"
#include "tests/gnustep/standins/MainQueue.h"
#include "tests/gnustep/standins/OpenedURLs.h"
#include "tests/gnustep/standins/OtherProcesses.h"
#include "tests/gnustep/standins/Screens.h"
#include "tests/gnustep/standins/StatusItems.h"
#include "tests/gnustep/standins/TemplateImages.h"
#include "tests/gnustep/standins/TimerBlocks.h"
#include "tests/gnustep/standins/WeakReferences.h"

namespace kestrune::gnustep {

void installStandIns() {
    const mac::Pool pool;
    installOtherProcesses();
    installDeallocation();
    installWeakReferences();
    installActivationPolicy();
    installMainBundle();
    installMainQueue();
    installOpenedURLs();
    installScreens();
    installStatusItems();
    installTemplateImages();
    installTimerBlocks();
}

} // namespace kestrune::gnustep
