#include "sim/formats/PropertyList.h"

#include "tests/base/UnusualNumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kestrune::sim {
namespace {

double asDouble(const std::string& text) { return PropertyList{text}.asDouble(); }

bool asBool(const std::string& text) { return PropertyList{text}.asBool(); }

// What every implementation of the seam answers is in the contract tests; here is what only this one
// promises.

TEST(PropertyList, ReadsATruthValueAsOneOrZero) {
    EXPECT_EQ(PropertyList{true}.asDouble(), 1);
    EXPECT_EQ(PropertyList{false}.asDouble(), 0);
    EXPECT_EQ(PropertyList{true}.asString(), "1");
    EXPECT_EQ(PropertyList{false}.asString(), "0");
}

TEST(PropertyList, IsTrueForANumberThatIsNoNumber) {
    EXPECT_TRUE(PropertyList{std::nan("")}.asBool());
    EXPECT_FALSE(PropertyList{-0.0}.asBool());
}

TEST(PropertyList, SkipsEveryKindOfWhiteSpaceBeforeATruthValue) {
    EXPECT_TRUE(asBool(" \t\n\v\f\r1"));
    EXPECT_FALSE(asBool("\xC2\xA0"
                        "1")); // A no-break space is no white space here.
}

TEST(PropertyList, SkipsOneSignBeforeATruthValue) {
    EXPECT_TRUE(asBool("-000t"));
    EXPECT_FALSE(asBool("+-1"));
    EXPECT_FALSE(asBool("0-1"));
    EXPECT_FALSE(asBool("+"));
}

TEST(PropertyList, ReadsTheNumberAtTheHeadOfAText) {
    EXPECT_EQ(asDouble("+7.25 points"), 7.25);
    EXPECT_EQ(asDouble("-.5"), -0.5);
    EXPECT_EQ(asDouble("1e"), 1);
    EXPECT_EQ(asDouble("1e+2"), 100);
    EXPECT_EQ(asDouble("."), 0);
    EXPECT_EQ(asDouble("- 5"), 0);
    EXPECT_EQ(asDouble("+-5"), 0);
    EXPECT_EQ(asDouble(""), 0);
}

TEST(PropertyList, ReadsNoWordsAndNoHexadecimalNumbers) {
    EXPECT_EQ(asDouble("inf"), 0);
    EXPECT_EQ(asDouble("infinity"), 0);
    EXPECT_EQ(asDouble("-inf"), 0);
    EXPECT_EQ(asDouble("nan"), 0);
    EXPECT_EQ(asDouble("0x1F"), 0);
}

TEST(PropertyList, ReadsANumberThatIsTooLargeAsInfinite) {
    EXPECT_EQ(asDouble("1e400"), Infinity);
    EXPECT_EQ(asDouble("-1E+400"), -Infinity);
    EXPECT_EQ(asDouble("1e99999999999999999999"), Infinity);
    EXPECT_EQ(asDouble("1" + std::string(400, '0')), Infinity);
    EXPECT_EQ(asDouble("1" + std::string(400, '0') + "e-1"), Infinity);
    EXPECT_EQ(asDouble("0." + std::string(100, '0') + "1e500"), Infinity);
}

TEST(PropertyList, ReadsANumberThatIsTooSmallAsZero) {
    EXPECT_EQ(asDouble("1e-400"), 0);
    EXPECT_EQ(asDouble("1E-400"), 0);
    EXPECT_EQ(asDouble("1e-99999999999999999999"), 0);
    EXPECT_EQ(asDouble("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(asDouble("0." + std::string(500, '0') + "1e+100"), 0);
    EXPECT_TRUE(std::signbit(asDouble("-1e-400")));
}

TEST(PropertyList, ReadsTheSmallestNumbersThatThereAre) { EXPECT_EQ(asDouble("4.9e-324"), 4.9e-324); }

TEST(PropertyList, WritesNumbersInTheShortestFormThatReadsBackEqual) {
    EXPECT_EQ(shortestText(0.1), "0.1");
    EXPECT_EQ(shortestText(5), "5");
    EXPECT_EQ(shortestText(1e21), "1e+21");
    EXPECT_EQ(shortestText(-2.5e-10), "-2.5e-10");
    EXPECT_EQ(shortestText(std::numeric_limits<double>::denorm_min()), "5e-324");
}

TEST(PropertyList, IsEqualToOneOfTheSameKindAndValueOnly) {
    EXPECT_EQ(PropertyList{std::int64_t{1}}, PropertyList{std::int64_t{1}});
    EXPECT_FALSE(PropertyList{std::int64_t{1}} == PropertyList{true});
    EXPECT_FALSE(PropertyList{std::int64_t{1}} == PropertyList{1.0});
    EXPECT_FALSE(PropertyList{std::string("MQ==")} == PropertyList{PropertyList::Data{"MQ=="}});
    EXPECT_FALSE(PropertyList{PropertyList::Data{"MQ=="}} == PropertyList{PropertyList::Data{"Mg=="}});
    EXPECT_FALSE(PropertyList{PropertyList::Date{"2026"}} == PropertyList{PropertyList::Date{"2027"}});
}

} // namespace
} // namespace kestrune::sim
