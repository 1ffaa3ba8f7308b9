#include "tests/macho/FileTree.h"
#include "tests/macho/TinyProgram.h"

#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

TEST(TinyPrograms, AreThoseOfTheCorpus) {
    FileTree corpus{"corpus", {}};
    for (const auto& [name, bytes] : tinyPrograms()) {
        corpus.entries[name] = bytes;
    }
    const FileTree kept = readFileTree(KESTRUNE_MACH_FILES, "corpus");
    for (const auto& [name, entry] : corpus.entries) {
        const FileContent* const found = kept.file(name);
        ASSERT_NE(found, nullptr) << name << ": write it with kestrune-tiny-programs " KESTRUNE_MACH_FILES;
        EXPECT_TRUE(*found == *corpus.file(name)) << name;
    }
    EXPECT_EQ(kept.entries.size(), corpus.entries.size());
}

} // namespace
} // namespace kestrune::macho
