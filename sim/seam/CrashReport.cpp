#include "platform/CrashReport.h"

#include "sim/session/Session.h"

namespace kestrune {

void setCrashReportMessage(const std::string& message) {
    sim::Session& session = sim::Session::current();
    session.journal().record("crashreporter_annotations_t.message = ", message);
    session.setCrashReportMessage(message);
}

} // namespace kestrune
