#include "tests/macho/Fixups.h"

#include <algorithm>
#include <string>

namespace kestrune::macho {

namespace {

enum class ImportFormat : std::uint32_t { plain = 1, withAddend = 2, withLongAddend = 3 };

constexpr std::uint16_t PointerToAddress = 2;
constexpr std::uint16_t PointerToOffset = 6;

constexpr std::uint16_t NoFixup = 0xFFFF;
constexpr std::uint64_t Stride = 4;
constexpr std::uint64_t PointerSize = 8;
constexpr int LowestOrdinal = Import::WeakDefinition;

std::uint64_t bits(std::uint64_t value, unsigned from, unsigned count) {
    return value >> from & ((std::uint64_t{1} << count) - 1);
}

class Reader {
public:
    Reader(const MachSlice& slice, const Bytes& content) : slice_(slice), content_(content) {}

    Fixups read() {
        if (word(0) != 0) {
            content_.refuse("have the version " + std::to_string(word(0)));
        }
        readImports();
        readSegments(content_.part(word(4),
                                   content_.size() - std::min<std::uint64_t>(word(4), content_.size()),
                                   "the starts of the chains"));
        return std::move(result_);
    }

private:
    std::uint32_t word(std::uint64_t offset) const {
        return content_.little<std::uint32_t>(offset, "the header");
    }

    void readImports() {
        const ImportFormat format{word(20)};
        if (format < ImportFormat::plain || format > ImportFormat::withLongAddend) {
            content_.refuse("have imports in the format " + std::to_string(word(20)));
        }
        if (word(24) != 0) {
            content_.refuse("have compressed names");
        }
        const std::uint64_t size = format == ImportFormat::plain        ? 4
                                   : format == ImportFormat::withAddend ? 8
                                                                        : 16;
        const std::uint64_t count = word(16);
        const Bytes table = content_.part(word(8), count * size, "the imports");
        for (std::uint64_t place = 0; place < table.size(); place += size) {
            addImport(table, place, format);
        }
    }

    void addImport(const Bytes& table, std::uint64_t place, ImportFormat format) {
        Import import;
        std::uint64_t name = 0;
        if (format == ImportFormat::withLongAddend) {
            const auto packed = table.little<std::uint64_t>(place, "an import");
            import.ordinal = static_cast<std::int16_t>(bits(packed, 0, 16));
            import.isWeak = bits(packed, 16, 1) != 0;
            name = bits(packed, 32, 32);
            import.addend = static_cast<std::int64_t>(table.little<std::uint64_t>(place + 8, "an import"));
        } else {
            const auto packed = table.little<std::uint32_t>(place, "an import");
            import.ordinal = ordinalOf(static_cast<std::uint8_t>(bits(packed, 0, 8)));
            import.isWeak = bits(packed, 8, 1) != 0;
            name = bits(packed, 9, 23);
            if (format == ImportFormat::withAddend) {
                import.addend =
                    static_cast<std::int32_t>(table.little<std::uint32_t>(place + 4, "an import"));
            }
        }
        import.name = content_.text(std::uint64_t{word(12)} + name, "the name of an import");
        const auto libraries = static_cast<int>(slice_.libraries().size());
        if (import.ordinal < LowestOrdinal || import.ordinal > libraries) {
            content_.refuse("the import " + printable(import.name) + " is of library " +
                            std::to_string(import.ordinal) + " of " + std::to_string(libraries));
        }
        result_.imports.push_back(import);
    }

    // The highest numbers stand for the negative ones; all others are libraries.
    static int ordinalOf(std::uint8_t number) {
        constexpr int FirstNegative = 0xF1;
        return number >= FirstNegative ? number - 0x100 : number;
    }

    void readSegments(const Bytes& starts) {
        const auto count = starts.little<std::uint32_t>(0, "the number of segments");
        if (count > slice_.segments().size()) {
            content_.refuse("are for " + std::to_string(count) + " segments, of which there are " +
                            std::to_string(slice_.segments().size()));
        }
        for (std::uint32_t index = 0; index < count; ++index) {
            const auto offset =
                starts.little<std::uint32_t>(4 + 4 * std::uint64_t{index}, "a segment's place");
            if (offset != 0) {
                const auto size = starts.little<std::uint32_t>(offset, "a segment's chains");
                readChains(starts.part(offset, size, "a segment's chains"), slice_.segments()[index]);
            }
        }
    }

