// Stubs of libraries: one more takes nothing from those before it; what is accepted has symbols for
// processors that its text names and for no other; what is refused is refused in one line that names the
// file.
#include "tests/fuzz/MachRefusal.h"
#include "tests/macho/TextStubs.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kestrune {
namespace {

using namespace macho;

constexpr std::string_view Library = "/usr/lib/libSystem.B.dylib";
constexpr std::string_view Symbol = "_kept";

// What may be a name, as far as names have none of these in them.
std::vector<std::string> wordsOf(const std::string& text) {
    constexpr std::string_view Between = " \t\r\n'\",:[]{}";
    std::vector<std::string> words;
    std::size_t end = 0;
    for (std::size_t start = 0; (start = text.find_first_not_of(Between, end)) != std::string::npos;) {
        end = std::min(text.find_first_of(Between, start), text.size());
        words.push_back(text.substr(start, end - start));
    }
    return words;
}

// By the words, without a reader of YAML.
void checkProcessors(const TextStubs& stubs, const std::string& text) {
    const std::vector<std::string> words = wordsOf(text);
    for (const Processor processor : {Processor::arm64, Processor::x86_64}) {
        const std::string target = std::string(nameOf(processor)) + "-macos";
        // Behind a backslash a letter may stand as a number.
        if (text.find(target) != std::string::npos || text.find('\\') != std::string::npos) {
            continue;
        }
        for (const std::string& library : words) {
            for (const std::string& symbol : words) {
                require(symbol == Symbol || !stubs.has(library, symbol, processor),
                        "symbols are for processors that are named");
            }
        }
    }
}

void check(const std::string& text) {
    TextStubs stubs;
    stubs.add("{install-name: " + std::string(Library) + ", exports: [{targets: [arm64-macos], symbols: [" +
                  std::string(Symbol) + "]}]}",
              "kept");
    attempt([&] {
        stubs.add(text, MachInput);
        checkProcessors(stubs, text);
    });
    require(stubs.has(Library, Symbol, Processor::arm64), "a symbol stays where it is");
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kestrune::check(kestrune::asText(data, size));
    return 0;
}
