#include "tests/gnustep/standins/StandIns.h"

#include "mac/objc/Pool.h"
#include "tests/gnustep/standins/Accessibility.h"
#include "tests/gnustep/standins/Activation.h"
#include "tests/gnustep/standins/ActivationPolicy.h"
#include "tests/gnustep/standins/CollectionBehavior.h"
#include "tests/gnustep/standins/ContentViewControllers.h"
#include "tests/gnustep/standins/ControlMetrics.h"
#include "tests/gnustep/standins/Deallocation.h"
#include "tests/gnustep/standins/FocusRing.h"
#include "tests/gnustep/standins/LabelInsets.h"
#include "tests/gnustep/standins/LastWindow.h"
#include "tests/gnustep/standins/LocalizedCase.h"
#include "tests/gnustep/standins/LoginItem.h"
#include "tests/gnustep/standins/MainBundle.h"
#include "tests/gnustep/standins/MainQueue.h"
#include "tests/gnustep/standins/OpenedURLs.h"
#include "tests/gnustep/standins/OperatingSystem.h"
#include "tests/gnustep/standins/OtherProcesses.h"
#include "tests/gnustep/standins/Protocols.h"
#include "tests/gnustep/standins/Screens.h"
#include "tests/gnustep/standins/Sparkle.h"
#include "tests/gnustep/standins/StatusItems.h"
#include "tests/gnustep/standins/SwitchClicks.h"
#include "tests/gnustep/standins/Symbols.h"
#include "tests/gnustep/standins/SystemColors.h"
#include "tests/gnustep/standins/SystemFonts.h"
#include "tests/gnustep/standins/TemplateImages.h"
#include "tests/gnustep/standins/TimerBlocks.h"
#include "tests/gnustep/standins/WeakReferences.h"
#include "tests/gnustep/standins/WindowFrames.h"
#include "tests/gnustep/standins/WindowOrder.h"

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
