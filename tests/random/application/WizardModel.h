// The first-run wizard as it must be, worked out from the rules a second time and without its code.
#pragma once

#include "tests/random/application/MainThreadModel.h"
#include "tests/random/application/WindowsModel.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kestrune::simulate {

// All that a page of the wizard depends on.
struct WizardPage {
    bool isIntro = true;
    bool isTrusted = false;
    bool hasRequested = false;

    // The titles of its buttons, in order, and the one that Return presses; empty when there is none.
    std::vector<std::string> buttons() const;
    std::string defaultButton() const;

    // What it says of the permission; empty on the first page.
    std::string status() const;

    friend bool operator==(const WizardPage&, const WizardPage&) = default;
};

// The wizard's window and what it knows.
struct WizardModel {
    WizardPage page;
    WizardPage shownPage; // as it was laid out last
    bool isLayoutPending = false;
    std::uint64_t publications = 0; // of anything, since the window was made
    WindowsModel::Window window;
    std::shared_ptr<TimerModel> watcher;
};

} // namespace kestrune::simulate
