#include "sim/formats/PropertyListReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

namespace kestrune::sim {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyListDictionary;

std::string inList(const std::string& value) { return "<plist version=\"1.0\">" + value + "</plist>"; }

struct Accepted {
    const char* name;
    std::string xml;
    PropertyList list;
};

void PrintTo(const Accepted& example, std::ostream* output) { *output << example.name; }

std::string nameOfAccepted(const testing::TestParamInfo<Accepted>& example) { return example.param.name; }

class PropertyListReaderAccepts : public testing::TestWithParam<Accepted> {};

TEST_P(PropertyListReaderAccepts, AndReadsTheValue) {
    const auto result = readPropertyList(GetParam().xml);
    const auto* error = std::get_if<PropertyListError>(&result);
    ASSERT_EQ(error, nullptr) << error->line << ": " << error->message;
    EXPECT_EQ(std::get<PropertyList>(result), GetParam().list);
}

const Accepted Values[] = {
    {"True", inList("<true/>"), {true}},
    {"False", inList("<false/>"), {false}},
    {"Integer", inList("<integer>42</integer>"), {std::int64_t{42}}},
    {"NegativeInteger",
     inList("<integer>-9223372036854775808</integer>"),
     {std::numeric_limits<std::int64_t>::min()}},
    {"Real", inList("<real>-12.5e-3</real>"), {-0.0125}},
    {"RealWithoutFraction", inList("<real>5</real>"), {5.0}},
    {"InfiniteReal", inList("<real>inf</real>"), {std::numeric_limits<double>::infinity()}},
    {"String", inList("<string>some text</string>"), {std::string("some text")}},
    {"EmptyString", inList("<string></string>"), {std::string()}},
    {"EmptyStringElement", inList("<string/>"), {std::string()}},
    {"StringWithWhiteSpace", inList("<string> a\n\tb </string>"), {std::string(" a\n\tb ")}},
    {"StringInUTF8", inList("<string>B\xC3\xBCro</string>"), {std::string("B\xC3\xBCro")}},
    {"Entities",
     inList("<string>&lt;a&gt; &amp;amp; &quot;b&quot; &apos;c&apos;</string>"),
     {std::string("<a> &amp; \"b\" 'c'")}},
    {"Data", inList("<data>\n\tMQ==\n\t</data>"), {PropertyList::Data{"\n\tMQ==\n\t"}}},
    {"Date", inList("<date>2026-01-31T08:00:00Z</date>"), {PropertyList::Date{"2026-01-31T08:00:00Z"}}},
    {"EmptyArray", inList("<array></array>"), {Array()}},
    {"EmptyArrayElement", inList("<array/>"), {Array()}},
    {"Array", inList("<array><true/><integer>1</integer></array>"), {Array{{true}, {std::int64_t{1}}}}},
    {"EmptyDictionary", inList("<dict></dict>"), {Dictionary()}},
    {"EmptyDictionaryElement", inList("<dict/>"), {Dictionary()}},
    {"Dictionary",
     inList("<dict><key>a&amp;b</key><false/><key></key><true/></dict>"),
     {Dictionary{{"a&b", {false}}, {"", {true}}}}},
    {"LastOfTwoEqualKeys",
     inList("<dict><key>a</key><false/><key>a</key><true/></dict>"),
     {Dictionary{{"a", {true}}}}},
    {"Nested",
     inList("<dict><key>a</key><array><dict><key>b</key><string>c</string></dict></array></dict>"),
     {Dictionary{{"a", {Array{{Dictionary{{"b", {std::string("c")}}}}}}}}}},
};
INSTANTIATE_TEST_SUITE_P(Values, PropertyListReaderAccepts, testing::ValuesIn(Values), nameOfAccepted);

const Accepted Surroundings[] = {
    {"WholeDocument",
     "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
     "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n<true/>\n</plist>\n",
     {true}},
    {"ListWithoutVersion", "<plist><true/></plist>", {true}},
    {"WhiteSpaceAround", " \r\n\t<plist version=\"1.0\"> \n<true/>\t\r\n</plist>\n\n", {true}},
    {"CommentsEverywhere",
     "<!-- a --><plist version=\"1.0\"><!-- b --><dict><!----><key>k</key><!-- <true/> --><false/><!-- c "
     "--></dict></plist><!-- d -->",
     {Dictionary{{"k", {false}}}}},
};
INSTANTIATE_TEST_SUITE_P(Surroundings, PropertyListReaderAccepts, testing::ValuesIn(Surroundings),
                         nameOfAccepted);

struct Refused {
    const char* name;
    std::string xml;
    std::size_t line;
    std::string message;
};

void PrintTo(const Refused& example, std::ostream* output) { *output << example.name; }

std::string nameOfRefused(const testing::TestParamInfo<Refused>& example) { return example.param.name; }

class PropertyListReaderRefuses : public testing::TestWithParam<Refused> {};

TEST_P(PropertyListReaderRefuses, AndSaysWhereAndWhy) {
    const auto result = readPropertyList(GetParam().xml);
    const auto* error = std::get_if<PropertyListError>(&result);
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->line, GetParam().line);
    EXPECT_EQ(error->message, GetParam().message);
}

