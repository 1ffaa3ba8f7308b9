// What images and status items are in the simulation.
#pragma once

#include "platform/StatusBar.h"
#include "sim/services/LiveObject.h"

#include <memory>
#include <optional>
#include <string>

namespace kestrune {

struct Image::State {
    std::string name;
    std::string file; // empty when nobody has to draw it
    bool isTemplate = false;
    std::optional<Size> size = std::nullopt; // points; as the file says unless set
};

struct StatusBarButton::State {
    std::optional<Image> image;
    ImageScaling scaling = ImageScaling::proportionallyDown;
    std::string toolTip;
};

struct StatusItem::State {
    double length = 0;
    std::shared_ptr<StatusBarButton::State> button; // null when the system made none
    std::optional<Menu> menu;
    sim::LiveObject object{"status item", sim::LiveObject::Release::unrecorded};
};

} // namespace kestrune