    void readChains(const Bytes& chains, const Segment& segment) {
        const std::string name = "the segment " + printable(segment.name);
        const std::uint64_t pageSize = chains.little<std::uint16_t>(4, "the size of pages");
        if (pageSize != 0x1000 && pageSize != 0x4000) {
            content_.refuse(name + " has pages of " + std::to_string(pageSize) + " bytes");
        }
        format_ = chains.little<std::uint16_t>(6, "the format of pointers");
        if (format_ != PointerToAddress && format_ != PointerToOffset) {
            content_.refuse(name + " has pointers in the format " + std::to_string(format_) +
                            ", which is not read");
        }
        if (chains.little<std::uint64_t>(8, "the place") != segment.address - slice_.loadAddress()) {
            content_.refuse(name + " is not where its chains are");
        }
        const auto pages = chains.little<std::uint16_t>(20, "the number of pages");
        for (std::uint64_t page = 0; page < pages; ++page) {
            const auto start = chains.little<std::uint16_t>(22 + 2 * page, "the start of a page");
            if (start != NoFixup) {
                followChain(segment, page * pageSize, start, pageSize);
            }
        }
    }

    // Each step goes forwards and none leaves the page, so that every chain ends and no place is met twice.
    void followChain(const Segment& segment, std::uint64_t page, std::uint64_t start,
                     std::uint64_t pageSize) {
        const std::uint64_t end = std::min(segment.fileSize, page + pageSize);
        for (std::uint64_t place = page + start, step = 0;; place += step) {
            if (place >= end || end - place < PointerSize) {
                content_.refuse("the fixup at " + hexadecimal(segment.address + place) +
                                " is not within its page of the segment " + printable(segment.name));
            }
            const auto pointer = slice_.content().little<std::uint64_t>(segment.offset + place, "a fixup");
            result_.fixups.push_back({segment.address + place, valueOf(pointer, segment.address + place)});
            step = Stride * bits(pointer, 51, 12);
            if (step == 0) {
                return;
            }
        }
    }

    std::variant<Rebase, Bind> valueOf(std::uint64_t pointer, std::uint64_t address) const {
        const bool isBind = bits(pointer, 63, 1) != 0;
        if (isBind) {
            const Bind bind{bits(pointer, 0, 24), static_cast<std::uint8_t>(bits(pointer, 24, 8))};
            if (bind.import >= result_.imports.size()) {
                content_.refuse("the fixup at " + hexadecimal(address) + " is for import " +
                                std::to_string(bind.import) + " of " +
                                std::to_string(result_.imports.size()));
            }
            return bind;
        }
        Rebase rebase{bits(pointer, 0, 36), static_cast<std::uint8_t>(bits(pointer, 36, 8))};
        if (format_ == PointerToOffset) {
            rebase.target += slice_.loadAddress();
        }
        if (!isInImage(rebase.target)) {
            content_.refuse("the fixup at " + hexadecimal(address) + " points at " +
                            hexadecimal(rebase.target) + ", which is in no segment");
        }
        return rebase;
    }

    // The end of a segment counts: of an array that is its last, there are pointers to the end.
    bool isInImage(std::uint64_t address) const {
        return std::any_of(slice_.segments().begin(), slice_.segments().end(), [&](const Segment& segment) {
            return !segment.isGuard() && address >= segment.address &&
                   address - segment.address <= segment.size;
        });
    }

    const MachSlice& slice_;
    const Bytes& content_;
    std::uint16_t format_ = 0;
    Fixups result_;
};

} // namespace

Fixups readFixups(const MachSlice& slice) {
    if (slice.command(Command::dyldInfo) || slice.command(Command::dyldInfoOnly)) {
        slice.content().refuse("has LC_DYLD_INFO, whose opcodes are not read; link it for macOS 13, which "
                               "takes chained fixups");
    }
    const auto content = slice.linkEditData(Command::chainedFixups, "the chained fixups");
    return content ? Reader(slice, *content).read() : Fixups();
}

} // namespace kestrune::macho
