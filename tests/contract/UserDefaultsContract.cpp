#include "platform/UserDefaults.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace kestrune::contract {
namespace {

const UserDefaultsKey Key("contractEntry");
const UserDefaultsKey OtherKey("otherEntry");

// What each getter answers for one stored value.
struct Conversion {
    const char* name;
    StoredValue stored;
    bool asBool;
    double asDouble;
    std::optional<std::string> asString;
};

void PrintTo(const Conversion& conversion, std::ostream* output) { *output << conversion.name; }

std::string nameOfConversion(const testing::TestParamInfo<Conversion>& conversion) {
    return conversion.param.name;
}

class UserDefaultsConversionContract : public testing::TestWithParam<Conversion> {
protected:
    UserDefaultsConversionContract() { world_.store(Key.name(), GetParam().stored); }

    World world_;
    std::shared_ptr<UserDefaults> defaults_ = UserDefaults::standardUserDefaults();
};

TEST_P(UserDefaultsConversionContract, ReadsAsATruthValue) {
    EXPECT_EQ(defaults_->boolForKey(Key), GetParam().asBool);
}

TEST_P(UserDefaultsConversionContract, ReadsAsANumber) {
    EXPECT_EQ(defaults_->doubleForKey(Key), GetParam().asDouble);
}

TEST_P(UserDefaultsConversionContract, ReadsAsAString) {
    EXPECT_EQ(defaults_->stringForKey(Key), GetParam().asString);
}

TEST_P(UserDefaultsConversionContract, IsAnObject) { EXPECT_NE(defaults_->objectForKey(Key), nullptr); }

const Conversion Numbers[] = {
    {"Zero", std::int64_t{0}, false, 0, "0"},
    {"One", std::int64_t{1}, true, 1, "1"},
    {"Five", std::int64_t{5}, true, 5, "5"},
    {"MinusThree", std::int64_t{-3}, true, -3, "-3"},
    {"Largest", std::numeric_limits<std::int64_t>::max(), true, 9223372036854775807.0, "9223372036854775807"},
    {"Half", 0.5, true, 0.5, "0.5"},
    {"RealZero", 0.0, false, 0, "0"},
    {"RealMinusFraction", -12.25, true, -12.25, "-12.25"},
};
INSTANTIATE_TEST_SUITE_P(Numbers, UserDefaultsConversionContract, testing::ValuesIn(Numbers),
                         nameOfConversion);

const Conversion Others[] = {
    {"Data", StoredData{"MQ=="}, false, 0, std::nullopt},
    {"Date", StoredDate{"2026-01-01T00:00:00Z"}, false, 0, std::nullopt},
    {"Array", StoredArray{{"1"}}, false, 0, std::nullopt},
    {"Dictionary", StoredDictionary{"YES", "YES"}, false, 0, std::nullopt},
};
INSTANTIATE_TEST_SUITE_P(Others, UserDefaultsConversionContract, testing::ValuesIn(Others), nameOfConversion);

Conversion text(const char* name, std::string stored, bool asBool, double asDouble) {
    return {name, stored, asBool, asDouble, stored};
}

const Conversion Strings[] = {
    text("Empty", "", false, 0),
    text("UpperYes", "YES", true, 0),
    text("LowerYes", "yes", true, 0),
    text("MixedYes", "Yes", true, 0),
    text("YAlone", "Y", true, 0),
    text("UpperTrue", "TRUE", true, 0),
    text("LowerTrue", "true", true, 0),
    text("WordThatStartsWithT", "tea", true, 0),
    text("UpperNo", "NO", false, 0),
    text("LowerFalse", "false", false, 0),
    text("On", "on", false, 0),
    text("Off", "off", false, 0),
    text("DigitZero", "0", false, 0),
    text("DigitOne", "1", true, 1),
    text("DigitNine", "9", true, 9),
    text("LeadingZeros", "007", true, 7),
    text("ZerosOnly", "000", false, 0),
    text("ZeroAndAFraction", "0.5", false, 0.5),
    text("ZerosThenYes", "00y", true, 0),
    text("MinusOne", "-1", true, -1),
    text("PlusOne", "+1", true, 1),
    text("TwoSigns", "--1", false, 0),
    text("SignAlone", "-", false, 0),
    text("SignThenYes", "+Y", true, 0),
    text("LeadingSpaces", "  12", true, 12),
    text("LeadingTabAndLineFeed", "\t\n12", true, 12),
    text("SpacesOnly", "   ", false, 0),
    text("NumberWithAUnit", "12.5pt", true, 12.5),
    text("NumberWithTrailingSpace", "12.5 ", true, 12.5),
    text("Word", "abc", false, 0),
    text("NumberAfterAWord", "abc 12", false, 0),
    text("Exponent", "1.5e3", true, 1500),
    text("PointFirst", ".25", false, 0.25),
    text("PointLast", "3.", true, 3),
    text("CommaIsNoPoint", "2,5", true, 2),
    text("TooLarge", "1e999", true, std::numeric_limits<double>::infinity()),
    text("TooLargeAndNegative", "-1e999", true, -std::numeric_limits<double>::infinity()),
    text("TooSmall", "1e-999", true, 0),
};
INSTANTIATE_TEST_SUITE_P(Strings, UserDefaultsConversionContract, testing::ValuesIn(Strings),
                         nameOfConversion);

class UserDefaultsContract : public testing::Test {
protected:
    World world_;
    std::shared_ptr<UserDefaults> defaults_ = UserDefaults::standardUserDefaults();
};

TEST_F(UserDefaultsContract, AnswersForAnEntryThatIsNotThere) {
    EXPECT_EQ(defaults_->objectForKey(Key), nullptr);
    EXPECT_FALSE(defaults_->boolForKey(Key));
    EXPECT_EQ(defaults_->doubleForKey(Key), 0);
    EXPECT_EQ(defaults_->stringForKey(Key), std::nullopt);
}

// The number that a stored truth value reads as is not documented clearly and not tested.
TEST_F(UserDefaultsContract, ReadsATruthValueThatAnotherProcessStored) {
    world_.store(Key.name(), true);
    EXPECT_TRUE(defaults_->boolForKey(Key));
    EXPECT_EQ(defaults_->stringForKey(Key), "1");
    EXPECT_NE(defaults_->objectForKey(Key), nullptr);
    world_.store(Key.name(), false);
    EXPECT_FALSE(defaults_->boolForKey(Key));
    EXPECT_EQ(defaults_->stringForKey(Key), "0");
    EXPECT_NE(defaults_->objectForKey(Key), nullptr);
}

TEST_F(UserDefaultsContract, ReadsBackATruthValueThatItStored) {
    defaults_->setBool(true, Key);
    EXPECT_TRUE(defaults_->boolForKey(Key));
    defaults_->setBool(false, Key);
    EXPECT_FALSE(defaults_->boolForKey(Key));
    EXPECT_NE(defaults_->objectForKey(Key), nullptr);
}

TEST_F(UserDefaultsContract, ReadsBackAStringThatItStored) {
    defaults_->setObject("A <tagged> & quoted \"text\", \xE5\xB7\xA6", Key);
    EXPECT_EQ(defaults_->stringForKey(Key), "A <tagged> & quoted \"text\", \xE5\xB7\xA6");
    defaults_->setObject("", Key);
    EXPECT_EQ(defaults_->stringForKey(Key), "");
    EXPECT_NE(defaults_->objectForKey(Key), nullptr);
}

TEST_F(UserDefaultsContract, RemovesAnEntryThatIsSetToNil) {
    defaults_->setObject("text", Key);
    defaults_->setObject(std::nullopt, Key);
    EXPECT_EQ(defaults_->objectForKey(Key), nullptr);
    EXPECT_EQ(defaults_->stringForKey(Key), std::nullopt);
}

TEST_F(UserDefaultsContract, RemovesAnEntryThatIsNotThereWithoutHarm) {
    defaults_->setObject(std::nullopt, Key);
    EXPECT_EQ(defaults_->objectForKey(Key), nullptr);
}

TEST_F(UserDefaultsContract, ReplacesAnEntryOfAnotherKind) {
    defaults_->setObject("YES", Key);
    defaults_->setBool(false, Key);
    EXPECT_FALSE(defaults_->boolForKey(Key));
    EXPECT_EQ(defaults_->stringForKey(Key), "0");
    world_.store(Key.name(), StoredArray{});
    defaults_->setObject("text", Key);
    EXPECT_EQ(defaults_->stringForKey(Key), "text");
}

TEST_F(UserDefaultsContract, SeesAChangeByAnotherProcessAtTheNextRead) {
    defaults_->setBool(false, Key);
    world_.store(Key.name(), std::int64_t{1});
    EXPECT_TRUE(defaults_->boolForKey(Key));
}

TEST_F(UserDefaultsContract, KeepsEntriesApartByTheirNames) {
    defaults_->setBool(true, Key);
    EXPECT_FALSE(defaults_->boolForKey(OtherKey));
    defaults_->setObject("other", OtherKey);
    defaults_->setObject(std::nullopt, Key);
    EXPECT_EQ(defaults_->stringForKey(OtherKey), "other");
}

TEST_F(UserDefaultsContract, TellsEntriesApartWhoseNamesDifferInCaseAlone) {
    world_.store("ContractEntry", true);
    EXPECT_FALSE(defaults_->boolForKey(Key));
}

TEST_F(UserDefaultsContract, AnswersTheSameThroughEveryReference) {
    UserDefaults::standardUserDefaults()->setObject("shared", Key);
    EXPECT_EQ(defaults_->stringForKey(Key), "shared");
}

} // namespace
} // namespace kestrune::contract
