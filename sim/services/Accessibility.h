// The Accessibility pane's row for the application, what the system makes of it, and how the user is asked.
//
// Source: docs/MAC_FACTS.md, "Accessibility trust".
#pragma once

#include "sim/services/StandingFaults.h"

#include <functional>
#include <string_view>
#include <utility>

namespace kestrune::sim {

enum class Permission {
    notListed,   // the application has no row
    switchedOff, // the row is there, its switch off
    granted,
    rowDeleted, // the row was removed after a grant: the process still reads as trusted, but taps are refused
    stale,      // the switch is on for an older build: not trusted, taps are refused
};

// What the user may do at the dialog.
enum class DialogAnswer { openSettings, deny };

class Accessibility {
public:
    // Where System Settings shows the pane.
    static constexpr std::string_view PaneAddress =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

    // `faults` must outlive this. `systemInFront` is called when the system's dialog or its settings have
    // come to the front (true), and when the user has put them away (false).
    Accessibility(Permission permission, const StandingFaults& faults,
                  std::function<void(bool isInFront)> systemInFront = {})
        : permission_(permission), faults_(faults), systemInFront_(std::move(systemInFront)) {}

    Permission permission() const { return permission_; }

    // What AXIsProcessTrusted answers.
    bool readsAsTrusted() const;

    // Whether active taps of the application are waited for in good order.
    bool allowsActiveTaps() const { return permission_ == Permission::granted; }

    // Whether CGEventTapCreate makes one.
    bool allowsTapCreation() const { return !faults_.refusesTapCreation && allowsActiveTaps(); }

    // The application asked for something that needs the permission: it gets a row, switched off.
    void listApplication();

    // The same, and the system's own dialog tells the user.
    void askUser();

    // System Settings shows the pane.
    void showPane();

    // What the user sees: the system's dialog, and System Settings with the pane. The row, while there is
    // one, has a switch.
    bool isDialogShown() const { return isDialogShown_; }
    bool isPaneShown() const { return isPaneShown_; }
    bool isListed() const;
    bool isSwitchedOn() const;

    // Where the user's actions arrive: an answer to the dialog, the pane put away, another state of the row.
    void answerDialog(DialogAnswer answer);
    void closePane();
    void setPermission(Permission permission) { permission_ = permission; }

    // The application's process has ended; only that process still read as trusted after its row was removed.
    void processEnded();

private:
    void tell(bool isInFront) const;

    Permission permission_;
    const StandingFaults& faults_;
    std::function<void(bool isInFront)> systemInFront_;
    bool isDialogShown_ = false;
    bool isPaneShown_ = false;
};

} // namespace kestrune::sim
