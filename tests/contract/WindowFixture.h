// An application with windows.
#pragma once

#include "platform/Application.h"
#include "platform/Window.h"
#include "tests/contract/RecordingWindows.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string_view>

namespace kestrune::contract {

class WindowFixture : public testing::Test {
protected:
    // To make an application active, or a window come out of the Dock.
    static constexpr double SecondsForTheSystem = 1;

    explicit WindowFixture(const BundleFiles& bundle = {}) : world_(bundle) {
        world_.launch([this] {
            application_ = Application::sharedApplication();
            application_->setActivationPolicy(ActivationPolicy::regular);
            application_->run();
        });
    }

    static Window makeWindow(std::string_view title,
                             WindowStyleMask style = WindowStyleMask::titled | WindowStyleMask::closable) {
        Window window(Rect(0, 0, 300, 120), style, BackingStoreType::buffered, false);
        window.setTitle(title);
        window.setReleasedWhenClosed(false);
        return window;
    }

    // With the user in front of it.
    void show(Window& window) {
        window.makeKeyAndOrderFront();
        world_.activateApplication();
        world_.runMainQueue();
    }

    std::vector<std::string> shownTitles() const {
        std::vector<std::string> titles;
        for (const ShownWindow& window : world_.shownWindows()) {
            titles.push_back(window.title);
        }
        return titles;
    }

    World world_;
    std::optional<Application> application_;
};

} // namespace kestrune::contract
