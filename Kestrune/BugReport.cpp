#include "Kestrune/BugReport.h"

#include "Kestrune/AppVersion.h"
#include "Kestrune/Localized.h"
#include "base/Fatal.h"
#include "platform/Locale.h"
#include "platform/ProcessInfo.h"
#include "platform/URLComponents.h"

#include <optional>
#include <vector>

namespace kestrune {

URL makeBugReportURL() {
    URLComponents components;
    components.setScheme("mailto");
    components.setPath(SupportAddress);
    std::vector<URLQueryItem> items;
    items.push_back({"subject", localized("Kestrune bug report")});
    items.push_back({"body", bugReportBody()});
    components.setQueryItems(items);
    const std::optional<URL> link = components.url();
    if (!link) {
        fatal("The link of the bug report is no URL.");
    }
    return *link;
}

std::string bugReportBody() {
    std::string body = localized("Describe what went wrong:");
    body += "\n\n\n---\nApp version: " + appVersionString();
    body += "\nmacOS: " + osVersionString();
    body += "\nLocale: " + Locale::currentLocale().localeIdentifier();
    return body;
}

std::string osVersionString() {
    const OperatingSystemVersion version = ProcessInfo::processInfo().operatingSystemVersion();
    return std::to_string(version.majorVersion) + "." + std::to_string(version.minorVersion) + "." +
           std::to_string(version.patchVersion);
}

} // namespace kestrune
