// The parts of the screen of a session with two displays and the application, launched with its setup
// complete.
#pragma once

#include "desk/live/world/ScreenParts.h"
#include "replay/ApplicationHost.h"
#include "replay/StoredChoices.h"
#include "tests/desk/live/WindowTitles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::desk {

class PartsFixture : public testing::Test {
protected:
    static constexpr DeskTarget Icon = DeskTarget::statusItem(0, 0);
    static constexpr DeskTarget IconOnTwo = DeskTarget::statusItem(1, 0);

    // How long the pointer rests until the tool tip comes.
    static constexpr sim::Duration Rest = std::chrono::milliseconds(1200);

    // The menu that opens first is the one that was built at launch, before the setup was noted.
    PartsFixture() {
        session.user().openMenu(sim::StatusItemIndex{0});
        session.user().closeMenu();
    }

    static sim::SessionOptions options() {
        sim::SessionOptions result;
        result.displays = {sim::makeDisplay(1, "One", {0, 0, 1000, 800}),
                           sim::makeDisplay(2, "Two", {1000, 0, 1000, 800})};
        result.bundle.images["AppIcon"] = "icon.png";
        return result;
    }

    PartsOutcome click(const DeskTarget& target) {
        parts.press(target);
        return parts.release(target);
    }

    // Of the frontmost window that has it; fails when none does.
    DeskTarget control(std::string_view title) {
        const auto target = controlTitled(picture(), title);
        EXPECT_TRUE(target) << title;
        return target.value_or(DeskTarget());
    }

    std::vector<std::string> titles() { return titlesIn(picture()); }

    // Fails when there is none of that title.
    WindowPicture window(std::string_view title) {
        const DeskPicture shown = picture();
        const WindowPicture* const found = windowTitled(shown, title);
        EXPECT_NE(found, nullptr) << title;
        return found != nullptr ? *found : WindowPicture();
    }

    // Both fail when the open menu has no such row.
    DeskTarget row(std::string_view title) {
        return rowWhere([title](const sim::MenuRow& row) { return row.title.find(title) < 3; });
    }
    DeskTarget separator() {
        return rowWhere([](const sim::MenuRow& row) { return row.isSeparator; });
    }

    DeskPicture picture() {
        DeskPicture result;
        parts.addTo(result);
        return result;
    }

    std::optional<std::string> highlightedTitle() {
        const DeskPicture shown = picture();
        for (const MenuRowPicture& row : shown.menu ? shown.menu->rows : std::vector<MenuRowPicture>()) {
            if (row.highlighted) {
                return row.title;
            }
        }
        return std::nullopt;
    }

    std::string storedChoice() {
        return replay::StoredChoices(session.defaults()).pinnedScreenUUID().value_or("");
    }

    // As one of the application's windows does when it opens.
    void makeRegular() {
        session.application().policy = ActivationPolicy::regular;
        session.application().isActive = true;
    }

    sim::Session session{options()};
    replay::ApplicationHost host{session};
    ScreenParts parts{session};

private:
    template <typename Predicate>
    DeskTarget rowWhere(Predicate isMeant) {
        const auto rows = session.menus().rows();
        const auto found = std::find_if(rows.begin(), rows.end(), isMeant);
        EXPECT_NE(found, rows.end());
        return DeskTarget::menuRow(static_cast<std::size_t>(found - rows.begin()));
    }
};

} // namespace kestrune::desk
