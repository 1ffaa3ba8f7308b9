// Holds the binding's vocabulary against the platform that this process runs on. Fails and names
// every difference, or prints how much there was to check.
//
// What belongs to a framework that is not loaded is left out, and named. With the path of a framework as an
// argument that one is loaded first, and then nothing may be left out.
#include "mac/objc/SelfCheck.h"

#include "mac/ReportedError.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace kestrune;

bool loadFramework(const char* path) {
    const id framework = mac::foundation.bundle.bundleWithPath(mac::nsString(path).get());
    if (framework == nullptr) {
        std::fprintf(stderr, "There is no framework at %s.\n", path);
        return false;
    }
    id error = nullptr;
    const BOOL isLoaded = mac::foundation.bundle.loadAndReturnError(framework, &error);
    if (const auto failure = mac::errorUnless(isLoaded, error)) {
        std::fprintf(stderr, "%s is not loaded: %s\n", path, failure->localizedDescription.c_str());
        return false;
    }
    return true;
}

void print(const char* what, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        std::fprintf(stderr, "%s %s\n", what, name.c_str());
    }
}

} // namespace

int main(int argc, char** argv) {
    const mac::Pool pool;
    const bool shouldBeComplete = argc > 1;
    if (shouldBeComplete && !loadFramework(argv[1])) {
        return EXIT_FAILURE;
    }
    const auto result = mac::checkVocabulary();
    for (const std::string& name : result.classesNotLoaded) {
        std::fprintf(stderr, "The class %s is not loaded; it is left out.\n", name.c_str());
    }
    for (const std::string& name : result.protocolsNotThere) {
        std::fprintf(stderr, "No image that is loaded has the protocol %s; it is left out.\n", name.c_str());
    }
    if (shouldBeComplete && !result.classesNotLoaded.empty()) {
        return EXIT_FAILURE;
    }
    print("There is no class", result.missingClasses);
    print("There is no method", result.missingMethods);
    print("There is another encoding of", result.differences);
    if (!result.isClean()) {
        return EXIT_FAILURE;
    }
    std::printf("%zu classes and %zu messages are as the binding expects them\n", result.classes,
                result.messages);
}
