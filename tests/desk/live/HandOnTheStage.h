// A hand for tests that name the parts of the screen themselves.
#pragma once

#include "desk/live/gallery/Stage.h"

#include <optional>
#include <string>

namespace kestrune::desk {

class HandOnTheStage {
public:
    // `stage` must outlive the hand.
    explicit HandOnTheStage(Stage& stage) : stage_(stage) {}

    void pointAt(const DeskTarget& target) { stage_.pointAt(at(target)); }
    void click(const DeskTarget& target) { stage_.click(at(target)); }
    void openMenu() { stage_.click(statusItem(Role::main)); }
    void clickRow(const std::string& title) { stage_.click(menuRow(title)); }
    void clickControl(const std::string& title) { stage_.click(control(title)); }
    void closeWindow(const std::string& title) { stage_.click(closeButton(title)); }

    // What was not there.
    const std::optional<std::string>& missing() const { return stage_.missing(); }

private:
    static Thing at(const DeskTarget& target) {
        return {"a part of the screen", [target](Stage&) { return target; }};
    }

    Stage& stage_;
};

} // namespace kestrune::desk
