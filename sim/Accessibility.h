// The Accessibility pane's row for the application, and what the system makes of it.
//
// Source: docs/MAC_FACTS.md, "Accessibility trust".
#pragma once

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
    explicit Accessibility(Permission permission) : permission_(permission) {}

    Permission permission() const { return permission_; }
    void setPermission(Permission permission) { permission_ = permission; }

    // What AXIsProcessTrusted answers.
    bool readsAsTrusted() const;

    // Whether active taps of the application can be created and are waited for in good order.
    bool allowsActiveTaps() const { return permission_ == Permission::granted; }

private:
    Permission permission_;
};

} // namespace kestrune::sim
