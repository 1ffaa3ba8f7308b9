#include "platform/WindowController.h"

#include "sim/seam/ObjectCounterpart.h"
#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/Windows.h"

namespace kestrune {

void WindowController::initWithWindow(const Window& window) {
    sim::recordCall("-[", className(), " initWithWindow:]");
    counterpart_ = std::make_unique<Counterpart>();
    window_ = window;
    sim::current<sim::Windows>().registerController(className(), sourcePath());
}

} // namespace kestrune
