// The whole application in front of a user with two displays.
#pragma once

#include "Kestrune/KestruneApp.h"
#include "tests/contract/World.h"
#include "tests/scenarios/ShippedBundle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace kestrune::gnustep {

inline const std::string LeftUUID = "37D8832A-2D66-02CA-B9F7-8F3000000001";
inline const std::string RightUUID = "37D8832A-2D66-02CA-B9F7-8F3000000002";

inline contract::ConnectedDisplay left() { return {1, "Left", {0, 0, 1512, 982}, LeftUUID, std::int64_t{1}}; }

inline contract::ConnectedDisplay right() {
    return {2, "Right", {1512, 0, 1920, 1080}, RightUUID, std::int64_t{2}};
}

// "✓" when marked, "(disabled)" when not to be chosen; "---" for a separator.
inline std::string textOf(const contract::ShownRow& row) {
    if (row.isSeparator) {
        return "---";
    }
    const std::string text = row.state == ControlState::on ? "✓" + row.title : row.title;
    return row.isEnabled ? text : text + " (disabled)";
}

class ApplicationFixture : public testing::Test {
protected:
    explicit ApplicationFixture(contract::Trust trust = contract::Trust::granted)
        : world_(scenarios::shippedBundle()) {
        world_.connect({left(), right()});
        world_.setTrust(trust);
    }

    ~ApplicationFixture() override {
        if (app_) {
            app_->dockGuard()->stop();
        }
    }

    void launch() {
        world_.launch([this] { app_ = runKestrune(); });
        world_.runMainQueue();
    }

    std::vector<std::string> menu() {
        std::vector<std::string> texts;
        for (const contract::ShownRow& row : world_.statusMenuRows()) {
            texts.push_back(textOf(row));
        }
        return texts;
    }

    // The first row that contains the text.
    std::size_t rowWith(const std::string& text) {
        const std::vector<std::string> rows = menu();
        const auto row = std::find_if(rows.begin(), rows.end(), [&](const std::string& title) {
            return title.find(text) != std::string::npos;
        });
        EXPECT_NE(row, rows.end()) << text;
        return static_cast<std::size_t>(row - rows.begin());
    }

    void choose(const std::string& text) { world_.chooseInStatusMenu(rowWith(text)); }

    contract::World world_;
    std::shared_ptr<KestruneApp> app_;
};

} // namespace kestrune::gnustep
