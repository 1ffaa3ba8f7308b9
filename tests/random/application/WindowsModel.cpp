#include "tests/random/application/WindowsModel.h"

#include <algorithm>

namespace kestrune::simulate {

std::vector<WindowsModel::Window> WindowsModel::shown() const {
    std::vector<Window> result = ordered_;
    std::erase_if(result, [this](const Window& window) { return window->hides && !isActive_; });
    std::stable_partition(result.begin(), result.end(),
                          [](const Window& window) { return window->isFloating; });
    return result;
}

WindowsModel::Window WindowsModel::key() const {
    if (!isActive_ || ordered_.empty()) {
        return nullptr;
    }
    return wanted_ && wanted_->isVisible ? wanted_ : shown().front();
}

void WindowsModel::setActive(bool isActive) {
    const Window before = key();
    isActive_ = isActive;
    tellNewKey(before);
}

WindowsModel::Window WindowsModel::add(WindowModel window) {
    all_.push_back(std::make_shared<WindowModel>(std::move(window)));
    return all_.back();
}

void WindowsModel::makeKeyAndOrderFront(const Window& window) {
    const Window before = key();
    orderFront(window);
    wanted_ = window;
    tellNewKey(before);
}

void WindowsModel::orderFront(const Window& window) {
    std::erase(ordered_, window);
    ordered_.insert(ordered_.begin(), window);
    window->isVisible = true;
}

void WindowsModel::orderOut(const Window& window) {
    const Window before = key();
    std::erase(ordered_, window);
    window->isVisible = false;
    tellNewKey(before);
}

void WindowsModel::click(const Window& window) {
    const Window before = key();
    isActive_ = true;
    orderFront(window);
    wanted_ = window;
    tellNewKey(before);
}

void WindowsModel::remove(const Window& window) {
    std::erase(ordered_, window);
    std::erase(all_, window);
    if (wanted_ == window) {
        wanted_ = nullptr;
    }
}

void WindowsModel::tellNewKey(const Window& before) {
    if (const Window now = key(); now && now != before) {
        becameKey_(*now);
    }
}

} // namespace kestrune::simulate
