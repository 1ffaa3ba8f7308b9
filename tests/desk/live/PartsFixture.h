// The parts of the screen of a session with two displays and the application, launched with its setup
// complete.
#pragma once

#include "desk/live/world/ScreenParts.h"
#include "desk/replay/ApplicationHost.h"
#include "desk/replay/StoredChoices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::desk {

class PartsFixture : public testing::Test {
protected:
    static constexpr StatusItemTarget Icon{0, 0};
    static constexpr StatusItemTarget IconOnTwo{1, 0};

    // How long the pointer rests until the tool tip comes.
    static constexpr sim::Duration Rest = std::chrono::milliseconds(1200);

    // The menu that opens first is the one that was built at launch, before the setup was noted.
    PartsFixture() {
        session.menus().open(sim::StatusItemIndex{0});
        session.menus().close();
    }

    static sim::SessionOptions options() {
        sim::SessionOptions result;
        result.displays = {sim::makeDisplay(1, "One", {0, 0, 100, 100}),
                           sim::makeDisplay(2, "Two", {100, 0, 100, 100})};
        return result;
    }

    PartsOutcome click(const DeskTarget& target) {
        parts.press(target);
        return parts.release(target);
    }

    // Both fail when the open menu has no such row.
    MenuRowTarget row(std::string_view title) {
        return rowWhere([title](const sim::MenuRow& row) { return row.title.find(title) < 3; });
    }
    MenuRowTarget separator() {
        return rowWhere([](const sim::MenuRow& row) { return row.isSeparator; });
    }

    DeskPicture picture() {
        DeskPicture result;
        result.displays.resize(session.displays().connected().size());
        parts.addTo(result, "icon.png");
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

    std::string storedChoice() { return StoredChoices(session.defaults()).pinnedScreenUUID().value_or(""); }

    // As one of the application's windows does when it opens.
    void makeRegular() {
        session.application().policy = ActivationPolicy::regular;
        session.application().isActive = true;
    }

    sim::Session session{options()};
    ApplicationHost host{session};
    ScreenParts parts{session};

private:
    template <typename Predicate>
    MenuRowTarget rowWhere(Predicate isMeant) {
        const auto rows = session.menus().rows();
        const auto found = std::find_if(rows.begin(), rows.end(), isMeant);
        EXPECT_NE(found, rows.end());
        return {static_cast<std::size_t>(found - rows.begin())};
    }
};

} // namespace kestrune::desk
