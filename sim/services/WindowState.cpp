#include "sim/services/WindowState.h"

namespace kestrune {

Rect Window::State::contentRect() const {
    return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height - titleBarHeight()};
}

void Window::State::setContentSize(Size size) {
    const double top = frame.maxY();
    frame.size = {size.width, size.height + titleBarHeight()};
    frame.origin.y = top - frame.size.height;
}

} // namespace kestrune
