#include "tests/macho/loader/Frames.h"

namespace kestrune::macho {

const FrameRules& frameRulesOf(Processor processor) {
    static const FrameRules ofArm64 = frameRulesOfArm64();
    static const FrameRules ofX86 = frameRulesOfX86();
    return processor == Processor::arm64 ? ofArm64 : ofX86;
}

std::uint32_t bitsOf(std::uint32_t encoding, unsigned from, unsigned count) {
    return encoding >> from & ((1U << count) - 1);
}

void refuseEncoding(const Bytes& image, std::uint32_t encoding) {
    image.refuse("has a function with the encoding " + hexadecimal(encoding));
}

} // namespace kestrune::macho
