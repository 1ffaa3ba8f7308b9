#include "tests/macho/loader/CallFrames.h"

#include <array>
#include <bit>
#include <cstring>
#include <string_view>
#include <utility>

namespace kestrune::macho {

namespace {

// Of the encodings for x86-64.
constexpr std::uint32_t ModeMask = 0x0F000000;
constexpr std::uint32_t NoMode = 0;
constexpr std::uint32_t WithFramePointer = 0x01000000; // the next mode, 2, is without one
constexpr std::uint32_t WithoutFramePointerSizeInCode = 0x03000000;
constexpr std::uint32_t InDwarf = 0x04000000;

// DWARF's numbers of none, rbx, r12, r13, r14, r15 and rbp, as the encodings count them.
constexpr std::array<std::uint8_t, 7> SavedRegisters = {0, 3, 12, 13, 14, 15, 6};
constexpr std::uint8_t FramePointer = 6;
constexpr std::uint8_t StackPointer = 7;
constexpr std::uint8_t ReturnAddress = 16;
constexpr std::uint32_t WordSize = 8;

// Instructions of call frames, and how pointers are encoded.
constexpr std::uint8_t DefineFrame = 0x0C;
constexpr std::uint8_t OffsetOfRegister = 0x80;
constexpr std::uint8_t Absolute = 0;

std::uint32_t bits(std::uint32_t value, unsigned from, unsigned count) {
    return value >> from & ((1U << count) - 1);
}

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

} // namespace

template <typename Number>
void CallFrames::put(Number number) {
    const auto bytes = std::bit_cast<std::array<std::uint8_t, sizeof(Number)>>(number);
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

// Seven bits in each byte, the low ones first.
void CallFrames::putLengthed(std::uint32_t number) {
    for (; number > 127; number >>= 7) {
        put(static_cast<std::uint8_t>(number | 128));
    }
    put(static_cast<std::uint8_t>(number));
}

// An entry begins with its length, which is known at its end.
std::size_t CallFrames::begin() {
    put(std::uint32_t{0});
    return bytes_.size() - sizeof(std::uint32_t);
}

void CallFrames::end(std::size_t start) {
    bytes_.resize((bytes_.size() + WordSize - 1) / WordSize *
                  WordSize); // zeros are instructions that do nothing
    const auto length = static_cast<std::uint32_t>(bytes_.size() - start - sizeof(std::uint32_t));
    std::memcpy(bytes_.data() + start, &length, sizeof(length));
}

std::size_t CallFrames::commonEntryFor(const std::optional<std::uint32_t>& personality) {
    if (const auto known = commonEntries_.find(personality); known != commonEntries_.end()) {
        return known->second;
    }
    const std::size_t start = begin();
    put(std::uint32_t{0}); // which says that it is a common entry
    put(std::uint8_t{1});  // version
    const std::string_view augmentation = personality ? "zPLR" : "zR";
    bytes_.insert(bytes_.end(), augmentation.begin(), augmentation.end());
    put(std::uint8_t{0});
    putLengthed(1);          // addresses count in bytes
    put(std::uint8_t{0x78}); // places on the stack in words downwards: -8 as it is written here
    put(ReturnAddress);
    if (personality) {
        const auto function = image_.little<std::uint64_t>(*personality, "the address of a personality");
        putLengthed(1 + sizeof(function) + 2);
        put(Absolute);
        put(function);
        put(Absolute);
    } else {
        putLengthed(1);
    }
    put(Absolute);
    frameIs(StackPointer, WordSize);
    isSaved(ReturnAddress, 1);
    end(start);
    return commonEntries_[personality] = start;
}

void CallFrames::frameIs(std::uint8_t reg, std::uint32_t distance) {
    put(DefineFrame);
    put(reg);
    putLengthed(distance);
}

// So many words below the frame.
void CallFrames::isSaved(std::uint8_t reg, std::uint32_t words) {
    put(static_cast<std::uint8_t>(OffsetOfRegister | reg));
    putLengthed(words);
}

std::uint64_t CallFrames::addressOf(std::uint32_t place) const {
    return std::bit_cast<std::uint64_t>(image_.all().data()) + place;
}

void CallFrames::add(const UnwoundFunction& function) {
    const std::uint32_t mode = function.encoding & ModeMask;
    if (mode == NoMode || mode == InDwarf) {
        return;
    }
    if (mode > InDwarf) {
        image_.refuse("has a function with the encoding " + hexadecimal(function.encoding));
    }
    const std::size_t common = commonEntryFor(function.personality);
    const std::size_t start = begin();
    put(static_cast<std::uint32_t>(bytes_.size() - common));
    put(addressOf(function.start));
    put(std::uint64_t{function.end - function.start});
    if (function.personality) {
        putLengthed(sizeof(std::uint64_t));
        put(function.languageData ? addressOf(*function.languageData) : std::uint64_t{0});
    } else {
        putLengthed(0);
    }
    if (mode == WithFramePointer) {
        describeWithFramePointer(function.encoding);
    } else {
        describeWithoutFramePointer(function, mode == WithoutFramePointerSizeInCode);
    }
    end(start);
}

void CallFrames::describeWithFramePointer(std::uint32_t encoding) {
    frameIs(FramePointer, 2 * WordSize);
    isSaved(FramePointer, 2);
    const std::uint32_t words = bits(encoding, 16, 8);
    for (std::uint32_t slot = 0; slot < 5; ++slot) {
        if (const std::uint32_t reg = bits(encoding, 3 * slot, 3); reg != 0) {
            isSaved(SavedRegisters.at(reg), 2 + words - slot);
        }
    }
}

// A large frame's size is in the instruction that makes it, and what the function pushed before comes on top.
void CallFrames::describeWithoutFramePointer(const UnwoundFunction& function, bool isSizeInCode) {
    std::uint32_t size = bits(function.encoding, 16, 8);
    if (isSizeInCode) {
        size = image_.little<std::uint32_t>(std::uint64_t{function.start} + size, "the size of a frame");
        size += WordSize * bits(function.encoding, 13, 3);
    } else {
        size *= WordSize;
    }
    frameIs(StackPointer, size);
    const std::uint32_t count = bits(function.encoding, 10, 3);
    if (count > 6) {
        image_.refuse("has a function with " + std::to_string(count) + " saved registers");
    }
    std::uint32_t words = count + 1;
    for (const std::uint8_t reg : permutation(count, bits(function.encoding, 0, 10))) {
        isSaved(reg, words--);
    }
}

std::vector<std::uint8_t> CallFrames::finish() {
    put(std::uint32_t{0});
    return std::move(bytes_);
}

} // namespace kestrune::macho
