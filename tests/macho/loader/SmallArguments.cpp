// Source: Apple, Writing ARM64 Code for Apple Platforms; Arm Architecture Reference Manual, SBFM, UBFM and
// AND; Apple, Objective-C Runtime Programming Guide, Type Encodings.
#include "tests/macho/loader/SmallArguments.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrune::macho {

namespace {

constexpr std::uint32_t RegistersForArguments = 8; // of either kind

// Fills the register 0 from its own lower bits.
struct Filling {
    char type;
    std::uint32_t instruction;
};
constexpr std::array<Filling, 5> Fillings = {{{'B', 0x12000000},   // and w0, w0, #1
                                              {'C', 0x53001C00},   // uxtb w0, w0
                                              {'S', 0x53003C00},   // uxth w0, w0
                                              {'c', 0x13001C00},   // sxtb w0, w0
                                              {'s', 0x13003C00}}}; // sxth w0, w0

std::uint32_t withRegister(std::uint32_t instruction, std::uint32_t number) {
    return instruction | number << 5 | number;
}

std::size_t sizeOfFirst(std::string_view types) {
    if (types.starts_with('^')) {
        return 1 + sizeOfFirst(types.substr(1));
    }
    std::size_t size = 0;
    int depth = 0;
    do {
        if (size == types.size()) {
            return size;
        }
        depth += types[size] == '{' ? 1 : 0;
        depth -= types[size] == '}' ? 1 : 0;
        ++size;
    } while (depth > 0);
    return size;
}

// Numbers of one kind, each in a register of its own: as many as the type has, or none.
std::uint32_t floatingPointNumbersIn(std::string_view type) {
    if (!type.starts_with('{')) {
        return type == "d" || type == "f" ? 1 : 0;
    }
    std::string_view parts = type.substr(std::min(type.find('='), type.size() - 1) + 1);
    std::uint32_t count = 0;
    while (!parts.empty() && parts != "}") {
        const std::string_view part = parts.substr(0, sizeOfFirst(parts));
        const std::uint32_t inPart = floatingPointNumbersIn(part);
        if (inPart == 0 || part == "f") {
            return 0;
        }
        count += inPart;
        parts.remove_prefix(part.size());
    }
    return count <= 4 ? count : 0;
}

} // namespace

std::optional<std::vector<std::uint32_t>> instructionsThatFill(std::string_view encoding) {
    constexpr std::string_view Large = "@#:*^iIqQ";
    std::vector<std::uint32_t> instructions;
    std::uint32_t inVectors = 0;
    std::uint32_t general = 0;
    for (std::string_view rest = encoding.substr(sizeOfFirst(encoding)); !rest.empty();) {
        const std::string_view type = rest.substr(0, sizeOfFirst(rest));
        rest.remove_prefix(type.size());
        const auto* const filling = std::find_if(
            Fillings.begin(), Fillings.end(), [&](const Filling& one) { return one.type == type.front(); });
        if (const std::uint32_t numbers = floatingPointNumbersIn(type); numbers != 0) {
            inVectors += numbers;
        } else if (filling != Fillings.end()) {
            instructions.push_back(withRegister(filling->instruction, general++));
        } else if (Large.find(type.front()) != std::string_view::npos) {
            ++general;
        } else {
            return std::nullopt;
        }
    }
    if (general > RegistersForArguments || inVectors > RegistersForArguments) {
        return std::nullopt;
    }
    return instructions;
}

} // namespace kestrune::macho
