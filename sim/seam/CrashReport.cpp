#include "platform/CrashReport.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/Process.h"

namespace kestrune {

void setCrashReportMessage(const std::string& message) {
    sim::recordCall("crashreporter_annotations_t.message = ", message);
    sim::current<sim::Process>().setCrashReportMessage(message);
}

} // namespace kestrune
