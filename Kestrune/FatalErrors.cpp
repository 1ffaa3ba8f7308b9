#include "Kestrune/FatalErrors.h"

#include "Kestrune/ApplicationLog.h"
#include "base/Fatal.h"
#include "platform/CrashReport.h"

namespace kestrune {

void reportFatalErrors() {
    setFatalErrorReporter([log = applicationLog("app")](const std::string& line) {
        setCrashReportMessage(line);
        log.error(LogFormat::of<"%{public}s">(), line);
    });
}

} // namespace kestrune
