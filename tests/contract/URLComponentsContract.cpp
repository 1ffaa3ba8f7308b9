// Links from their parts. What a character becomes is held against a table of our own.
#include "platform/URLComponents.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

namespace kestrune::contract {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char FirstPrintable = ' ';
constexpr char LastPrintable = '~';

constexpr std::string_view LettersAndDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

// What stands for itself beside those.
constexpr std::string_view PlainInQueries = "-._~!$'()*+,;:@/?";
constexpr std::string_view PlainInPaths = "-._~!$'()*+,:@/&=";

std::string percentEncoded(char character) {
    char text[4];
    std::snprintf(text, sizeof(text), "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(character)));
    return text;
}

std::string expected(char character, std::string_view plain) {
    const bool isPlain = LettersAndDigits.find(character) != std::string_view::npos ||
                         plain.find(character) != std::string_view::npos;
    return isPlain ? std::string(1, character) : percentEncoded(character);
}

// Without a URL, what no URL is.
std::string textOf(const URLComponents& components) {
    const std::optional<URL> url = components.url();
    return url ? url->absoluteString() : "(no URL)";
}

// From there on, or everything if that is nowhere.
std::string from(std::string_view beginning, const std::string& whole) {
    const std::size_t place = whole.find(beginning);
    return place != std::string::npos ? whole.substr(place) : whole;
}

std::string query(const std::vector<URLQueryItem>& items) {
    URLComponents components;
    components.setScheme("mailto");
    components.setPath("a");
    components.setQueryItems(items);
    return from("?", textOf(components));
}

std::string queryValue(std::string_view value) { return query({{"n", std::string(value)}}); }

std::string queryName(std::string_view name) { return query({{std::string(name), std::nullopt}}); }

// Of one that begins with "@".
std::string path(std::string_view path) {
    URLComponents components;
    components.setScheme("mailto");
    components.setPath(path);
    return from("@", textOf(components));
}

// The characters that `encode` makes something else of than the table says, and what. `before` is what it has
// in front of the text.
std::vector<std::string> otherThanInTheTable(const std::function<std::string(std::string_view)>& encode,
                                             std::string_view plain, const std::string& before) {
    std::vector<std::string> others;
    for (char character = FirstPrintable; character <= LastPrintable; ++character) {
        const std::string found = encode(std::string{'@', character, 'b'});
        if (found != before + "@" + expected(character, plain) + "b") {
            others.push_back(std::string(1, character) + " " + found);
        }
    }
    return others;
}

class URLComponentsContract : public testing::Test {
protected:
    World world_;
    URLComponents components_;
};

TEST_F(URLComponentsContract, PutsSchemeAndPathTogether) {
    components_.setScheme("mailto");
    components_.setPath("support@example.org");
    EXPECT_EQ(textOf(components_), "mailto:support@example.org");
}

TEST_F(URLComponentsContract, HasQueryItemsInTheirOrder) {
    EXPECT_EQ(query({{"z", "1"}, {"b", "2"}, {"z", "3"}}), "?z=1&b=2&z=3");
}

TEST_F(URLComponentsContract, TellsAnEmptyValueFromNone) {
    EXPECT_EQ(query({{"none", std::nullopt}, {"empty", ""}, {"last", "x"}}), "?none&empty=&last=x");
}

TEST_F(URLComponentsContract, HasTheLastOfWhatWasSet) {
    const URLQueryItem first[] = {{"first", "1"}};
    const URLQueryItem second[] = {{"second", "2"}};
    components_.setScheme("mailto");
    components_.setPath("a");
    components_.setQueryItems(first);
    components_.setScheme("kestrune");
    components_.setPath("b");
    components_.setQueryItems(second);
    EXPECT_THAT(textOf(components_), AllOf(StartsWith("kestrune:"), EndsWith("b?second=2")));
}

TEST_F(URLComponentsContract, HasSchemesOfEveryCharacterThatTheyMayHave) {
    components_.setScheme("x-apple.1+2");
    components_.setPath("a");
    EXPECT_THAT(textOf(components_), StartsWith("x-apple.1+2:"));
}

TEST_F(URLComponentsContract, EncodesEveryPrintableCharacterInAValueAsTheTableSays) {
    EXPECT_THAT(otherThanInTheTable(queryValue, PlainInQueries, "?n="), IsEmpty());
}

TEST_F(URLComponentsContract, EncodesEveryPrintableCharacterInANameAsTheTableSays) {
    EXPECT_THAT(otherThanInTheTable(queryName, PlainInQueries, "?"), IsEmpty());
}

// The semicolon stands for itself since macOS 14.
TEST_F(URLComponentsContract, EncodesEveryPrintableCharacterInAPathAsTheTableSays) {
    EXPECT_THAT(otherThanInTheTable(path, PlainInPaths, ""), AnyOf(IsEmpty(), ElementsAre("; @;b")));
}

TEST_F(URLComponentsContract, EncodesALineFeedAsItIs) { EXPECT_EQ(queryValue("a\n\nb"), "?n=a%0A%0Ab"); }

TEST_F(URLComponentsContract, EncodesTheBytesOfOtherCharacters) {
    EXPECT_EQ(queryValue("\xC3\xA4 \xE2\x80\xA6 \xF0\x9F\x96\xA5"), "?n=%C3%A4%20%E2%80%A6%20%F0%9F%96%A5");
    EXPECT_EQ(queryName("\xC3\xA4"), "?%C3%A4");
    EXPECT_EQ(path("@\xC3\xA4"), "@%C3%A4");
}

TEST_F(URLComponentsContract, EncodesWhatLooksEncodedAgain) {
    EXPECT_EQ(queryValue("100%25 %zz"), "?n=100%2525%20%25zz");
    EXPECT_EQ(path("@100%25"), "@100%2525");
}

TEST_F(URLComponentsContract, MakesTheLinkOfABugReport) {
    components_.setScheme("mailto");
    components_.setPath("support@example.org");
    const URLQueryItem items[] = {{"subject", "Kestrune bug report"},
                                  {"body", "Describe what went wrong:\n\n\n---\nApp version: 2.1 (57)\n"
                                           "macOS: 14.5.0\nLocale: en_US"}};
    components_.setQueryItems(items);
    EXPECT_EQ(textOf(components_),
              "mailto:support@example.org?subject=Kestrune%20bug%20report&body=Describe%20what%20went"
              "%20wrong:%0A%0A%0A---%0AApp%20version:%202.1%20(57)%0AmacOS:%2014.5.0%0ALocale:%20en_US");
}

TEST_F(URLComponentsContract, MakesNoURLOfAPathThatWouldBeAHost) {
    components_.setScheme("mailto");
    components_.setPath("//example.org/a");
    EXPECT_FALSE(components_.url());
}

TEST_F(URLComponentsContract, GivesAURLThatLaterChangesLeaveAlone) {
    components_.setScheme("mailto");
    components_.setPath("a");
    const std::optional<URL> url = components_.url();
    ASSERT_TRUE(url);
    const std::string before = url->absoluteString();
    components_.setPath("b");
    EXPECT_EQ(url->absoluteString(), before);
    EXPECT_NE(textOf(components_), before);
}

using URLComponentsContractDeathTest = URLComponentsContract;

TEST_F(URLComponentsContractDeathTest, StopTheProcessForASchemeThatIsNone) {
    EXPECT_DEATH(components_.setScheme("1mail"), "NSInvalidArgumentException");
    EXPECT_DEATH(components_.setScheme("mail to"), "NSInvalidArgumentException");
}

TEST(URLContract, HasTheTextThatItIsMadeOf) {
    const World world;
    const std::string text = "mailto:a@b.example?subject=a%20b&body=%C3%A4+1%0A";
    const std::optional<URL> url = URL::withString(text);
    ASSERT_TRUE(url);
    EXPECT_EQ(url->absoluteString(), text);
}

} // namespace
} // namespace kestrune::contract
