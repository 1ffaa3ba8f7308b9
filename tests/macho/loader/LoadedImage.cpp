#include "tests/macho/loader/LoadedImage.h"

#include <sys/mman.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <string>
#include <variant>

namespace kestrune::macho {

namespace {

constexpr std::uint32_t ReadOnlyAfterFixups = 0x10; // SG_READ_ONLY, of a segment

// S_THREAD_LOCAL_REGULAR to S_THREAD_LOCAL_INIT_FUNCTION_POINTERS.
bool holdsThreadLocals(const Section& section) { return section.type() >= 0x11 && section.type() <= 0x15; }

void requireWhatIsLoadedHere(const MachSlice& slice) {
    if (slice.processor() != LoadedImage::Host) {
        slice.content().refuse("is for " + std::string(nameOf(slice.processor())) + ", this process is for " +
                               std::string(nameOf(LoadedImage::Host)));
    }
    if (slice.type() != FileType::executable) {
        slice.content().refuse("is no program");
    }
    for (const Segment& segment : slice.segments()) {
        if (std::any_of(segment.sections.begin(), segment.sections.end(), holdsThreadLocals)) {
            slice.content().refuse("has thread-local variables, which this loader has not");
        }
        if (!segment.isGuard() && segment.address < slice.loadAddress()) {
            slice.content().refuse("has the segment " + printable(segment.name) + " before its header");
        }
    }
}

int protectionOf(const Segment& segment) {
    const std::uint32_t wanted = (segment.flags & ReadOnlyAfterFixups) != 0
                                     ? segment.protection & ~Segment::Writable
                                     : segment.protection;
    return ((wanted & Segment::Readable) != 0 ? PROT_READ : 0) |
           ((wanted & Segment::Writable) != 0 ? PROT_WRITE : 0) |
           ((wanted & Segment::Executable) != 0 ? PROT_EXEC : 0);
}

// Zeros, from the first segment's start to the last one's end.
std::span<std::uint8_t> memoryFor(const MachSlice& slice) {
    std::uint64_t end = slice.loadAddress();
    for (const Segment& segment : slice.segments()) {
        if (!segment.isGuard()) {
            end = std::max(end, segment.address + segment.size);
        }
    }
    const auto size = static_cast<std::size_t>(end - slice.loadAddress());
    void* const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        slice.content().refuse("does not fit into memory with its " + std::to_string(size) + " bytes");
    }
    return {static_cast<std::uint8_t*>(memory), size};
}

// Functions of the program's that take what a process gets: initializers and the entry point. The last
// argument is the system's own list of strings.
using Entry = int (*)(int count, char** arguments, char** environment, char** apple);

} // namespace

LoadedImage::LoadedImage(const MachSlice& slice, const Resolve& resolve)
    : slice_((requireWhatIsLoadedHere(slice), slice)), memory_(memoryFor(slice)) {
    try {
        for (const Segment& segment : slice_.segments()) {
            if (!segment.isGuard()) {
                const auto content = slice_.content().span(segment.offset, segment.fileSize, "a segment");
                std::copy(content.begin(), content.end(), at(segment.address));
            }
        }
        writeFixups(resolve);
        protect();
    } catch (...) {
        munmap(memory_.data(), memory_.size());
        throw;
    }
}

LoadedImage::~LoadedImage() { munmap(memory_.data(), memory_.size()); }

std::uint8_t* LoadedImage::at(std::uint64_t address) const {
    return memory_.data() + (address - slice_.loadAddress());
}

bool LoadedImage::contains(const void* place) const {
    const auto* const byte = static_cast<const std::uint8_t*>(place);
    return byte >= memory_.data() && byte < memory_.data() + memory_.size();
}

std::span<std::uint8_t> LoadedImage::section(std::string_view name) const {
    for (const Segment& segment : slice_.segments()) {
        for (const Section& section : segment.sections) {
            if (section.name == name) {
                return {at(section.address), section.size};
            }
        }
    }
    return {};
}

