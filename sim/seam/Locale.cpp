#include "platform/Locale.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/Surroundings.h"

namespace kestrune {

Locale Locale::currentLocale() {
    sim::recordCall("NSLocale.currentLocale");
    return {};
}

std::string Locale::localeIdentifier() const {
    sim::recordCall("-[NSLocale localeIdentifier]");
    return sim::current<const sim::Surroundings>().localeIdentifier;
}

} // namespace kestrune
