#include "tests/macho/seal/ResourceRules.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kestrune::macho {
namespace {

struct Example {
    const char* path;
    Treatment treatment;
    bool isInOldSeals;
};

void PrintTo(const Example& example, std::ostream* output) { *output << example.path; }

constexpr Treatment Sealed{true, false, false};
constexpr Treatment Optional{true, true, false};
constexpr Treatment Code{true, false, true};
constexpr Treatment LeftOut{};

class Rules : public testing::TestWithParam<Example> {};

TEST_P(Rules, SayHowAFileIsSealed) {
    const Treatment treatment = treatmentOf(GetParam().path);
    EXPECT_EQ(treatment.isSealed, GetParam().treatment.isSealed);
    EXPECT_EQ(treatment.isOptional, GetParam().treatment.isOptional);
    EXPECT_EQ(treatment.isCode, GetParam().treatment.isCode);
    EXPECT_EQ(oldTreatmentOf(GetParam().path).isSealed, GetParam().isInOldSeals);
}

constexpr Example Examples[] = {
    {"Info.plist", LeftOut, false},
    {"PkgInfo", LeftOut, false},
    {"version.plist", Sealed, true},
    {"embedded.provisionprofile", Sealed, false},
    {"Resources/Icon.icns", Sealed, true},
    {"Resources/Info.plist", Sealed, true},
    {"Resources/.DS_Store", LeftOut, true},
    {"Resources/de.lproj/Localizable.strings", Optional, true},
    {"Resources/de.lproj/locversion.plist", LeftOut, false},
    {"Resources/Base.lproj/Main.nib", Sealed, true},
    {"Headers/Tiny.h", Sealed, false},
    {"Autoupdate", Code, false},
    {"MacOS/helper", Code, false},
    {"Frameworks/Tiny.framework", Code, false},
    {"Library/LoginItems/Tiny.app", Code, false},
    {"Library/Other/Tiny.app", Sealed, false},
    {"Frameworks/Tiny.dSYM/Contents/Info.plist", Sealed, false},
};
INSTANTIATE_TEST_SUITE_P(Files, Rules, testing::ValuesIn(Examples));

TEST(Rules, AreStatedWithTheirWeight) {
    const auto& rules = *statedRules().as<PropertyValue::Dictionary>();
    EXPECT_EQ(rules.size(), 13U);
    EXPECT_EQ(rules.at("^.*"), PropertyValue{true});
    const PropertyValue::Dictionary nested{{"nested", {true}}, {"weight", {10.0}}};
    EXPECT_EQ(rules.at("^[^/]+$"), PropertyValue{nested});
    EXPECT_EQ(statedOldRules().as<PropertyValue::Dictionary>()->size(), 5U);
}

} // namespace
} // namespace kestrune::macho
