// The Accessibility pane's row for the application, what the system makes of it, and how the user is asked.
//
// Source: docs/MAC_FACTS.md, "Accessibility trust".
#pragma once

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

class Accessibility {
public:
    // Where System Settings shows the pane.
    static constexpr std::string_view PaneAddress =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

    // `systemInFront` is called when the system's dialog or its settings have come to the front (true), and
    // when the user has put them away (false).
    explicit Accessibility(Permission permission, std::function<void(bool isInFront)> systemInFront = {})
        : permission_(permission), systemInFront_(std::move(systemInFront)) {}

    Permission permission() const { return permission_; }
    void setPermission(Permission permission) { permission_ = permission; }

    // Fault: a grant is in force, but the process does not read as trusted yet.
    void delayTrust(bool delay) { isTrustDelayed_ = delay; }

    // What AXIsProcessTrusted answers.
    bool readsAsTrusted() const;

    // Whether active taps of the application are waited for in good order.
    bool allowsActiveTaps() const { return permission_ == Permission::granted; }

    // Fault: CGEventTapCreate refuses although the permission is there.
    void refuseTapCreation(bool refuse) { refusesTapCreation_ = refuse; }
    bool allowsTapCreation() const { return !refusesTapCreation_ && allowsActiveTaps(); }

    // The application asked for something that needs the permission: it gets a row, switched off.
    void listApplication();

    // The same, and the system's own dialog tells the user.
    void askUser();

    // The system's dialog: one button leads to the pane, the other only closes the dialog.
    bool isDialogShown() const { return isDialogShown_; }
    void openSettingsFromDialog();
    void denyInDialog();

    // System Settings with the pane. The row, while there is one, has a switch, and can be removed.
    bool isPaneShown() const { return isPaneShown_; }
    void showPane();
    void closePane();
    bool isListed() const;
    bool isSwitchedOn() const;

    // A switch that is on for an older build has no effect; only removing the row helps.
    void flipSwitch();
    void removeRow();

    // The application's process has ended; only that process still read as trusted after its row was removed.
    void processEnded();

private:
    void tell(bool isInFront) const;

    Permission permission_;
    std::function<void(bool isInFront)> systemInFront_;
    bool isTrustDelayed_ = false;
    bool refusesTapCreation_ = false;
    bool isDialogShown_ = false;
    bool isPaneShown_ = false;
};

} // namespace kestrune::sim
