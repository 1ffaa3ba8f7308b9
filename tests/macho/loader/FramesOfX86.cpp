// Source: LLVM, include/mach-o/compact_unwind_encoding.h; System V ABI for x86-64, numbers of registers.
#include "tests/macho/loader/Frames.h"

#include <array>
#include <string>

namespace kestrune::macho {

namespace x86 {
namespace {

enum Mode : std::uint32_t {
    nothing = 0,
    withFramePointer = 1,
    withoutFramePointer = 2,
    withoutFramePointerSizeInCode = 3,
    inDwarf = 4
};

// None, rbx, r12, r13, r14, r15 and rbp, as the encodings count them.
constexpr std::array<std::uint8_t, 7> SavedRegisters = {0, 3, 12, 13, 14, 15, 6};
constexpr std::uint8_t FramePointer = 6;
constexpr std::uint8_t StackPointer = 7;
constexpr std::uint8_t ReturnAddress = 16;

// The order in which registers were saved is one number: which of those that remain comes next, digit by
// digit, and each digit has one value less than the one before.
std::vector<std::uint8_t> permutation(std::uint32_t count, std::uint32_t number) {
    std::array<std::uint32_t, 6> digits{};
    for (std::uint32_t place = count; place-- > 0;) {
        const std::uint32_t values = 6 - place;
        digits.at(place) = number % values;
        number /= values;
    }
    std::vector<std::uint8_t> remaining(SavedRegisters.begin() + 1, SavedRegisters.end());
    std::vector<std::uint8_t> order;
    for (std::uint32_t place = 0; place < count; ++place) {
        const auto next = remaining.begin() + digits.at(place);
        order.push_back(*next);
        remaining.erase(next);
    }
    return order;
}

Frame frameWithPointer(const Bytes& image, std::uint32_t encoding) {
    Frame frame{FramePointer, 2 * Frame::WordSize, {{FramePointer, 2}}};
    const std::uint32_t words = bitsOf(encoding, 16, 8);
    for (std::uint32_t slot = 0; slot < 5; ++slot) {
        const std::uint32_t reg = bitsOf(encoding, 3 * slot, 3);
        if (reg >= SavedRegisters.size()) {
            refuseEncoding(image, encoding);
        }
        if (reg != 0) {
            frame.saved.push_back({SavedRegisters.at(reg), 2 + words - slot});
        }
    }
    return frame;
}

// A large frame's size is in the instruction that makes it, and what the function pushed before comes on top.
std::uint32_t sizeInCode(const Bytes& image, const UnwoundFunction& function) {
    const std::uint64_t place = std::uint64_t{function.start} + bitsOf(function.encoding, 16, 8);
    return image.little<std::uint32_t>(place, "the size of a frame") +
           Frame::WordSize * bitsOf(function.encoding, 13, 3);
}

Frame frameWithoutPointer(const Bytes& image, std::uint32_t encoding, std::uint32_t size) {
    const std::uint32_t count = bitsOf(encoding, 10, 3);
    if (count > 6) {
        image.refuse("has a function with " + std::to_string(count) + " saved registers");
    }
    Frame frame{StackPointer, size, {}};
    std::uint32_t words = count + 1;
    for (const std::uint8_t reg : permutation(count, bitsOf(encoding, 0, 10))) {
        frame.saved.push_back({reg, words--});
    }
    return frame;
}

std::optional<Frame> frameOf(const Bytes& image, const UnwoundFunction& function) {
    const std::uint32_t encoding = function.encoding;
    switch (bitsOf(encoding, 24, 4)) {
    case nothing:
    case inDwarf:
        return std::nullopt;
    case withFramePointer:
        return frameWithPointer(image, encoding);
    case withoutFramePointer:
        return frameWithoutPointer(image, encoding, Frame::WordSize * bitsOf(encoding, 16, 8));
    case withoutFramePointerSizeInCode:
        return frameWithoutPointer(image, encoding, sizeInCode(image, function));
    default:
        refuseEncoding(image, encoding);
    }
}

} // namespace
} // namespace x86

FrameRules frameRulesOfX86() {
    return {
        x86::ReturnAddress, {x86::StackPointer, Frame::WordSize, {{x86::ReturnAddress, 1}}}, x86::frameOf};
}

} // namespace kestrune::macho
