#include "mac/objc/Block.h"

#include <cstdlib>
#include <memory>
#include <new>

#ifdef __APPLE__
extern "C" void* _NSConcreteMallocBlock[];
#endif

namespace kestrune::mac {

struct Block::Descriptor {
    unsigned long reserved;
    unsigned long size;
    void (*copy)(void* target, const void* source);
    void (*dispose)(const void* literal);
    const char* signature;
};

struct Block::Literal {
    void* isa;
    int flags;
    int reserved;
    void (*invoke)(Literal* literal, id argument) noexcept;
    const Descriptor* descriptor;
    std::shared_ptr<std::function<void(id)>>* function; // owned
};

namespace {

constexpr int OneReference = 2; // counted in steps of 2
constexpr int NeedsFree = 1 << 24;
constexpr int HasCopyAndDispose = 1 << 25;
constexpr int HasSignature = 1 << 30;

} // namespace

#ifdef __APPLE__
void* classOfHeapBlocks() { return static_cast<void*>(_NSConcreteMallocBlock); }
#endif

Block::Block(std::function<void(id argument)> function) {
    static const Descriptor descriptor = {0, sizeof(Literal), copy, dispose, "v16@?0@8"};
    // The blocks runtime frees what it counts.
    void* const memory = std::calloc(1, sizeof(Literal)); // NOLINT(cppcoreguidelines-no-malloc)
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    literal_ = new (memory)
        Literal{classOfHeapBlocks(),
                OneReference | NeedsFree | HasCopyAndDispose | HasSignature,
                0,
                invoke,
                &descriptor,
                new std::shared_ptr(std::make_shared<std::function<void(id)>>(std::move(function)))};
}

void Block::invoke(Literal* literal, id argument) noexcept {
    const Pool pool;
    // The last reference may go while the function runs.
    const auto function = *literal->function;
    (*function)(argument);
}

// Never called: a block on the heap is not copied but counted.
void Block::copy(void* /*target*/, const void* /*source*/) {}

void Block::dispose(const void* literal) { delete static_cast<const Literal*>(literal)->function; }

} // namespace kestrune::mac
