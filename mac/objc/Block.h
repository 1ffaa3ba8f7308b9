// Blocks made by hand from C++ functions.
//
// Source: clang.llvm.org/docs/Block-ABI-Apple.html.
#pragma once

#include "mac/objc/Pool.h"
#include "mac/vocabulary/Runtime.h"

#include <functional>
#include <utility>

// NOLINTBEGIN(readability-identifier-naming): the names are the platform's.
extern "C" {
void* _Block_copy(const void* block);
void _Block_release(const void* block);
}
// NOLINTEND(readability-identifier-naming)

namespace kestrune::mac {

// The class of blocks that live on the heap; the blocks runtime's.
void* classOfHeapBlocks();

// A block that takes an object and gives nothing. It is born on the heap, so that copying it only counts;
// whoever keeps it releases it.
class Block {
public:
    explicit Block(std::function<void(id argument)> function);
    ~Block() { _Block_release(literal_); }

    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    // For a message that copies what it is given.
    id get() const { return reinterpret_cast<id>(literal_); }

private:
    struct Descriptor;
    struct Literal;

    static void invoke(Literal* literal, id argument) noexcept;
    static void copy(void* target, const void* source);
    static void dispose(const void* literal);

    Literal* literal_;
};

} // namespace kestrune::mac
