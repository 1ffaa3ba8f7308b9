#include "platform/WindowController.h"

#include "mac/ObjectCounterpart.h"
#include "mac/objc/Pool.h"

#include <memory>

namespace kestrune {

void WindowController::initWithWindow(const Window& window) {
    const mac::Pool pool;
    counterpart_ = std::make_unique<Counterpart>(*this, window);
    window_ = window;
}

} // namespace kestrune
