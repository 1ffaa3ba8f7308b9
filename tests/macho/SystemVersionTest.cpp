#include "tests/macho/SystemVersion.h"

#include "tests/macho/Refusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

using testing::StartsWith;

TEST(SystemVersion, HasOneToThreeNumbers) {
    EXPECT_EQ(versionIn("13"), (Version{13, 0, 0}));
    EXPECT_EQ(versionIn("13.5"), (Version{13, 5, 0}));
    EXPECT_EQ(versionIn("13.5.1"), (Version{13, 5, 1}));
    for (const char* const text :
         {"", "13.", ".5", "13.5.1.2", "13.5.1.", "13,5", "v13", "-1", "99999999999"}) {
        EXPECT_EQ(versionIn(text), std::nullopt) << text;
    }
}

TEST(SystemVersion, IsInTheSettingsOfTheStubs) {
    EXPECT_EQ(versionOfSettings(R"({"CanonicalName": "macosx26.0", "Version": "26.0"})", "A"),
              (Version{26, 0, 0}));
}

TEST(SystemVersion, IsMissedInTheSettings) {
    const auto refusal = [](const std::string& json) {
        return refusalOf([&] { versionOfSettings(json, "A.json"); });
    };
    EXPECT_EQ(refusal(R"({"Version": "new"})"), "A.json: new is no version");
    EXPECT_THAT(refusal(R"({"CanonicalName": "macosx26.0"})"), StartsWith("A.json: "));
    EXPECT_THAT(refusal(R"({"Version": )"), StartsWith("A.json: "));
    EXPECT_THAT(refusal(""), StartsWith("A.json: "));
}

} // namespace
} // namespace kestrune::macho
