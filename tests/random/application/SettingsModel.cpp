#include "tests/random/application/SettingsModel.h"

#include <cstdio>
#include <variant>

namespace kestrune::simulate {

namespace {

std::string appVersion(const BundleFacts& facts) {
    return textIn(facts.version).value_or("?") + " (" + textIn(facts.build).value_or("?") + ")";
}

// Every other byte than those that the rules for query items leave as they are.
std::string queryText(const std::string& text) {
    constexpr std::string_view Plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                                       "-._~!$'()*+,;:@/?";
    std::string result;
    for (const char character : text) {
        if (Plain.find(character) != std::string_view::npos) {
            result += character;
            continue;
        }
        char encoded[4];
        std::snprintf(encoded, sizeof encoded, "%%%02X",
                      static_cast<unsigned int>(static_cast<unsigned char>(character)));
        result += encoded;
    }
    return result;
}

} // namespace

std::optional<std::string> textIn(const std::optional<sim::PropertyList>& value) {
    const auto* text = value ? std::get_if<std::string>(&value->value) : nullptr;
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

std::vector<std::string> settingsTexts(const BundleFacts& facts, const Translations& translations) {
    std::string line = translated(translations, "Kestrune %@");
    line.replace(line.find("%@"), 2, appVersion(facts));
    std::vector<std::string> lines{translated(translations, "Launch at login"), line};
    if (const auto copyright = textIn(facts.copyright)) {
        lines.push_back(*copyright);
    }
    return lines;
}

std::string bugReportLink(const BundleFacts& facts, const Translations& translations,
                          std::string_view address) {
    const std::string system = std::to_string(facts.system.majorVersion) + "." +
                               std::to_string(facts.system.minorVersion) + "." +
                               std::to_string(facts.system.patchVersion);
    const std::string body = translated(translations, "Describe what went wrong:") +
                             "\n\n\n---\nApp version: " + appVersion(facts) + "\nmacOS: " + system +
                             "\nLocale: " + facts.locale;
    return "mailto:" + std::string(address) +
           "?subject=" + queryText(translated(translations, "Kestrune bug report")) +
           "&body=" + queryText(body);
}

} // namespace kestrune::simulate
