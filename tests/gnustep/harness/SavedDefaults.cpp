#include "tests/gnustep/harness/SavedDefaults.h"

#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Send.h"

#include <array>
#include <cstdio>

namespace kestrune::gnustep {

namespace {

// A path with a space would be two libraries in LD_PRELOAD; it is one folder in LD_LIBRARY_PATH.
constexpr const char* HomeLibrary =
    "LD_LIBRARY_PATH=\"" KESTRUNE_HOME_LIBRARY_FOLDER "\" LD_PRELOAD=" KESTRUNE_HOME_LIBRARY;

struct Output {
    std::string text;
    bool isSuccess = false;
};

Output outputOf(const std::string& command) {
    std::FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        fatal("No process can be started for: " + command);
    }
    Output output;
    std::array<char, 256> buffer{};
    while (std::fgets(buffer.data(), buffer.size(), pipe) != nullptr) {
        output.text += buffer.data();
    }
    output.isSuccess = pclose(pipe) == 0;
    return output;
}

std::string nameOfProcess() {
    return mac::textOf(send(send(classObject("NSProcessInfo"), "processInfo"), "processName"));
}

} // namespace

std::optional<std::string> savedDefault(std::string_view key) {
    const mac::Pool pool;
    const id defaults = mac::foundation.userDefaults.standardUserDefaults();
    send<BOOL>(defaults, "synchronize");
    const Output output = outputOf(std::string(HomeLibrary) + " defaults read " + nameOfProcess() + " " +
                                   std::string(key) + " 2>/dev/null");
    // "domain key value", the value without quotes if it needs none.
    const std::string head = nameOfProcess() + " " + std::string(key) + " ";
    if (!output.isSuccess || !output.text.starts_with(head)) {
        return std::nullopt;
    }
    std::string value = output.text.substr(head.size());
    std::erase_if(value,
                  [](char character) { return character == '\n' || character == '"' || character == '\''; });
    return value;
}

} // namespace kestrune::gnustep
