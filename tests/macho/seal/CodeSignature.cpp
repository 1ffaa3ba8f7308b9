#include "tests/macho/seal/CodeSignature.h"

#include "tests/macho/seal/SealError.h"

#include <algorithm>

namespace kestrune::macho {

namespace {

constexpr std::uint32_t SuperBlob = 0xFADE0CC0;
constexpr std::uint32_t Directory = 0xFADE0C02;
constexpr std::uint32_t DirectorySlot = 0;
constexpr std::uint32_t FirstAlternative = 0x1000;
constexpr std::uint32_t LastAlternative = 0x1005;
// Nothing that a system knows has a higher number, and each slot takes a hash.
constexpr std::uint32_t MostSpecials = 16;

constexpr std::uint32_t FirstVersionWithText = 0x20400;
constexpr std::uint8_t Sha256Kind = 2;

// Blobs have their highest byte first, unlike the rest of the file.
std::uint32_t word(const Bytes& blob, std::uint64_t offset, std::string_view what) {
    return blob.big<std::uint32_t>(offset, what);
}

Bytes blobAt(const Bytes& place, std::uint64_t offset, std::string_view what) {
    const std::uint32_t size = word(place, offset + 4, what);
    if (size < 8) {
        place.refuse(std::string(what) + " at " + hexadecimal(offset) + " has " + std::to_string(size) +
                     " bytes");
    }
    return place.part(offset, size, what);
}

void readDirectory(const Bytes& directory, CodeSignature& signature) {
    const auto field = [&](std::uint64_t offset) { return word(directory, offset, "the code directory"); };
    const auto longField = [&](std::uint64_t offset) {
        return directory.big<std::uint64_t>(offset, "the code directory");
    };
    if (field(0) != Directory) {
        directory.refuse("the code directory starts with " + hexadecimal(field(0)));
    }
    if (field(8) < FirstVersionWithText) {
        directory.refuse("the code directory has the version " + hexadecimal(field(8)) +
                         ", which is too old");
    }
    const auto hashSize = directory.big<std::uint8_t>(36, "the code directory");
    const auto hashKind = directory.big<std::uint8_t>(37, "the code directory");
    if (hashKind != Sha256Kind || hashSize != Sha256().size()) {
        directory.refuse("the code directory has hashes of the kind " + std::to_string(hashKind) + " with " +
                         std::to_string(hashSize) + " bytes; SHA-256 alone is read");
    }
    const auto pageBits = directory.big<std::uint8_t>(39, "the code directory");
    if (pageBits != 12 && pageBits != 14) {
        directory.refuse("the code directory has pages of 2^" + std::to_string(pageBits) + " bytes");
    }
    if (field(44) != 0 || longField(56) != 0) {
        directory.refuse("the code directory has parts that are not read: scattered or long code");
    }
    signature.flags = field(12);
    signature.identifier = directory.text(field(20), "the identifier");
    signature.codeSize = field(32);
    signature.pageSize = std::uint64_t{1} << pageBits;
    if (longField(64) != 0) {
        directory.refuse("the code directory says that the code starts at " + hexadecimal(longField(64)));
    }
    signature.textSize = longField(72);
    signature.textFlags = longField(80);

    const std::uint64_t hashes = field(16);
    const std::uint32_t specials = field(24);
    if (specials > MostSpecials || specials * hashSize > hashes) {
        directory.refuse("the code directory has " + std::to_string(specials) + " special slots");
    }
    for (std::uint32_t slot = 1; slot <= specials; ++slot) {
        signature.specials[slot] = directory.span(hashes - slot * hashSize, hashSize, "a special slot");
    }
    const Bytes pages =
        directory.part(hashes, std::uint64_t{field(28)} * hashSize, "the hashes of the pages");
    for (std::uint64_t place = 0; place < pages.size(); place += hashSize) {
        signature.pages.push_back(pages.span(place, hashSize, "the hash of a page"));
    }
    if (hashes + pages.size() != directory.size()) {
        directory.refuse("the code directory has something behind its hashes, at " +
                         hexadecimal(hashes + pages.size()));
    }
    const Sha256 hash = sha256(directory.all());
    std::copy_n(hash.begin(), signature.cdhash.size(), signature.cdhash.begin());
}

bool isZero(std::span<const std::uint8_t> hash) {
    return std::all_of(hash.begin(), hash.end(), [](std::uint8_t byte) { return byte == 0; });
}

bool isHashOf(std::span<const std::uint8_t> hash, std::span<const std::uint8_t> data) {
    const Sha256 actual = sha256(data);
    return std::equal(hash.begin(), hash.end(), actual.begin(), actual.end());
}

void verifyExtent(const CodeSignature& signature, const MachSlice& slice) {
    const auto refuse = [&](const std::string& what) { throw SealError(slice.name() + ": " + what); };
    const LoadCommand& command = *slice.command(Command::codeSignature);
    const auto start = command.content.little<std::uint32_t>(8, "the code signature");
    const auto size = command.content.little<std::uint32_t>(12, "the code signature");
    if (std::uint64_t{start} + size != slice.content().size()) {
        refuse("the code signature ends at " + hexadecimal(std::uint64_t{start} + size) +
               " and the program at " + hexadecimal(slice.content().size()));
    }
    if (signature.codeSize != start) {
        refuse("the signature is of " + hexadecimal(signature.codeSize) + " bytes and starts behind " +
               hexadecimal(start));
    }
    const std::uint64_t pages = (signature.codeSize + signature.pageSize - 1) / signature.pageSize;
    if (signature.pages.size() != pages) {
        refuse("the signature has hashes of " + std::to_string(signature.pages.size()) + " of " +
               std::to_string(pages) + " pages");
    }
    const Segment* const text = slice.segment("__TEXT");
    if (!text || text->offset != 0 || signature.textSize != text->fileSize) {
        refuse("the signature is for code of " + hexadecimal(signature.textSize) +
               " bytes, which __TEXT is not");
    }
    if (((signature.textFlags & CodeSignature::MainProgram) != 0) != (slice.type() == FileType::executable)) {
        refuse("the signature takes it for a " +
               std::string(slice.type() == FileType::executable ? "library" : "program"));
    }
}

} // namespace

bool CodeSignature::covers(Slot slot, std::optional<std::span<const std::uint8_t>> data) const {
    const auto found = specials.find(static_cast<std::uint32_t>(slot));
    if (found == specials.end() || isZero(found->second)) {
        return !data;
    }
    return data && isHashOf(found->second, *data);
}

CodeSignature readCodeSignature(const MachSlice& slice) {
    const auto content = slice.codeSignature();
    if (!content) {
        throw SealError(slice.name() + ": is not signed");
    }
    const Bytes all = blobAt(*content, 0, "the blob");
    if (word(all, 0, "the blob") != SuperBlob) {
        all.refuse("starts with " + hexadecimal(word(all, 0, "the blob")));
    }
    CodeSignature signature;
    const std::uint32_t count = word(all, 8, "the index");
    for (std::uint64_t index = 0; index < count; ++index) {
        const std::uint32_t slot = word(all, 12 + 8 * index, "the index");
        const Bytes blob = blobAt(all, word(all, 16 + 8 * index, "the index"), "a part");
        if (slot >= FirstAlternative && slot <= LastAlternative) {
            all.refuse("has a second code directory, which is not read");
        }
        if (!signature.attachments.emplace(slot, blob.all()).second) {
            all.refuse("has the part " + hexadecimal(slot) + " twice");
        }
        if (slot == DirectorySlot) {
            readDirectory(blob, signature);
        }
    }
    if (!signature.attachments.contains(DirectorySlot)) {
        all.refuse("has no code directory");
    }
    if (!(signature.flags & CodeSignature::AdHoc)) {
        all.refuse("is by a certificate, and certificates are not read");
    }
    return signature;
}

void verifyPages(const CodeSignature& signature, const MachSlice& slice) {
    verifyExtent(signature, slice);
    for (std::size_t page = 0; page < signature.pages.size(); ++page) {
        const std::uint64_t start = page * signature.pageSize;
        const std::uint64_t size = std::min(signature.pageSize, signature.codeSize - start);
        if (!isHashOf(signature.pages[page], slice.content().span(start, size, "a page"))) {
            throw SealError(slice.name() + ": page " + std::to_string(page) + ", from " + hexadecimal(start) +
                            " to " + hexadecimal(start + size) + ", was changed after it was sealed");
        }
    }
}

void verifyCode(const CodeSignature& signature, const MachSlice& slice) {
    verifyPages(signature, slice);
    // What the signature itself holds, entitlements among it; the rest is the bundle's to compare.
    for (const auto& [slot, hash] : signature.specials) {
        const auto attachment = signature.attachments.find(slot);
        const bool isFile = slot == static_cast<std::uint32_t>(Slot::information) ||
                            slot == static_cast<std::uint32_t>(Slot::resources);
        if (!isFile && (attachment == signature.attachments.end() ? !isZero(hash)
                                                                  : !isHashOf(hash, attachment->second))) {
            throw SealError(slice.name() + ": part " + std::to_string(slot) +
                            " of the signature is not the one that was signed");
        }
    }
    if (!signature.attachments.contains(static_cast<std::uint32_t>(Slot::requirements)) ||
        !signature.specials.contains(static_cast<std::uint32_t>(Slot::requirements))) {
        throw SealError(slice.name() + ": the signature has no requirements, not even none");
    }
}

} // namespace kestrune::macho
