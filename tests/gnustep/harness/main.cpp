// Runs GoogleTest where GNUstep can be used: with a home of the process's own, on the tests' X server, and
// for a limited time. A list of the tests needs none of that.
#include "mac/objc/Pool.h"
#include "tests/gnustep/harness/Exceptions.h"
#include "tests/gnustep/harness/KnownDifferences.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/harness/Repetition.h"
#include "tests/gnustep/harness/TimeLimit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace {

constexpr unsigned SecondsForATest = 60;

// Of a server of somebody's own, or of the one that ends with the last of the tests that ask for it. Without
// either file the environment names the display.
void useTestDisplay() {
    const char* const own = std::getenv("KESTRUNE_DISPLAY_FILE");
    std::ifstream file(own != nullptr ? own : KESTRUNE_DISPLAY_FILE);
    std::string display;
    if (file >> display) {
        setenv("DISPLAY", display.c_str(), 1);
    }
}

int numberIn(const char* variable, int otherwise) {
    const char* const text = std::getenv(variable);
    return text != nullptr ? std::atoi(text) : otherwise;
}

int runTests() {
    kestrune::gnustep::limitTime(SecondsForATest);
    kestrune::gnustep::enterPrivateHome();
    kestrune::gnustep::reportExceptions();
    useTestDisplay();
    const kestrune::mac::Pool pool;
    return kestrune::gnustep::ranAsKnown(RUN_ALL_TESTS()) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

// With RUNS in the environment all tests run so often, AT_A_TIME of the runs at once. An argument that is not
// GoogleTest's would be a document for GNUstep to open.
int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const int runs = numberIn("RUNS", 0);
    return runs > 0 ? kestrune::gnustep::repeatSuite(runs, numberIn("AT_A_TIME", 1), runTests) : runTests();
}