const Refused Refusals[] = {
    {"Nothing", "", 1, "expected <plist version=\"1.0\">"},
    {"NoPropertyList", "\n\nhello", 3, "expected <plist version=\"1.0\">"},
    {"DeclarationWithoutEnd", "<?xml version=\"1.0\"\n", 2, "expected <plist version=\"1.0\">"},
    {"CommentWithoutEnd", "<plist>\n<!-- <true/></plist>\n", 3, "expected a property-list value"},
    {"EmptyList", "<plist></plist>", 1, "expected a property-list value"},
    {"UnknownElement", inList("\n<colour/>"), 2, "expected a property-list value"},
    {"SecondValue", inList("<true/>\n<false/>"), 2, "expected </plist>"},
    {"ListWithoutEnd", "<plist>\n<true/>\n", 3, "expected </plist>"},
    {"SomethingAfterTheList", inList("<true/>") + "\nx", 2, "expected nothing after </plist>"},
    {"StringWithoutEnd", inList("<string>a\nb"), 2, "expected </string>"},
    {"StringAtTheEnd", "<plist><string>a", 1, "expected </string>"},
    {"StringWithAnElement", inList("<string>a<b/></string>"), 1, "expected </string>"},
    {"UnknownEntity", inList("<string>\n&nbsp;</string>"), 2,
     "expected one of &amp; &lt; &gt; &quot; &apos;"},
    {"AmpersandAlone", inList("<string>a & b</string>"), 1, "expected one of &amp; &lt; &gt; &quot; &apos;"},
    {"UnknownEntityInAKey", inList("<dict><key>&x;</key><true/></dict>"), 1,
     "expected one of &amp; &lt; &gt; &quot; &apos;"},
    {"EmptyInteger", inList("<integer></integer>"), 1, "expected a whole number before </integer>"},
    {"FractionalInteger", inList("<integer>1.5</integer>"), 1, "expected a whole number before </integer>"},
    {"IntegerTooLarge", inList("<integer>9223372036854775808</integer>"), 1,
     "expected a whole number before </integer>"},
    {"IntegerWithAWord", inList("<integer>1 apple</integer>"), 1,
     "expected a whole number before </integer>"},
    {"IntegerWithoutEnd", inList("<integer>1"), 1, "expected </integer>"},
    {"EmptyReal", inList("<real></real>"), 1, "expected a number before </real>"},
    {"RealWithAComma", inList("<real>1,5</real>"), 1, "expected a number before </real>"},
    {"DataWithoutEnd", inList("<data>MQ=="), 1, "expected </data>"},
    {"DateWithoutEnd", inList("<date>2026"), 1, "expected </date>"},
    {"ArrayWithoutEnd", "<plist><array><true/>\n", 2, "expected a property-list value"},
    {"ArrayWithABadItem", inList("<array>\n<true/>\n<maybe/></array>"), 3, "expected a property-list value"},
    {"DictionaryWithoutEnd", "<plist><dict>\n", 2, "expected <key>"},
    {"DictionaryWithoutKey", inList("<dict>\n<true/></dict>"), 2, "expected <key>"},
    {"DictionaryWithoutValue", inList("<dict><key>k</key>\n</dict>"), 2, "expected a property-list value"},
    {"DictionaryWithABadValue", inList("<dict><key>k</key>\n<integer>x</integer></dict>"), 2,
     "expected a whole number before </integer>"},
    {"KeyWithoutEnd", inList("<dict><key>k<true/></dict>"), 1, "expected </key>"},
};
INSTANTIATE_TEST_SUITE_P(Refusals, PropertyListReaderRefuses, testing::ValuesIn(Refusals), nameOfRefused);

struct Nesting {
    std::string_view begin;
    std::string_view end;
};
constexpr Nesting Arrays{"<array>", "</array>"};
constexpr Nesting Dictionaries{"<dict><key>inner</key>", "</dict>"};

std::string nested(const Nesting& nesting, std::size_t count) {
    std::string before;
    std::string after;
    for (std::size_t index = 0; index < count; ++index) {
        before += nesting.begin;
        after += nesting.end;
    }
    return inList(before + "<string>innermost</string>" + after);
}

TEST(PropertyListReader, AcceptsValuesThatAreNestedDeeply) {
    for (const Nesting& nesting : {Arrays, Dictionaries}) {
        EXPECT_TRUE(std::holds_alternative<PropertyList>(readPropertyList(nested(nesting, 64))));
    }
}

TEST(PropertyListReader, RefusesValuesThatAreNestedTooDeeply) {
    for (const Nesting& nesting : {Arrays, Dictionaries}) {
        for (const std::size_t count : {std::size_t{65}, std::size_t{100'000}}) {
            const auto result = readPropertyList(nested(nesting, count));
            ASSERT_TRUE(std::holds_alternative<PropertyListError>(result));
            EXPECT_EQ(std::get<PropertyListError>(result).message, "the values are nested too deeply");
        }
    }
}

TEST(PropertyListReader, ReadsARealThatIsNoNumber) {
    const auto result = readPropertyList(inList("<real>nan</real>"));
    ASSERT_TRUE(std::holds_alternative<PropertyList>(result));
    EXPECT_TRUE(std::isnan(std::get<PropertyList>(result).asDouble()));
}

} // namespace
} // namespace kestrune::sim
