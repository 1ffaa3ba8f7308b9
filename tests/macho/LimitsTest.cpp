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
using testing::StartsWith;

TextStubs systemStubs() {
    TextStubs stubs;
    stubs.add("--- !tapi-tbd\ninstall-name: '/usr/lib/libSystem.B.dylib'\nexports:\n"
              "  - targets: [ x86_64-macos, arm64-macos ]\n    symbols:\n      - '_exit'\n"
              "  - targets: [ x86_64-macos ]\n    symbols: [ '_only' ]\n...\n",
              "System.tbd");
    return stubs;
}

// Tiny programs name the SDK of the oldest system that runs them.
Limits tinyLimits() {
    Limits limits;
    limits.sdk = {13, 0, 0};
    return limits;
}

Measures measuresOf(const TinyProgram& program, const Limits& limits = tinyLimits()) {
    const Content bytes = program.bytes();
    return measure(MachFile(bytes, "Tiny").slices().front(), limits, systemStubs());
}

std::vector<std::string> violationsOf(const TinyProgram& program, const Limits& limits = tinyLimits()) {
    return measuresOf(program, limits).violations;
}

std::vector<std::string> missingOf(const TinyProgram& program) {
    const Measures measures = measuresOf(program);
    EXPECT_THAT(measures.violations, IsEmpty());
    return measures.missing;
}

TEST(Limits, OfATinyProgramAreMeasured) {
    TinyProgram program;
    program.initializers = 3;
    const Measures measures = measuresOf(program);
    EXPECT_EQ(measures.bytes, program.bytes().size());
    EXPECT_EQ(measures.initializers, 3U);
    EXPECT_EQ(measures.imports, 1U);
    EXPECT_EQ(measures.minimumSystem, (Version{13, 0, 0}));
    EXPECT_EQ(measures.sdk, (Version{13, 0, 0}));
    EXPECT_THAT(measures.violations, IsEmpty());
    EXPECT_THAT(measures.missing, IsEmpty());
}

TEST(Limits, HoldForTheLastThatIsAllowedAndNotForTheNext) {
    TinyProgram program;
    program.initializers = 60;
    program.imports.assign(170, {1, false, "_exit", 0});
    Limits limits = tinyLimits();
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
    Limits limits = tinyLimits();
    limits.minimumSystem = {12, 3, 0};
    EXPECT_THAT(violationsOf(program, limits), IsEmpty());
}

TEST(Limits, AreForTheSDKOfTheStubs) {
    Limits limits;
    limits.sdk = {26, 0, 0};
    EXPECT_THAT(violationsOf(TinyProgram(), limits), ElementsAre("Tiny: names the SDK 13.0, not 26.0"));
}

TEST(Limits, AreForMacsAlone) {
    Content bytes = TinyProgram().bytes();
    poke<std::uint32_t>(bytes, placeOf(bytes, Command::buildVersion) + 8, 2);
    const MachFile file(bytes, "Tiny");
    EXPECT_THAT(measure(file.slices().front(), tinyLimits(), systemStubs()).violations,
                ElementsAre("Tiny: is for the platform 2, which is not macOS"));
}

TEST(Limits, AskForEveryImportInTheStubOfItsLibrary) {
    TinyProgram program;
    program.libraries.emplace_back("/usr/lib/libobjc.A.dylib");
    program.imports = {{1, false, "_fork", 0}, {2, true, "_exit", 0}};
    EXPECT_THAT(missingOf(program),
                ElementsAre("Tiny: imports _fork, which is not in the stub of /usr/lib/libSystem.B.dylib",
                            "Tiny: imports from /usr/lib/libobjc.A.dylib, which no stub is about"));
}

TEST(Limits, AskForTheProcessorOfAnImport) {
    TinyProgram program;
    program.imports = {{1, false, "_only", 0}};
    EXPECT_EQ(missingOf(program).size(), 1U);
    program.processor = Processor::x86_64;
    EXPECT_THAT(missingOf(program), IsEmpty());
}

TEST(Limits, RefuseImportsFromWhateverLibraryHasThem) {
    TinyProgram program;
    program.imports = {{Import::WeakDefinition, false, "_exit", 0}};
    EXPECT_THAT(missingOf(program), ElementsAre("Tiny: imports _exit from no library in particular"));
}

TEST(TextStubs, RefuseWhatIsNone) {
    TextStubs stubs;
    const auto refusal = [&](const std::string& text) {
        return refusalOf([&] { stubs.add(text, "A.tbd"); });
    };
    EXPECT_THAT(refusal("_exit\n"), StartsWith("A.tbd: "));
    EXPECT_THAT(refusal("exports: []\n"), StartsWith("A.tbd: "));
    EXPECT_THAT(refusal("install-name: [\n"), StartsWith("A.tbd: "));
    EXPECT_EQ(refusal("install-name: A\nexports:\n  - targets: [ i386-macos ]\n    symbols: [ _a ]\n"),
              "A.tbd: i386-macos is no target that is known here");
    EXPECT_EQ(refusal("install-name: A"), "");
}

} // namespace
} // namespace kestrune::macho
