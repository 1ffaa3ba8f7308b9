#include "platform/Locale.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune {

// Asked for with each call, as the user may have changed it.
Locale Locale::currentLocale() { return {}; }

std::string Locale::localeIdentifier() const {
    const mac::Pool pool;
    const id locale = mac::foundation.locale.currentLocale();
    return mac::textOf(mac::foundation.locale.localeIdentifier(locale));
}

} // namespace kestrune
