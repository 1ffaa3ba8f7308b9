#include "ui/ControlMetrics.h"

namespace kestrune::ui {

Size switchSize(ControlSize size) {
    switch (size) {
    case ControlSize::mini:
        return {26, 15};
    case ControlSize::small:
        return {32, 18};
    case ControlSize::regular:
    case ControlSize::large:
        break;
    }
    return {38, 22};
}

} // namespace kestrune::ui
