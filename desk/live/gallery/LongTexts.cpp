#include "desk/live/gallery/LongTexts.h"

#include "desk/recording/Utf8.h"

#include <algorithm>
#include <string>

namespace kestrune::desk {

namespace {

// How much longer than an English text its translation is assumed to be. There is no translation yet; German
// and Finnish interface texts run about a third to a half longer than English ones.
constexpr double AssumedLengthening = 1.4;

// A longer text of the same kind: its words go on from the first, without the marks of bold text, and break
// off where it is long enough.
std::string lengthened(const std::string& text) {
    const auto wanted = static_cast<std::size_t>(AssumedLengthening * static_cast<double>(text.size()));
    std::string words = text;
    words.erase(std::remove(words.begin(), words.end(), '*'), words.end());
    std::string result = text;
    while (result.size() < wanted) {
        result += " " + words;
    }
    result.resize(wanted);
    // Half a character is not left over.
    while (firstInvalidUtf8(result)) {
        result.pop_back();
    }
    return result;
}

} // namespace

LiveDeskSetup withLongTexts(LiveDeskSetup setup) {
    for (auto& [key, text] : setup.bundle.localizedStrings) {
        text = lengthened(text);
    }
    return setup;
}

} // namespace kestrune::desk
