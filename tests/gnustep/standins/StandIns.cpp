#include "tests/gnustep/standins/StandIns.h"

#include "mac/objc/Pool.h"
#include "tests/gnustep/standins/appkit/Accessibility.h"
#include "tests/gnustep/standins/appkit/Activation.h"
#include "tests/gnustep/standins/appkit/ActivationPolicy.h"
#include "tests/gnustep/standins/appkit/CollectionBehavior.h"
#include "tests/gnustep/standins/appkit/ContentViewControllers.h"
#include "tests/gnustep/standins/appkit/ControlMetrics.h"
#include "tests/gnustep/standins/appkit/FocusRing.h"
#include "tests/gnustep/standins/appkit/LabelInsets.h"
#include "tests/gnustep/standins/appkit/LastWindow.h"
#include "tests/gnustep/standins/appkit/Screens.h"
#include "tests/gnustep/standins/appkit/StatusItems.h"
#include "tests/gnustep/standins/appkit/SwitchClicks.h"
#include "tests/gnustep/standins/appkit/Symbols.h"
#include "tests/gnustep/standins/appkit/SystemColors.h"
#include "tests/gnustep/standins/appkit/SystemFonts.h"
#include "tests/gnustep/standins/appkit/TemplateImages.h"
#include "tests/gnustep/standins/appkit/WindowFrames.h"
#include "tests/gnustep/standins/appkit/WindowOrder.h"
#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Protocols.h"
#include "tests/gnustep/standins/runtime/TimerBlocks.h"
#include "tests/gnustep/standins/runtime/WeakReferences.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/LocalizedCase.h"
#include "tests/gnustep/standins/system/LoginItem.h"
#include "tests/gnustep/standins/system/MainBundle.h"
#include "tests/gnustep/standins/system/MainQueue.h"
#include "tests/gnustep/standins/system/OpenedURLs.h"
#include "tests/gnustep/standins/system/OperatingSystem.h"
#include "tests/gnustep/standins/system/OtherProcesses.h"

namespace kestrune::gnustep {

void installStandIns() {
    const mac::Pool pool;
    installOtherProcesses();
    installDeallocation();
    installWeakReferences();
    installAccessibility();
    installDelegateProtocols();
    installWindowFrames();
    installWindowOrder();
    installActivation();
    installActivationPolicy();
    installCollectionBehavior();
    installContentViewControllers();
    installControlMetrics();
    installFocusRing();
    installLabelInsets();
    installLastWindow();
    installLocalizedCase();
    installLoginItem();
    installMainBundle();
    installMainQueue();
    installOpenedURLs();
    installOperatingSystem();
    installScreens();
    installSparkle();
    installStatusItems();
    installSymbols();
    installSwitchClicks();
    installSystemColors();
    installSystemFonts();
    installTemplateImages();
    installTimerBlocks();
}

} // namespace kestrune::gnustep
