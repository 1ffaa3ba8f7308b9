// A status item on whose menu a test shows what it made.
#pragma once

#include "platform/Menu.h"
#include "platform/StatusBar.h"
#include "tests/contract/RecordingObjects.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::contract {

class MenuFixture : public testing::Test {
protected:
    // A menu that leaves the enabling of its items to the test.
    static Menu manualMenu() {
        Menu menu;
        menu.setAutoenablesItems(false);
        return menu;
    }

    static MenuItem itemFor(const std::weak_ptr<Object>& target, std::string_view title = "Item") {
        MenuItem item(title, Record, "");
        item.setTarget(target);
        return item;
    }

    // How the item's row looks in a menu of its own.
    ShownRow shown(const MenuItem& item, bool autoenables = false) {
        showAlone(item, autoenables);
        return world_.statusMenuRows().at(0);
    }

    // The user chooses the item in a menu of its own.
    void choose(const MenuItem& item, bool autoenables = false) {
        showAlone(item, autoenables);
        world_.chooseInStatusMenu(0);
    }

    static std::vector<std::string> titles(const std::vector<ShownRow>& rows) {
        std::vector<std::string> titles;
        for (const ShownRow& row : rows) {
            titles.push_back(row.title);
        }
        return titles;
    }

    World world_;
    Application application_ = Application::sharedApplication();
    StatusItem statusItem_ = StatusBar::systemStatusBar().statusItem(VariableStatusItemLength);
    std::shared_ptr<RecordingTarget> target_ = std::make_shared<RecordingTarget>();

private:
    // An item can be in one menu only, so each keeps the one that it is given first.
    void showAlone(const MenuItem& item, bool autoenables) {
        const auto [entry, isNew] = menus_.try_emplace(item.state());
        if (isNew) {
            entry->second.addItem(item);
        }
        entry->second.setAutoenablesItems(autoenables);
        statusItem_.setMenu(entry->second);
    }

    std::map<std::shared_ptr<MenuItem::State>, Menu> menus_;
};

} // namespace kestrune::contract
