#include "tests/macho/TinyProgram.h"

#include <algorithm>

namespace kestrune::macho {

namespace {

using Content = std::vector<std::uint8_t>;

constexpr std::uint32_t KindOfArm64 = 0x0100000C;
constexpr std::uint32_t KindOfX86 = 0x01000007;
constexpr std::uint64_t LinkEditAddress = TinyProgram::DataAddress + 0x10000;
constexpr std::uint64_t HeaderSize = 32;
constexpr std::uint64_t SignatureSize = 16;
constexpr std::uint64_t PointerSize = 8;
constexpr std::uint32_t SectionOfTexts = 2; // that end with a zero

std::uint32_t kindOf(Processor processor) { return processor == Processor::arm64 ? KindOfArm64 : KindOfX86; }

std::uint32_t subtypeOf(Processor processor) { return processor == Processor::arm64 ? 0 : 3; }

class Writer {
public:
    template <std::unsigned_integral Number>
    Writer& add(std::type_identity_t<Number> number) {
        for (std::size_t index = 0; index < sizeof(Number); ++index) {
            content_.push_back(static_cast<std::uint8_t>(number >> (8 * index)));
        }
        return *this;
    }
    Writer& words(std::initializer_list<std::uint64_t> numbers) {
        for (const std::uint64_t number : numbers) {
            add<std::uint32_t>(static_cast<std::uint32_t>(number));
        }
        return *this;
    }
    Writer& longs(std::initializer_list<std::uint64_t> numbers) {
        for (const std::uint64_t number : numbers) {
            add<std::uint64_t>(number);
        }
        return *this;
    }
    Writer& text(std::string_view text, std::size_t size) {
        content_.insert(content_.end(), text.begin(), text.end());
        content_.insert(content_.end(), size - text.size(), 0);
        return *this;
    }
    Writer& append(const Content& more) {
        content_.insert(content_.end(), more.begin(), more.end());
        return *this;
    }
    Writer& alignTo(std::size_t alignment) {
        content_.resize((content_.size() + alignment - 1) / alignment * alignment);
        return *this;
    }
    std::size_t size() const { return content_.size(); }
    const Content& content() const { return content_; }

private:
    Content content_;
};

// Where the parts of the file are.
struct Layout {
    std::uint64_t initializers = 0;
    std::uint64_t code = 0;
    std::uint64_t texts = 0;
    std::uint64_t data = 0;
    std::uint64_t linkEdit = 0;
    std::uint64_t exports = 0;
    std::uint64_t signature = 0;
    std::uint64_t end = 0;
};

// The size of the command after its kind.
Content command(Command kind, Writer content) {
    content.alignTo(8);
    Writer result;
    result.words({static_cast<std::uint32_t>(kind), 8 + content.size()});
    return result.append(content.content()).content();
}

struct Range {
    std::uint64_t address, size, offset, fileSize;
};

Writer segment(std::string_view name, const Range& range, std::uint32_t protection, std::uint32_t sections) {
    Writer writer;
    writer.text(name, 16).longs({range.address, range.size, range.offset, range.fileSize});
    return writer.words({protection, protection, sections, 0});
}

void addSection(Writer& writer, std::string_view name, std::string_view segment, const Range& range,
                std::uint32_t flags) {
    writer.text(name, 16).text(segment, 16).longs({range.address, range.size});
    writer.words({range.offset, 2, 0, 0, flags, 0, 0, 0});
}

class Builder {
public:
    explicit Builder(const TinyProgram& program)
        : program_(program), texts_(texts()), fixups_(chainedFixups()) {
        layOut();
    }

    Content build() const {
        Writer writer;
        const Content commands = loadCommands();
        writer.words({0xFEEDFACF, kindOf(program_.processor), subtypeOf(program_.processor),
                      static_cast<std::uint32_t>(program_.type), count(), commands.size(), 0x85, 0});
        writer.append(commands);
        for (std::uint32_t index = 0; index < program_.initializers; ++index) {
            writer.words({layout_.code});
        }
        writer.append(Content(program_.codeSize, 0x90))
            .append(texts_)
            .alignTo(PointerSize)
            .append(pointers());
        writer.append(fixups_).alignTo(PointerSize).append(exports());
        writer.alignTo(16).append(Content(SignatureSize));
        return writer.content();
    }

private:
    void layOut() {
        const auto aligned = [](std::uint64_t place, std::uint64_t alignment) {
            return (place + alignment - 1) / alignment * alignment;
        };
        layout_.initializers = HeaderSize + loadCommands().size();
        layout_.code = layout_.initializers + 4 * program_.initializers;
        layout_.texts = layout_.code + program_.codeSize;
        layout_.data = aligned(layout_.texts + texts_.size(), PointerSize);
        layout_.linkEdit = layout_.data + PointerSize * (1 + program_.imports.size());
        layout_.exports = aligned(layout_.linkEdit + fixups_.size(), PointerSize);
        layout_.signature = aligned(layout_.exports + exports().size(), 16);
        layout_.end = layout_.signature + SignatureSize;
    }

