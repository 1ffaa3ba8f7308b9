#include "tests/macho/Limits.h"

#include "tests/macho/MachFile.h"
#include "tests/macho/Refusal.h"
#include "tests/macho/TinyProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ExportLists systemLists() {
    ExportLists lists;
    lists.add("# The C library.\ninstall-name: /usr/lib/libSystem.B.dylib\n_exit\n_only x86_64\n\n",
              "System.txt");
    return lists;
}

Measures measuresOf(const TinyProgram& program, const Limits& limits = {}) {
    const Content bytes = program.bytes();
    return measure(MachFile(bytes, "Tiny").slices().front(), limits, systemLists());
}

std::vector<std::string> violationsOf(const TinyProgram& program, const Limits& limits = {}) {
    return measuresOf(program, limits).violations;
}

TEST(Limits, OfATinyProgramAreMeasured) {
    TinyProgram program;
    program.initializers = 3;
    const Measures measures = measuresOf(program);
    EXPECT_EQ(measures.bytes, program.bytes().size());
    EXPECT_EQ(measures.initializers, 3U);
    EXPECT_EQ(measures.imports, 1U);
    EXPECT_EQ(measures.minimumSystem, (Version{13, 0, 0}));
    EXPECT_THAT(measures.violations, IsEmpty());
}

TEST(Limits, HoldForTheLastThatIsAllowedAndNotForTheNext) {
    TinyProgram program;
    program.initializers = 60;
    program.imports.assign(170, {1, false, "_exit", 0});
    Limits limits;
    limits.bytes = program.bytes().size();
    EXPECT_THAT(violationsOf(program, limits), IsEmpty());

    program.initializers = 61;
    program.imports.emplace_back(program.imports.front());
    limits.bytes = program.bytes().size() - 1;
    EXPECT_THAT(violationsOf(program, limits),
                ElementsAre("Tiny: has " + std::to_string(limits.bytes + 1) + " bytes, and " +
                                std::to_string(limits.bytes) + " are allowed",
                            "Tiny: has 61 initializers before main, and 60 are allowed",
                            "Tiny: has 171 imports, and 170 are allowed"));
}

TEST(Limits, AreForOneSystem) {
    TinyProgram program;
    program.minimumSystem = {12, 3, 0};
    EXPECT_THAT(violationsOf(program), ElementsAre("Tiny: is for macOS 12.3, not 13.0"));
    Limits limits;
    limits.minimumSystem = {12, 3, 0};
    EXPECT_THAT(violationsOf(program, limits), IsEmpty());
}

TEST(Limits, AskForEveryImportInTheListOfItsLibrary) {
    TinyProgram program;
    program.libraries.emplace_back("/usr/lib/libobjc.A.dylib");
    program.imports = {{1, false, "_fork", 0}, {2, true, "_exit", 0}};
    EXPECT_THAT(
        violationsOf(program),
        ElementsAre("Tiny: imports _fork, which is not in the export list of /usr/lib/libSystem.B.dylib",
                    "Tiny: imports from /usr/lib/libobjc.A.dylib, which no export list is about"));
}

TEST(Limits, AskForTheProcessorOfAnImport) {
    TinyProgram program;
    program.imports = {{1, false, "_only", 0}};
    EXPECT_EQ(violationsOf(program).size(), 1U);
    program.processor = Processor::x86_64;
    EXPECT_THAT(violationsOf(program), IsEmpty());
}

TEST(Limits, TakeWhatTheProgramDefinesItselfForAnImportOfAnyLibrary) {
    TinyProgram program;
    program.imports = {{Import::WeakDefinition, false, "_main", 0},
                       {Import::WeakDefinition, false, "_exit", 0},
                       {Import::WeakDefinition, false, "_other", 0}};
    EXPECT_THAT(violationsOf(program),
                ElementsAre("Tiny: imports _other, which it does not define and is in no export list"));
}

TEST(ExportLists, RefuseLinesThatTheyDoNotKnow) {
    ExportLists lists;
    const auto refusal = [&](std::string_view text) { return refusalOf([&] { lists.add(text, "A.txt"); }); };
    EXPECT_EQ(refusal("_exit\n"), "A.txt: _exit: is not \"install-name: \" and the library's");
    EXPECT_EQ(refusal("install-name: A\n_exit i386\n"),
              "A.txt: _exit i386: ends in the name of no processor");
    EXPECT_EQ(refusal("# Nothing\n"), "A.txt: has no install name");
    EXPECT_EQ(refusal("install-name: A"), "");
}

} // namespace
} // namespace kestrune::macho
