#include "ui/ControlMetrics.h"

namespace kestrune::ui {

Size switchSize(ControlSize size) {
    if (size == ControlSize::mini) {
        return {26, 15};
    }
    if (size == ControlSize::small) {
        return {32, 18};
    }
    return {38, 22};
}

} // namespace kestrune::ui
