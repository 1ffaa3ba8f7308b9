#include "Kestrune/AppVersion.h"

#include "platform/Bundle.h"

namespace kestrune {

std::string appVersionString() {
    const Bundle bundle = Bundle::mainBundle();
    const std::string version = bundle.infoDictionaryString("CFBundleShortVersionString").value_or("?");
    const std::string build = bundle.infoDictionaryString("CFBundleVersion").value_or("?");
    return version + " (" + build + ")";
}

} // namespace kestrune
