#include "sim/services/HostedView.h"

#include "sim/formats/BundleContents.h"
#include "sim/services/Current.h"
#include "sim/services/Journal.h"
#include "sim/services/MainThread.h"
#include "sim/services/WindowState.h"

#include <string>
#include <string_view>
#include <utility>

namespace kestrune::sim {

namespace {

// Of the letters that the user's language is likely to have: Latin, with the accents of Western Europe, and
// only where UTF-8 keeps the length.
std::string uppercase(std::string_view text) {
    std::string result(text);
    bool follows = false;
    for (char& byte : result) {
        const auto value = static_cast<unsigned char>(byte);
        const bool isAccented = follows && value >= 0xA0U && value <= 0xBEU && value != 0xB7U;
        if ((byte >= 'a' && byte <= 'z') || isAccented) {
            byte = static_cast<char>(value - 0x20U);
        }
        follows = value == 0xC3U;
    }
    return result;
}

std::string localized(std::string_view key) { return current<const BundleContents>().localized(key); }

ui::LayoutContext layoutContext() { return {current<const ui::Measurer>(), localized, uppercase}; }

// Who is to render: known only after the first description, which may change the model already.
struct Renderer {
    std::weak_ptr<HostedView> view;
};

} // namespace

std::shared_ptr<HostedView> HostedView::make(ui::RootView root) {
    const auto renderer = std::make_shared<Renderer>();
    // A turn of the run loop later; never after the view is gone.
    auto view = std::make_shared<HostedView>(std::move(root), [renderer] {
        current<MainThread>().enqueue([renderer] {
            if (const auto alive = renderer->view.lock()) {
                alive->render();
            }
        });
    });
    renderer->view = view;
    return view;
}

HostedView::HostedView(ui::RootView root, std::function<void()> schedule)
    : host_(std::move(root), layoutContext(), std::move(schedule)) {}

void HostedView::enter(const std::shared_ptr<Window::State>& window) {
    window_ = window;
    window->setContentSize(host_.scene().size);
}

void HostedView::setFollowed(bool isFollowed) {
    isFollowed_ = isFollowed;
    fitWindow();
}

void HostedView::render() {
    if (host_.render()) {
        current<Journal>().record("the view changed");
        fitWindow();
    }
}

void HostedView::fitWindow() const {
    const auto shownIn = window_.lock();
    if (shownIn && isFollowed_) {
        shownIn->setContentSize(host_.scene().size);
    }
}

} // namespace kestrune::sim
