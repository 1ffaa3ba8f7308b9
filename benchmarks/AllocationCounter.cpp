#include "benchmarks/AllocationCounter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t>& counter() {
    static std::atomic<std::size_t> count{0};
    return count;
}

std::atomic<std::size_t>& releases() {
    static std::atomic<std::size_t> count{0};
    return count;
}

void release(void* memory) {
    if (memory != nullptr) {
        releases().fetch_add(1, std::memory_order_relaxed);
        std::free(memory);
    }
}

// A program that measures has no use for an exception here.
void* counted(void* memory) {
    counter().fetch_add(1, std::memory_order_relaxed);
    if (memory == nullptr) {
        std::abort();
    }
    return memory;
}

} // namespace

namespace kestrune::benchmarks {

std::size_t allocationCount() { return counter().load(std::memory_order_relaxed); }

std::size_t liveAllocationCount() { return allocationCount() - releases().load(std::memory_order_relaxed); }

} // namespace kestrune::benchmarks

// The forms for arrays call these.
void* operator new(std::size_t size) { return counted(std::malloc(size != 0 ? size : 1)); }

// Also for one that cannot be had, which its callers could do without.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return operator new(size); }

void* operator new(std::size_t size, std::align_val_t alignment) {
    const auto unit = static_cast<std::size_t>(alignment);
    return counted(std::aligned_alloc(unit, (size / unit + 1) * unit));
}

void operator delete(void* memory) noexcept { release(memory); }

void operator delete(void* memory, std::size_t) noexcept { release(memory); }

void operator delete(void* memory, std::align_val_t) noexcept { release(memory); }

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { release(memory); }
