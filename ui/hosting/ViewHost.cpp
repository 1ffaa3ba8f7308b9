#include "ui/hosting/ViewHost.h"

#include <utility>

namespace kestrune::ui {

ViewHost::ViewHost(RootView root, LayoutContext context, std::function<void()> schedule)
    : root_(std::move(root)), context_(std::move(context)), schedule_(std::move(schedule)) {
    // Before the first scene, so that a model that changes while it is read is rendered again.
    if (root_.model) {
        observation_ = root_.model->observe([this] {
            if (!isScheduled_) {
                isScheduled_ = true;
                schedule_();
            }
        });
    }
    render();
}

bool ViewHost::render() {
    isScheduled_ = false;
    Rendering next = layOut(root_.body(), {}, context_);
    const bool looksDifferent = next.scene != rendering_.scene;
    rendering_ = std::move(next);
    return looksDifferent;
}

// The action runs as a copy, and nothing of the host is touched after it: it may render the host or destroy
// it.
void ViewHost::press(std::size_t action) {
    if (action < rendering_.actions.size()) {
        const std::function<void()> running = rendering_.actions[action];
        if (running) {
            running();
        }
    }
}

void ViewHost::flip(std::size_t action, bool isOn) {
    if (action < rendering_.switches.size()) {
        const std::function<void(bool)> running = rendering_.switches[action];
        if (running) {
            running(isOn);
        }
    }
}

} // namespace kestrune::ui