void LoadedImage::writeFixups(const Resolve& resolve) const {
    const Fixups fixups = readFixups(slice_);
    const std::vector<void*> imports = resolved(fixups.imports, resolve);
    for (const Fixup& fixup : fixups.fixups) {
        std::uint64_t value = 0;
        if (const auto* const bind = std::get_if<Bind>(&fixup.value)) {
            const auto addend =
                static_cast<std::uint64_t>(fixups.imports[bind->import].addend) + bind->addend;
            value = std::bit_cast<std::uint64_t>(imports[bind->import]) + addend;
        } else {
            const auto& rebase = std::get<Rebase>(fixup.value);
            value = std::bit_cast<std::uint64_t>(at(rebase.target)) | std::uint64_t{rebase.highByte} << 56;
        }
        std::memcpy(at(fixup.address), &value, sizeof(value));
    }
}

std::vector<void*> LoadedImage::resolved(const std::vector<Import>& imports, const Resolve& resolve) const {
    std::vector<void*> places;
    std::string missing;
    for (const Import& import : imports) {
        const bool isOfLibrary = import.ordinal > 0;
        const std::string_view library =
            isOfLibrary ? slice_.libraries()[static_cast<std::size_t>(import.ordinal) - 1].installName : "";
        if (!isOfLibrary) {
            slice_.content().refuse("imports " + printable(import.name) +
                                    " from no library in particular, which this loader does not look for");
        }
        try {
            places.push_back(resolve(library, import.name));
        } catch (const MachError& error) {
            slice_.content().refuse(error.what());
        }
        if (places.back() == nullptr && !import.isWeak) {
            missing += (missing.empty() ? "" : ", ") + printable(import.name) + " of " + printable(library);
        }
    }
    if (!missing.empty()) {
        slice_.content().refuse("imports what is not there: " + missing);
    }
    return places;
}

void LoadedImage::protect() const {
    for (const Segment& segment : slice_.segments()) {
        if (!segment.isGuard() && mprotect(at(segment.address), segment.size, protectionOf(segment)) != 0) {
            slice_.content().refuse("has a segment " + printable(segment.name) +
                                    " that does not begin with a page");
        }
    }
}

const void* LoadedImage::initializerAt(std::uint64_t address) const {
    const Segment* const segment = slice_.segmentHolding(address);
    if (segment == nullptr || (segment->protection & Segment::Executable) == 0) {
        slice_.content().refuse("has an initializer at " + hexadecimal(address) + ", where there is no code");
    }
    return at(address);
}

std::vector<const void*> LoadedImage::initializers() const {
    std::vector<const void*> functions;
    const auto start = std::bit_cast<std::uint64_t>(memory_.data());
    for (const Segment& segment : slice_.segments()) {
        for (const Section& section : segment.sections) {
            const Bytes content({at(section.address), section.size}, slice_.name());
            if (section.type() == Section::InitializerPointers) {
                for (std::uint64_t place = 0; place < section.size; place += sizeof(std::uint64_t)) {
                    const auto pointer = content.little<std::uint64_t>(place, "an initializer");
                    functions.push_back(initializerAt(pointer - start + slice_.loadAddress()));
                }
            } else if (section.type() == Section::InitializerOffsets) {
                for (std::uint64_t place = 0; place < section.size; place += sizeof(std::uint32_t)) {
                    const auto offset = content.little<std::uint32_t>(place, "an initializer");
                    functions.push_back(initializerAt(slice_.loadAddress() + offset));
                }
            }
        }
    }
    return functions;
}

int LoadedImage::run(int count, char** arguments, char** environment) const {
    char* apple[] = {arguments[0], nullptr};
    const auto call = [&](const void* place) {
        return std::bit_cast<Entry>(place)(count, arguments, environment, apple);
    };
    const auto entry = slice_.entryPoint();
    if (!entry) {
        slice_.content().refuse("has no entry point");
    }
    for (const void* const initializer : initializers()) {
        call(initializer);
    }
    return call(at(*entry));
}

} // namespace kestrune::macho
