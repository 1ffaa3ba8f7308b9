// The stand-in for the blocks runtime refuses blocks that the Mac would misread.
#include "mac/objc/Block.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace kestrune::gnustep {
namespace {

using mac::Block;

// What lies in a block and in its descriptor, from their beginnings on.
//
// Source: clang.llvm.org/docs/Block-ABI-Apple.html.
enum class InBlock : std::size_t { flags = 8, reserved = 12, descriptor = 24 };
enum class InDescriptor : std::size_t { reserved, size, copy, dispose, signature };

std::byte* placeIn(const Block& block, InBlock place) {
    return reinterpret_cast<std::byte*>(block.get()) + static_cast<std::size_t>(place);
}

void change(const Block& block, InBlock place, int bits) {
    int value = 0;
    std::memcpy(&value, placeIn(block, place), sizeof(value));
    value ^= bits;
    std::memcpy(placeIn(block, place), &value, sizeof(value));
}

// In a descriptor of the block's own.
void put(const Block& block, InDescriptor place, std::uintptr_t value) {
    static std::uintptr_t words[5];
    const void* descriptor = nullptr;
    std::memcpy(&descriptor, placeIn(block, InBlock::descriptor), sizeof(descriptor));
    std::memcpy(words, descriptor, sizeof(words));
    words[static_cast<std::size_t>(place)] = value;
    descriptor = words;
    std::memcpy(placeIn(block, InBlock::descriptor), &descriptor, sizeof(descriptor));
}

template <typename Change>
void copyAfter(const Change& makeWrong) {
    const Block block([](id) {});
    makeWrong(block);
    _Block_copy(block.get());
}

TEST(BlockStandIn, TakesABlockAsItIsMade) {
    const Block block([](id) {});
    EXPECT_EQ(_Block_copy(block.get()), block.get());
    _Block_release(block.get());
}

TEST(BlockStandInDeathTest, RefusesWrongFlags) {
    struct Case {
        int changed; // bits
        const char* fault;
    };
    for (const Case& wrong : {Case{1 << 24, "its flags do not say that it is on the heap"},
                              Case{1 << 25, "its flags do not say that it has functions to copy it"},
                              Case{1 << 30, "its flags do not say that it has a signature"},
                              Case{1 << 28, "its flags say more than is true of it"},
                              Case{1 << 29, "its flags say more than is true of it"}}) {
        EXPECT_DEATH(copyAfter([wrong](const Block& block) { change(block, InBlock::flags, wrong.changed); }),
                     std::string("A block is not laid out as it has to be: ") + wrong.fault);
    }
    EXPECT_DEATH(copyAfter([](const Block& block) { change(block, InBlock::reserved, 1); }),
                 "its flags say more than is true of it");
}

TEST(BlockStandInDeathTest, RefusesAWrongDescriptor) {
    struct Case {
        InDescriptor place;
        std::uintptr_t value;
        const char* fault;
    };
    for (const Case& wrong :
         {Case{InDescriptor::reserved, 1, "its descriptor has something where nothing may be"},
          Case{InDescriptor::size, 31, "its size is 31, and it has "},
          Case{InDescriptor::size, 4096, "its size is 4096, and it has "},
          Case{InDescriptor::copy, 0, "it has no function to copy or to dispose of it"},
          Case{InDescriptor::dispose, 0, "it has no function to copy or to dispose of it"},
          Case{InDescriptor::signature, 0, "its signature is \"\", and it is called as v@.@"}}) {
        EXPECT_DEATH(copyAfter([wrong](const Block& block) { put(block, wrong.place, wrong.value); }),
                     wrong.fault);
    }
}

TEST(BlockStandInDeathTest, RefusesASignatureThatIsNotCalled) {
    for (const char* const signature : {"v8@?0", "v16@?0q8", "B16@?0@8", "v24@?0@8@16", "v16@0:8"}) {
        EXPECT_DEATH(copyAfter([signature](const Block& block) {
                         put(block, InDescriptor::signature, reinterpret_cast<std::uintptr_t>(signature));
                     }),
                     "its signature is \".*\", and it is called as v@.@");
    }
}

} // namespace
} // namespace kestrune::gnustep
