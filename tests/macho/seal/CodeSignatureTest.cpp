#include "tests/macho/seal/CodeSignature.h"

#include "tests/macho/FileTree.h"
#include "tests/macho/Refusal.h"
#include "tests/macho/seal/SealError.h"

#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

// A small program for one processor, sealed.
Content sealedProgram() { return readFile(KESTRUNE_SEALED_FILES "/arm64.macho"); }

std::uint64_t placeOfSignature(const Content& bytes) {
    const auto content = MachFile(bytes, "").slices().front().codeSignature();
    return static_cast<std::uint64_t>(content->all().data() - bytes.data());
}

// Behind the header and an index of three parts.
std::uint64_t placeOfDirectory(const Content& bytes) { return placeOfSignature(bytes) + 12 + 3 * 8; }

CodeSignature signatureOf(const Content& bytes) {
    return readCodeSignature(MachFile(bytes, "Tiny").slices().front());
}

TEST(CodeSignature, SaysWhatWasSigned) {
    const Content bytes = sealedProgram();
    const CodeSignature signature = signatureOf(bytes);
    EXPECT_EQ(signature.identifier, "org.kestrune.Tiny");
    EXPECT_EQ(signature.flags, CodeSignature::AdHoc);
    EXPECT_EQ(signature.codeSize, placeOfSignature(bytes));
    EXPECT_EQ(signature.pages.size(), 1U);
    EXPECT_EQ(signature.specials.size(), 3U);
    EXPECT_EQ(signature.attachments.size(), 3U);
    EXPECT_NO_THROW(verifyCode(signature, MachFile(bytes, "Tiny").slices().front()));
}

TEST(CodeSignature, CoversWhatItHasTheHashOf) {
    const Content bytes = sealedProgram();
    CodeSignature signature = signatureOf(bytes);
    const Content other{1, 2, 3};
    EXPECT_FALSE(signature.covers(Slot::information, other));
    EXPECT_FALSE(signature.covers(Slot::information, std::nullopt));
    const Sha256 hash = sha256(other);
    signature.specials[static_cast<std::uint32_t>(Slot::information)] = hash;
    EXPECT_TRUE(signature.covers(Slot::information, other));
    signature.specials.erase(static_cast<std::uint32_t>(Slot::information));
    EXPECT_TRUE(signature.covers(Slot::information, std::nullopt));
}

class CodeSignatureIsNotRead : public testing::TestWithParam<BrokenFile> {};

TEST_P(CodeSignatureIsNotRead, WithSomethingElseInIt) {
    Content bytes = sealedProgram();
    GetParam().breakIt(bytes);
    EXPECT_EQ(refusalOf([&] { signatureOf(bytes); }), "Tiny: the code signature: " + GetParam().message);
}

const BrokenFile Unreadable[] = {
    {"AnotherBlob", [](Content& bytes) { pokeBig(bytes, placeOfSignature(bytes), 0xFADE0C01); },
     "starts with 0xfade0c01"},
    {"ABlobWithoutAnEnd", [](Content& bytes) { pokeBig(bytes, placeOfSignature(bytes) + 4, 0x1000); },
     "the blob at 0x0 would have 0x1000 bytes, of which 0x130 are there"},
    {"ABlobWithoutAHeader", [](Content& bytes) { pokeBig(bytes, placeOfSignature(bytes) + 4, 4); },
     "the blob at 0x0 has 4 bytes"},
    {"NoDirectory", [](Content& bytes) { pokeBig(bytes, placeOfSignature(bytes) + 12, 5); },
     "has no code directory"},
    {"TwoDirectories", [](Content& bytes) { pokeBig(bytes, placeOfSignature(bytes) + 20, 0x1000); },
     "has a second code directory, which is not read"},
    {"APartTwice", [](Content& bytes) { pokeBig(bytes, placeOfSignature(bytes) + 20, 0x10000); },
     "has the part 0x10000 twice"},
    {"ACertificate", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 12, 0); },
     "is by a certificate, and certificates are not read"},
    {"AnotherDirectory", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes), 0xFADE0C03); },
     "the code directory starts with 0xfade0c03"},
    {"AnOldDirectory", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 8, 0x20001); },
     "the code directory has the version 0x20001, which is too old"},
    {"OldHashes", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 36, 0x1401000C); },
     "the code directory has hashes of the kind 1 with 20 bytes; SHA-256 alone is read"},
    {"OddPages", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 36, 0x20020010); },
     "the code directory has pages of 2^16 bytes"},
    {"ScatteredCode", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 44, 88); },
     "the code directory has parts that are not read: scattered or long code"},
    {"CodeThatStartsElsewhere", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 68, 0x4000); },
     "the code directory says that the code starts at 0x4000"},
    {"TooManySlots", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 24, 17); },
     "the code directory has 17 special slots"},
    {"TooManyPages", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 28, 2); },
     "the hashes of the pages at 0xca would have 0x40 bytes, of which 0x20 are there"},
    {"TooFewPages", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 28, 0); },
     "the code directory has something behind its hashes, at 0xca"},
};
INSTANTIATE_TEST_SUITE_P(Signatures, CodeSignatureIsNotRead, testing::ValuesIn(Unreadable), nameOfBroken);

class CodeSignatureDoesNotHold : public testing::TestWithParam<BrokenFile> {};

TEST_P(CodeSignatureDoesNotHold, ForAnotherProgram) {
    Content bytes = sealedProgram();
    GetParam().breakIt(bytes);
    try {
        const MachFile file(bytes, "Tiny");
        verifyCode(readCodeSignature(file.slices().front()), file.slices().front());
        ADD_FAILURE() << "it holds";
    } catch (const SealError& error) {
        EXPECT_EQ(error.what(), "Tiny: " + GetParam().message);
    }
}

const BrokenFile Different[] = {
    {"WithoutASignature",
     [](Content& bytes) { poke<std::uint32_t>(bytes, placeOf(bytes, Command::codeSignature), 0x2A); },
     "is not signed"},
    {"WithSomethingBehindIt", [](Content& bytes) { bytes.push_back(0); },
     "the code signature ends at 0x4f0 and the program at 0x4f1"},
    {"OfAnotherSize", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 32, 0x3F0); },
     "the signature is of 0x3f0 bytes and starts behind 0x3c0"},
    {"WithOtherCode", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 76, 0x10); },
     "the signature is for code of 0x10 bytes, which __TEXT is not"},
    {"OfAnotherType", [](Content& bytes) { pokeBig(bytes, placeOfDirectory(bytes) + 84, 0); },
     "the signature takes it for a library"},
    {"WithAnotherByte", [](Content& bytes) { bytes.at(0x350) ^= 1; },
     "page 0, from 0x0 to 0x3c0, was changed after it was sealed"},
    {"WithOtherRequirements",
     [](Content& bytes) { bytes.at(static_cast<std::size_t>(placeOfDirectory(bytes)) + 88 + 18 + 32) ^= 1; },
     "part 2 of the signature is not the one that was signed"},
    {"WithoutRequirements", [](Content& bytes) { pokeBig(bytes, placeOfSignature(bytes) + 20, 4); },
     "part 2 of the signature is not the one that was signed"},
};
INSTANTIATE_TEST_SUITE_P(Programs, CodeSignatureDoesNotHold, testing::ValuesIn(Different), nameOfBroken);

} // namespace
} // namespace kestrune::macho
