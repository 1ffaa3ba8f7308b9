#include "platform/WindowController.h"

#include "sim/seam/ObjectCounterpart.h"
#include "sim/session/Session.h"

namespace kestrune {

void WindowController::initWithWindow(const Window& window) {
    sim::Session& session = sim::Session::current();
    session.journal().record("-[", className(), " initWithWindow:]");
    counterpart_ = std::make_unique<Counterpart>();
    window_ = window;
    session.windows().registerController(className(), sourcePath());
}

} // namespace kestrune
