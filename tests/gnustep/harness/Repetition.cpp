#include "tests/gnustep/harness/Repetition.h"

#include "base/Fatal.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace kestrune::gnustep {

namespace {

// An exit status has no room for more.
constexpr int LargestCount = 100;

std::vector<std::string> namesOfTests() {
    std::vector<std::string> names;
    const testing::UnitTest& all = *testing::UnitTest::GetInstance();
    for (int suite = 0; suite < all.total_test_suite_count(); ++suite) {
        const testing::TestSuite& tests = *all.GetTestSuite(suite);
        for (int index = 0; index < tests.total_test_count(); ++index) {
            names.push_back(std::string(tests.name()) + "." + tests.GetTestInfo(index)->name());
        }
    }
    return names;
}

// Its exit status, or a negative number when a signal ended it.
int statusOf(pid_t process) {
    int status = 0;
    if (waitpid(process, &status, 0) != process) {
        fatal("A test's process was lost.");
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

pid_t forkOrStop() {
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process < 0) {
        fatal("No process can be made for a test.");
    }
    return process;
}

// Of a test that could not stop telling, the end.
void printContents(int file) {
    constexpr off_t Longest = 16384;
    lseek(file, std::max(off_t{0}, lseek(file, 0, SEEK_END) - Longest), SEEK_SET);
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = read(file, buffer.data(), buffer.size())) > 0;) {
        std::fwrite(buffer.data(), 1, static_cast<std::size_t>(count), stdout);
    }
}

bool passes(const std::string& test, int (*runTests)()) {
    const int output = memfd_create("output", 0);
    const pid_t process = forkOrStop();
    if (process == 0) {
        dup2(output, STDOUT_FILENO);
        dup2(output, STDERR_FILENO);
        GTEST_FLAG_SET(filter, test);
        std::exit(runTests()); // NOLINT(concurrency-mt-unsafe): the only thread
    }
    const int status = statusOf(process);
    if (status != 0) {
        std::printf("%s ended with %d:\n", test.c_str(), status);
        printContents(output);
    }
    close(output);
    return status == 0;
}

// How many tests failed; whoever asks GoogleTest to fail fast gets no further than the first.
int failuresOf(int runs, const std::vector<std::string>& tests, int (*runTests)()) {
    int failures = 0;
    for (int run = 0; run < runs; ++run) {
        for (const std::string& test : tests) {
            failures += passes(test, runTests) ? 0 : 1;
            if (failures > 0 && GTEST_FLAG_GET(fail_fast)) {
                return failures;
            }
        }
    }
    return failures;
}

} // namespace

int repeatSuite(int runs, int runsAtATime, int (*runTests)()) {
    const std::vector<std::string> tests = namesOfTests();
    std::vector<pid_t> workers;
    for (int worker = 0; worker < runsAtATime; ++worker) {
        const int share = runs / runsAtATime + (worker < runs % runsAtATime ? 1 : 0);
        const pid_t process = forkOrStop();
        if (process == 0) {
            const int failures = failuresOf(share, tests, runTests);
            std::fflush(nullptr);
            _exit(std::min(failures, LargestCount));
        }
        workers.push_back(process);
    }
    int failures = 0;
    for (const pid_t worker : workers) {
        const int status = statusOf(worker);
        failures += status < 0 ? LargestCount : status;
    }
    std::printf("%d runs of %zu tests, %d at a time: %d failures\n", runs, tests.size(), runsAtATime,
                failures);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace kestrune::gnustep
