// Who says that macOS has what GNUstep's runtime does not confirm.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kestrune::gnustep {

// A row of PlatformSources.tsv, as far as a program is interested.
struct PlatformSource {
    std::string kind;
    std::string name;
    std::optional<int> system; // the first macOS that has it, if that is known
    int release = 0;           // the first of GNUstep's that has it, as release() counts them; 0 if none has
};

const std::vector<PlatformSource>& platformSources();

// The names of a kind that this release of GNUstep lacks.
std::vector<std::string> missingInGNUstep(const std::string& kind);

// The first macOS that has something, if it is listed and that is known.
std::optional<int> firstSystem(const std::string& name);

} // namespace kestrune::gnustep
