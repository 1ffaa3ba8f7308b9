#include "Kestrune/Localized.h"

#include "platform/Bundle.h"

namespace kestrune {

std::string localized(std::string_view key) { return Bundle::mainBundle().localizedString(key); }

} // namespace kestrune
