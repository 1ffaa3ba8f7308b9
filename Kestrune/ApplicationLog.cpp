#include "Kestrune/ApplicationLog.h"

#include "platform/Bundle.h"

namespace kestrune {

Log applicationLog(std::string_view category) {
    return Log(Bundle::mainBundle().bundleIdentifier().value_or(""), category);
}

} // namespace kestrune
