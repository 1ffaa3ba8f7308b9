#include "tests/gnustep/suites/PlatformSources.h"

#include "base/Fatal.h"
#include "tests/gnustep/harness/Release.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <sstream>

namespace kestrune::gnustep {

namespace {

constexpr std::size_t Columns = 7;

// Empty for what does not begin with a number.
std::optional<int> numberIn(const std::string& text) {
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

PlatformSource sourceIn(const std::string& line) {
    std::istringstream stream(line);
    std::vector<std::string> columns;
    for (std::string column; std::getline(stream, column, '\t');) {
        columns.push_back(column);
    }
    const std::optional<int> release = columns.size() == Columns ? numberIn(columns[6]) : std::nullopt;
    if (columns.size() != Columns || (!release && columns[6] != "no")) {
        fatal("No row of PlatformSources.tsv: " + line);
    }
    return {columns[0], columns[1], numberIn(columns[3]), release.value_or(0)};
}

} // namespace

const std::vector<PlatformSource>& platformSources() {
    static const std::vector<PlatformSource> sources = [] {
        std::ifstream file(KESTRUNE_PLATFORM_SOURCES);
        std::vector<PlatformSource> read;
        for (std::string line; std::getline(file, line);) {
            if (!line.starts_with('#')) {
                read.push_back(sourceIn(line));
            }
        }
        return read;
    }();
    return sources;
}

std::vector<std::string> missingInGNUstep(const std::string& kind) {
    const int running = release();
    std::vector<std::string> names;
    for (const PlatformSource& source : platformSources()) {
        if (source.kind == kind && (source.release == 0 || running < source.release)) {
            names.push_back(source.name);
        }
    }
    return names;
}

std::optional<int> firstSystem(const std::string& name) {
    const auto& sources = platformSources();
    const auto found = std::find_if(sources.begin(), sources.end(),
                                    [&name](const PlatformSource& source) { return source.name == name; });
    return found != sources.end() ? found->system : std::nullopt;
}

} // namespace kestrune::gnustep
