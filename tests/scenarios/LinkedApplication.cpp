#include "Kestrune/KestruneApp.h"
#include "tests/scenarios/LaunchedApplication.h"

namespace kestrune::scenarios {

struct LaunchedApplication::State {
    std::shared_ptr<KestruneApp> delegate;
};

LaunchedApplication::LaunchedApplication(contract::World& world) : state_(std::make_unique<State>()) {
    world.launch([this] { state_->delegate = runKestrune(); });
    world.runMainQueue();
}

// The guard lives as long as its process, and the next story is told in this one.
LaunchedApplication::~LaunchedApplication() { state_->delegate->dockGuard()->stop(); }

} // namespace kestrune::scenarios
