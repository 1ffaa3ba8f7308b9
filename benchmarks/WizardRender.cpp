// kestrune-wizard-render [--renders N]: from a change of the wizard's model to its new scene, with the
// simulation's measurer. Fails when that takes a millisecond or when memory grows with the renderings.
#include "Kestrune/Preferences.h"
#include "Kestrune/WelcomeWindowController.h"
#include "benchmarks/AllocationCounter.h"
#include "benchmarks/CountArgument.h"
#include "platform/Application.h"
#include "sim/Session.h"

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

// The wizard on screen, whose permission comes and goes.
class FlickeringWizard {
public:
    FlickeringWizard() : session_(options()) {
        Application::sharedApplication();
        controller_ = WelcomeWindowController::make(
            std::make_shared<Preferences>(UserDefaults::standardUserDefaults()), [] {});
        controller_->show();
        session_.advance(sim::Duration::zero());
    }

    void render() {
        auto& isTrusted = controller_->model()->isAccessibilityTrusted;
        isTrusted = !isTrusted;
        session_.advance(sim::Duration::zero());
    }

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
};

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

int measure(std::size_t renders) {
    FlickeringWizard wizard;
    const ui::Scene first = wizard.scene();
    wizard.render();
    const bool isDifferent = wizard.scene() != first;
    std::vector<double> times(renders - renders % 2); // so that the last scene is the one before
    const std::size_t before = liveAllocationCount();
    const std::size_t allocationsBefore = allocationCount();
    for (double& time : times) {
        const auto start = Clock::now();
        wizard.render();
        time = Microseconds(Clock::now() - start).count();
    }
    const std::size_t growth = liveAllocationCount() - before;
    const double typical = median(times);
    std::printf(
        "%zu renderings of the wizard: %.1f us each, %.0f allocations each, %zu more alive afterwards\n",
        renders, typical,
        static_cast<double>(allocationCount() - allocationsBefore) / static_cast<double>(renders), growth);
    if (typical >= LongestRender) {
        std::fputs("FAIL: a rendering of the wizard takes a millisecond or longer\n", stderr);
    }
    if (!isDifferent) {
        std::fputs("FAIL: the wizard does not look different, so nothing was measured\n", stderr);
    }
    if (growth != 0) {
        std::fputs("FAIL: renderings of the wizard leave allocations behind\n", stderr);
    }
    return typical < LongestRender && growth == 0 && isDifferent ? 0 : 1;
}

} // namespace

} // namespace kestrune::benchmarks

int main(int count, char** arguments) {
    const std::span<char*> all(arguments, static_cast<std::size_t>(count));
    const auto renders = kestrune::benchmarks::countFrom(all.subspan(1), "--renders", 10'000);
    if (!renders || *renders < 2) {
        std::fputs("usage: kestrune-wizard-render [--renders N], with N from 2 on\n", stderr);
        return 2;
    }
    return kestrune::benchmarks::measure(*renders);
}
