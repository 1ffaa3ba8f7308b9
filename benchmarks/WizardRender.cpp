// kestrune-wizard-render [--renders N | --untimed N]: from a change of the wizard's model to its new scene,
// with the simulation's measurer. Fails when that takes a millisecond, unless it is not to be timed, and when
// memory grows with the renderings.
#include "Kestrune/Preferences.h"
#include "Kestrune/WelcomeWindowController.h"
#include "benchmarks/AllocationCounter.h"
#include "benchmarks/CountArgument.h"
#include "benchmarks/Quantile.h"
#include "platform/Application.h"
#include "sim/session/Session.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <span>
#include <vector>

namespace kestrune::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr double LongestRender = 1000; // microseconds

// The wizard on screen, page after page.
class TurningWizard {
public:
    TurningWizard() : session_(options()) {
        Application::sharedApplication();
        controller_ = WelcomeWindowController::make(
            std::make_shared<Preferences>(UserDefaults::standardUserDefaults()), [] {});
        controller_->show();
        session_.advance(sim::Duration::zero());
    }

    // Shows the next of its pages: the introduction, the wish for the permission, the wait for it, the end.
    void render() {
        WelcomeViewModel& model = *controller_->model();
        page_ = (page_ + 1) % PageCount;
        model.currentStep =
            page_ == 0 ? WelcomeViewModel::Step::intro : WelcomeViewModel::Step::accessibility;
        model.hasRequestedPermission = page_ >= 2;
        model.isAccessibilityTrusted = page_ == 3;
        session_.advance(sim::Duration::zero());
    }

    static constexpr std::size_t PageCount = 4;

    const ui::Scene& scene() { return sim::Windows::sceneOf(*session_.windows().shown().front()); }

private:
    static sim::SessionOptions options() {
        sim::SessionOptions result;
        result.permission = sim::Permission::switchedOff;
        result.recordJournal = false;
        return result;
    }

    sim::Session session_;
    std::shared_ptr<WelcomeWindowController> controller_;
    std::size_t page_ = 1; // as it opens without the permission
};

// Whether each page looks different from the one before; otherwise nothing would be measured.
bool turnsPages(TurningWizard& wizard) {
    for (std::size_t page = 0; page < TurningWizard::PageCount; ++page) {
        const ui::Scene before = wizard.scene();
        wizard.render();
        if (wizard.scene() == before) {
            return false;
        }
    }
    return true;
}

int measure(std::uint64_t renders, bool isTimed) {
    TurningWizard wizard;
    const bool isDifferent = turnsPages(wizard);
    // Whole rounds, so that the last page is the first one again.
    std::vector<double> times(std::max<std::size_t>(renders / TurningWizard::PageCount, 1) *
                              TurningWizard::PageCount);
    const auto before = static_cast<std::ptrdiff_t>(liveAllocationCount());
    const std::size_t allocationsBefore = allocationCount();
    for (double& time : times) {
        const auto start = Clock::now();
        wizard.render();
        time = Microseconds(Clock::now() - start).count();
    }
    const std::size_t allocations = allocationCount() - allocationsBefore;
    const std::ptrdiff_t growth = static_cast<std::ptrdiff_t>(liveAllocationCount()) - before;
    const double slow = quantile(times, 0.99);
    std::printf("%zu renderings of the wizard's four pages: median %.1f us, 99 %% within %.1f us, "
                "%.0f allocations each, %td more alive afterwards\n",
                times.size(), quantile(times, 0.5), slow,
                static_cast<double>(allocations) / static_cast<double>(times.size()), growth);
    const bool isTooSlow = isTimed && slow >= LongestRender;
    if (isTooSlow) {
        std::fputs("FAIL: a rendering of the wizard takes a millisecond or longer\n", stderr);
    }
    if (!isDifferent) {
        std::fputs("FAIL: a page of the wizard looks like the one before\n", stderr);
    }
    if (growth != 0) {
        std::fputs("FAIL: renderings of the wizard change the number of allocations\n", stderr);
    }
    return !isTooSlow && growth == 0 && isDifferent ? 0 : 1;
}

} // namespace

} // namespace kestrune::benchmarks

// NOLINTNEXTLINE(bugprone-exception-escape): without memory there is nothing to measure.
int main(int count, char** arguments) {
    return kestrune::benchmarks::measureAsAsked({arguments, static_cast<std::size_t>(count)}, "--renders",
                                                10'000, kestrune::benchmarks::measure);
}
