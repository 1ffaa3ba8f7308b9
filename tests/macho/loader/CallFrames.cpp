#include "tests/macho/loader/CallFrames.h"

#include <array>
#include <bit>
#include <cstring>
#include <string_view>
#include <utility>

namespace kestrune::macho {

namespace {

// Instructions of call frames, and how pointers are encoded.
constexpr std::uint8_t DefineFrame = 0x0C;
constexpr std::uint8_t OffsetOfRegister = 0x80; // with the number in its lower bits
constexpr std::uint8_t OffsetOfAnyRegister = 0x05;
constexpr std::uint8_t RegistersInInstruction = 64;
constexpr std::uint8_t Absolute = 0;

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
    constexpr std::size_t Alignment = 8;
    bytes_.resize((bytes_.size() + Alignment - 1) / Alignment * Alignment); // zeros do nothing
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
    put(rules_.returnAddress);
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
    describe(rules_.atEntry);
    end(start);
    return commonEntries_[personality] = start;
}

void CallFrames::describe(const Frame& frame) {
    put(DefineFrame);
    put(frame.base);
    putLengthed(frame.distance);
    for (const SavedRegister& saved : frame.saved) {
        isSaved(saved);
    }
}

void CallFrames::isSaved(const SavedRegister& saved) {
    if (saved.number < RegistersInInstruction) {
        put(static_cast<std::uint8_t>(OffsetOfRegister | saved.number));
    } else {
        put(OffsetOfAnyRegister);
        putLengthed(saved.number);
    }
    putLengthed(saved.words);
}

std::uint64_t CallFrames::addressOf(std::uint32_t place) const {
    return std::bit_cast<std::uint64_t>(image_.all().data()) + place;
}

void CallFrames::add(const UnwoundFunction& function) {
    const std::optional<Frame> frame = rules_.frameOf(image_, function);
    if (!frame) {
        return;
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
    describe(*frame);
    end(start);
}

std::vector<std::uint8_t> CallFrames::finish() {
    put(std::uint32_t{0});
    return std::move(bytes_);
}

} // namespace kestrune::macho
