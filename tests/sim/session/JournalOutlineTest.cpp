#include "sim/session/JournalOutline.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

TEST(JournalOutline, LeavesOutWhatBuildsMenusOrReadsDisplays) {
    for (const char* line :
         {"+[NSMenuItem separatorItem]", "-[NSMenuItem setEnabled:] false", "-[NSMenu addItem:] Quit",
          "-[NSMenu init]", "-[NSBundle localizedStringForKey:value:table:] Quit", "NSBundle.mainBundle",
          "NSScreen.screens -> 2", "-[NSScreen frame]", "CGDisplayCreateUUIDFromDisplayID(1)",
          "CFUUIDCreateString(uuid)", "CFRelease(string)", "CFRelease(uuid)"}) {
        EXPECT_TRUE(isDetail(line)) << line;
    }
}

TEST(JournalOutline, KeepsTheStepsOfAProcedure) {
    for (const char* line :
         {"", "NSApp", "-[NSStatusItem setMenu:] 10 items", "-[NSApplication setMainMenu:] 2 items",
          "-[MenuBarController menuWillOpen:]", "-[NSBundle bundleIdentifier]", "CFRelease(tap)",
          "AXIsProcessTrusted() -> true", "-[NSUserDefaults stringForKey:] pinnedScreenUUID",
          "a line about -[NSMenu init]"}) {
        EXPECT_FALSE(isDetail(line)) << line;
    }
}

} // namespace
} // namespace kestrune::sim
