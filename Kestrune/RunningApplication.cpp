#include "Kestrune/RunningApplication.h"

#include "base/Fatal.h"

#include <optional>

namespace kestrune {

Application runningApplication() {
    const std::optional<Application> application = Application::nsApp();
    if (!application) {
        fatal("There is no shared application.");
    }
    return *application;
}

} // namespace kestrune
