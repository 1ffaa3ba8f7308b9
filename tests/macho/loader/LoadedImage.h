// A Mach-O program in the memory of this process, where the system's own loader would have put it together.
#pragma once

#include "tests/macho/Fixups.h"
#include "tests/macho/MachSlice.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace kestrune::macho {

// Where this process has what a library of the Mac's has under a name; null when it has nothing like it. The
// library is called by its install name. Throws MachError that says why what it has will not do; which file
// asks for it, the image adds.
using Resolve = std::function<void*(std::string_view library, std::string_view name)>;

// As long as anything that it gave to others may be called, it has to stay.
class LoadedImage {
public:
#ifdef __aarch64__
    static constexpr Processor Host = Processor::arm64;
#else
    static constexpr Processor Host = Processor::x86_64;
#endif

    // Maps the segments, writes the fixups and protects what is not to be written. The slice is needed as
    // long as the image. Throws MachError for a program of another processor, for one that needs what this
    // loader has not, and with their names for imports that nothing has.
    LoadedImage(const MachSlice& slice, const Resolve& resolve);

    ~LoadedImage();

    LoadedImage(const LoadedImage&) = delete;
    LoadedImage& operator=(const LoadedImage&) = delete;

    const MachSlice& slice() const { return slice_; }

    // Where an address of the file is.
    std::uint8_t* at(std::uint64_t address) const;
    std::span<std::uint8_t> memory() const { return memory_; }
    bool contains(const void* place) const;

    // A section's bytes in memory; empty when there is none of that name.
    std::span<std::uint8_t> section(std::string_view name) const;

    // Runs the initializers and then the entry point, with the arguments that a process gets. Gives the
    // latter's result.
    int run(int count, char** arguments, char** environment) const;

private:
    const void* initializerAt(std::uint64_t address) const;
    std::vector<const void*> initializers() const;
    void writeFixups(const Resolve& resolve) const;
    std::vector<void*> resolved(const std::vector<Import>& imports, const Resolve& resolve) const;
    void protect() const;

    const MachSlice& slice_;
    std::span<std::uint8_t> memory_;
};

} // namespace kestrune::macho
