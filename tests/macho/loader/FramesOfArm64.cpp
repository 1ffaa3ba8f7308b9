// Source: LLVM, include/mach-o/compact_unwind_encoding.h; Arm, DWARF for the Arm 64-bit Architecture.
#include "tests/macho/loader/Frames.h"

#include <array>

namespace kestrune::macho {

namespace arm64 {
namespace {

enum Mode : std::uint32_t { nothing = 0, withoutFramePointer = 2, inDwarf = 3, withFramePointer = 4 };

constexpr std::uint8_t FramePointer = 29;
constexpr std::uint8_t LinkRegister = 30;
constexpr std::uint8_t StackPointer = 31;

// Two registers one after the other, which are saved together when the bit is set.
struct Pair {
    unsigned bit;
    std::uint8_t first;
};

// x19 to x28, and the halves of v8 to v15 that a function keeps for its caller.
constexpr std::array<Pair, 9> Pairs = {
    {{0, 19}, {1, 21}, {2, 23}, {3, 25}, {4, 27}, {8, 72}, {9, 74}, {10, 76}, {11, 78}}};

// Downwards from so many words below the frame's end.
void addPairs(Frame& frame, std::uint32_t encoding, std::uint32_t words) {
    for (const Pair& pair : Pairs) {
        if (bitsOf(encoding, pair.bit, 1) != 0) {
            frame.saved.push_back({pair.first, words++});
            frame.saved.push_back({static_cast<std::uint8_t>(pair.first + 1), words++});
        }
    }
}

std::optional<Frame> frameOf(const Bytes& image, const UnwoundFunction& function) {
    switch (bitsOf(function.encoding, 24, 4)) {
    case nothing:
    case inDwarf:
        return std::nullopt;
    case withFramePointer: {
        Frame frame{FramePointer, 2 * Frame::WordSize, {{FramePointer, 2}, {LinkRegister, 1}}};
        addPairs(frame, function.encoding, 3);
        return frame;
    }
    case withoutFramePointer: { // the size counts in what the stack pointer moves by
        Frame frame{StackPointer, 2 * Frame::WordSize * bitsOf(function.encoding, 12, 12), {}};
        addPairs(frame, function.encoding, 1);
        return frame;
    }
    default:
        refuseEncoding(image, function.encoding);
    }
}

} // namespace
} // namespace arm64

FrameRules frameRulesOfArm64() { return {arm64::LinkRegister, {arm64::StackPointer, 0, {}}, arm64::frameOf}; }

} // namespace kestrune::macho
