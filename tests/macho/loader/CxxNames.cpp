#include "tests/macho/loader/CxxNames.h"

#include <cxxabi.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace kestrune::macho {

namespace {

// Namespaces within std, one after the length of its name: the library's own, and that of Strings.cpp.
constexpr std::string_view OfLibrary = "St3__1";
constexpr std::string_view OfStrings = "St7__apple";

// What of the library's own namespace has nothing to do with strings.
constexpr std::array<std::string_view, 3> WithoutStrings = {"12__next_prime", "14__shared_count",
                                                            "19__shared_weak_count"};

std::string demangled(const std::string& name) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(
        abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status), std::free);
    return text != nullptr ? text.get() : "";
}

// The parts of a function's name, without arguments of templates and functions; none for anything else.
std::vector<std::string> partsOf(std::string_view text) {
    std::vector<std::string> parts(1);
    int depth = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char character = text[place];
        depth += character == '<' ? 1 : 0;
        if (depth == 0 && character == '(') {
            return parts;
        }
        if (depth == 0 && text.substr(place).starts_with("::")) {
            parts.emplace_back();
            ++place;
        } else if (depth == 0) {
            parts.back() += character;
        }
        depth -= character == '>' ? 1 : 0;
    }
    return {};
}

} // namespace

bool givesItsObject(const std::string& name) {
    const std::vector<std::string> parts = partsOf(demangled(name));
    if (parts.size() < 2) {
        return false;
    }
    const std::string& own = parts.back();
    return own.starts_with('~') || own == parts.at(parts.size() - 2);
}

bool mayHaveStrings(const std::string& name) {
    return name.find(OfLibrary) != std::string::npos &&
           std::none_of(WithoutStrings.begin(), WithoutStrings.end(),
                        [&](std::string_view part) { return name.find(part) != std::string::npos; });
}

std::string withStringsOfApple(const std::string& name) {
    std::string result = name;
    for (std::size_t place = result.find(OfLibrary); place != std::string::npos;
         place = result.find(OfLibrary, place + OfStrings.size())) {
        result.replace(place, OfLibrary.size(), OfStrings);
    }
    return result;
}

} // namespace kestrune::macho