    // As many commands as loadCommands() makes.
    std::uint64_t count() const { return 7 + (isProgram() ? 2 : 0) + program_.libraries.size(); }
    bool isProgram() const { return program_.type == FileType::executable; }

    Content loadCommands() const {
        Writer writer;
        if (isProgram()) {
            writer.append(
                command(Command::segment, segment("__PAGEZERO", {0, TinyProgram::LoadAddress, 0, 0}, 0, 0)));
            writer.append(command(Command::entryPoint, Writer().longs({layout_.code, 0})));
        }
        addSegments(writer);
        for (const std::string& library : program_.libraries) {
            Writer name;
            name.words({24, 0, 0x10000, 0x10000}).text(library, library.size() + 1);
            writer.append(command(Command::library, name));
        }
        const Version& system = program_.minimumSystem;
        writer.append(command(
            Command::buildVersion,
            Writer().words({BuildVersion::MacOS, system.major << 16 | system.minor << 8, 0xD0000, 0})));
        writer.append(command(Command::chainedFixups, Writer().words({layout_.linkEdit, fixups_.size()})));
        writer.append(command(Command::exportsTrie, Writer().words({layout_.exports, exports().size()})));
        writer.append(command(Command::codeSignature, Writer().words({layout_.signature, SignatureSize})));
        return writer.content();
    }

    void addSegments(Writer& writer) const {
        const std::uint64_t base = TinyProgram::LoadAddress;
        Writer text = segment("__TEXT", {base, 0x10000, 0, layout_.data},
                              Segment::Readable | Segment::Executable, texts_.empty() ? 2 : 3);
        addSection(text, "__init_offsets", "__TEXT",
                   {base + layout_.initializers, 4 * program_.initializers, layout_.initializers, 0},
                   Section::InitializerOffsets);
        addSection(text, "__text", "__TEXT", {base + layout_.code, program_.codeSize, layout_.code, 0}, 0);
        if (!texts_.empty()) {
            addSection(text, "__cstring", "__TEXT", {base + layout_.texts, texts_.size(), layout_.texts, 0},
                       SectionOfTexts);
        }
        writer.append(command(Command::segment, text));

        const std::uint64_t size = layout_.linkEdit - layout_.data;
        Writer data = segment("__DATA", {TinyProgram::DataAddress, 0x4000, layout_.data, size},
                              Segment::Readable | Segment::Writable, 2);
        addSection(data, "__data", "__DATA", {TinyProgram::DataAddress, size, layout_.data, 0}, 0);
        addSection(data, "__bss", "__DATA", {TinyProgram::DataAddress + size, 64, 0, 0}, Section::ZeroFill);
        writer.append(command(Command::segment, data));
        writer.append(command(
            Command::segment,
            segment("__LINKEDIT", {LinkEditAddress, 0x4000, layout_.linkEdit, layout_.end - layout_.linkEdit},
                    Segment::Readable, 0)));
    }

    Content texts() const {
        Writer writer;
        for (const std::string& text : program_.texts) {
            writer.text(text, text.size() + 1);
        }
        return writer.content();
    }

    // Of the four segments of a program, or the three of a library, only the data has any.
    Content chainedFixups() const {
        constexpr std::uint64_t Header = 28;
        const std::uint64_t segments = isProgram() ? 4 : 3;
        const std::uint64_t starts = 4 + 4 * segments;
        constexpr std::uint64_t StartsOfOnePage = 24;
        const std::uint64_t imports = Header + starts + StartsOfOnePage;
        Writer names;
        names.text("", 1);
        Writer table;
        for (const Import& import : program_.imports) {
            table.words({(static_cast<std::uint64_t>(import.ordinal) & 0xFF) | (import.isWeak ? 0x100U : 0U) |
                         names.size() << 9});
            names.text(import.name, import.name.size() + 1);
        }
        Writer writer;
        writer.words({0, Header, imports, imports + table.size(), program_.imports.size(), 1, 0});
        writer.words({segments});
        for (std::uint64_t index = 1; index <= segments; ++index) {
            writer.words({index == segments - 1 ? starts : 0});
        }
        writer.words({StartsOfOnePage}).add<std::uint16_t>(program_.sizeOfPages & 0xFFFF);
        writer.add<std::uint16_t>(program_.pointerFormat);
        writer.longs({TinyProgram::DataAddress - TinyProgram::LoadAddress}).words({0});
        writer.add<std::uint16_t>(1).add<std::uint16_t>(0);
        return writer.append(table.content()).append(names.content()).content();
    }

