// Whether the platform has what the binding calls, with the signatures that the binding believes in.
#pragma once

#include "mac/vocabulary/Vocabulary.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace kestrune::mac {

struct SelfCheckResult {
    std::size_t classes = 0;  // declared, but for those below
    std::size_t messages = 0; // of classes and of protocols that are there

    // Names of classes whose framework is not loaded. Nothing is known of their methods.
    std::vector<std::string> classesNotLoaded;

    // Names of protocols that are not there. Nobody needs them, and nothing is known of their methods.
    std::vector<std::string> protocolsNotThere;

    // Methods of newer systems than this one.
    std::vector<std::string> laterMethods;

    // Each names a class, or a method and its encodings. A protocol stands between angle brackets. Of a
    // missing class every method is missing, too.
    std::vector<std::string> missingClasses;
    std::vector<std::string> missingMethods;
    std::vector<std::string> differences;

    bool isClean() const { return missingClasses.empty() && missingMethods.empty() && differences.empty(); }
};

// Holds every declared class, protocol and message of the frameworks against the runtime.
SelfCheckResult checkVocabulary(std::span<const Framework* const> frameworks = Frameworks);

// Logs an error for each of the latter three, which is the one that its use would log, but for the methods of
// a missing class. On the main thread.
void logWhatDiffers(std::span<const Framework* const> frameworks = Frameworks);

} // namespace kestrune::mac