    Content pointers() const {
        constexpr std::uint64_t Next = PointerSize / 4;
        const std::size_t last = program_.imports.size();
        const bool hasOffsets = program_.pointerFormat == 6;
        Writer writer;
        writer.longs(
            {(layout_.code + (hasOffsets ? 0 : TinyProgram::LoadAddress)) | (last ? Next << 51 : 0)});
        for (std::size_t import = 0; import < last; ++import) {
            writer.longs({std::uint64_t{1} << 63 | (import + 1 < last ? Next << 51 : 0) | import});
        }
        return writer.content();
    }

    // A root with one branch, "_main", and at its end the offset of the code in 14 bits.
    Content exports() const {
        constexpr std::uint8_t End = 9;
        Writer writer;
        writer.add<std::uint8_t>(0).add<std::uint8_t>(1).text("_main", 6).add<std::uint8_t>(End);
        writer.add<std::uint8_t>(3).add<std::uint8_t>(0);
        writer.add<std::uint8_t>((layout_.code & 0x7F) | 0x80).add<std::uint8_t>(layout_.code >> 7 & 0x7F);
        return writer.add<std::uint8_t>(0).content();
    }

    const TinyProgram& program_;
    Content texts_;
    Content fixups_;
    Layout layout_;
};

void addBig(Content& content, std::uint64_t number) {
    for (const int shift : {24, 16, 8, 0}) {
        content.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

} // namespace

std::vector<std::uint8_t> TinyProgram::bytes() const { return Builder(*this).build(); }

std::vector<std::uint8_t> universal(const std::vector<TinyProgram>& programs) {
    constexpr std::uint64_t Alignment = 4; // as a power of two
    constexpr std::size_t Unit = 1U << Alignment;
    Content header;
    addBig(header, 0xCAFEBABE);
    addBig(header, programs.size());
    const std::size_t headerSize = (8 + 20 * programs.size() + Unit - 1) / Unit * Unit;
    Content body;
    for (const TinyProgram& program : programs) {
        const Content bytes = program.bytes();
        addBig(header, kindOf(program.processor));
        addBig(header, subtypeOf(program.processor));
        addBig(header, headerSize + body.size());
        addBig(header, bytes.size());
        addBig(header, Alignment);
        body.insert(body.end(), bytes.begin(), bytes.end());
        body.resize((body.size() + Unit - 1) / Unit * Unit);
    }
    header.resize(headerSize);
    header.insert(header.end(), body.begin(), body.end());
    return header;
}

std::map<std::string, std::vector<std::uint8_t>> tinyPrograms() {
    TinyProgram arm;
    // More than a page, so that it is seen which one was changed.
    arm.codeSize = 5000;
    TinyProgram intel;
    intel.processor = Processor::x86_64;
    TinyProgram imports = intel;
    imports.libraries.emplace_back("/usr/lib/libobjc.A.dylib");
    imports.imports = {
        {2, false, "_objc_retain", 0}, {1, true, "_maybe", 0}, {Import::WeakDefinition, false, "__Znwm", 0}};
    imports.pointerFormat = 2;
    imports.sizeOfPages = 0x1000;
    TinyProgram names = intel;
    names.libraries.emplace_back("/System/Library/Frameworks/AppKit.framework/Versions/C/AppKit");
    names.imports = {{1, false, "_exit", 0}, {2, false, "_NSApp", 0}, {2, false, "_NSBeep", 0}};
    names.texts = {"NSView",        "NSMenuDelegate", "setFrame:display:", "selectAll:", "NSScreenNumber",
                   "circle.dashed", "v16@?0@8",       "Pin Dock to:",      "a:",         "UTF8String"};
    TinyProgram namesOnArm = names;
    namesOnArm.processor = Processor::arm64;
    TinyProgram armLibrary;
    armLibrary.type = FileType::library;
    TinyProgram intelLibrary = armLibrary;
    intelLibrary.processor = Processor::x86_64;
    return {{"arm64.macho", TinyProgram().bytes()},
            {"imports.macho", imports.bytes()},
            {"library.macho", universal({intelLibrary, armLibrary})},
            {"names.macho", universal({names, namesOnArm})},
            {"universal.macho", universal({intel, arm})},
            {"x86_64.macho", intel.bytes()}};
}

} // namespace kestrune::macho
