#include "sim/formats/PropertyListWriter.h"

#include "sim/formats/PropertyListReader.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyListDictionary;

const std::string Beginning = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                              "<plist version=\"1.0\">\n";

TEST(PropertyListWriter, WritesAWholeDocument) {
    EXPECT_EQ(writePropertyList({true}), Beginning + "<true/>\n</plist>\n");
}

TEST(PropertyListWriter, WritesEveryKindOfValueAndIndentsWithTabs) {
    const Dictionary dictionary = {{"array", {Array{{std::int64_t{-1}}, {Dictionary{{"inner", {false}}}}}}},
                                   {"data", {PropertyList::Data{"MQ=="}}},
                                   {"date", {PropertyList::Date{"2026-01-31T08:00:00Z"}}},
                                   {"real", {0.5}},
                                   {"string", {std::string("text")}}};
    EXPECT_EQ(writePropertyList({dictionary}), Beginning + "<dict>\n"
                                                           "\t<key>array</key>\n"
                                                           "\t<array>\n"
                                                           "\t\t<integer>-1</integer>\n"
                                                           "\t\t<dict>\n"
                                                           "\t\t\t<key>inner</key>\n"
                                                           "\t\t\t<false/>\n"
                                                           "\t\t</dict>\n"
                                                           "\t</array>\n"
                                                           "\t<key>data</key>\n"
                                                           "\t<data>MQ==</data>\n"
                                                           "\t<key>date</key>\n"
                                                           "\t<date>2026-01-31T08:00:00Z</date>\n"
                                                           "\t<key>real</key>\n"
                                                           "\t<real>0.5</real>\n"
                                                           "\t<key>string</key>\n"
                                                           "\t<string>text</string>\n"
                                                           "</dict>\n</plist>\n");
}

TEST(PropertyListWriter, EscapesTextsAndKeys) {
    EXPECT_EQ(writePropertyList({Dictionary{{"<k>", {std::string("a & b \"c\"")}}}}),
              Beginning +
                  "<dict>\n\t<key>&lt;k&gt;</key>\n\t<string>a &amp; b \"c\"</string>\n</dict>\n</plist>\n");
}

TEST(PropertyListWriter, WritesWhatReadsBackEqual) {
    Array values = {{true},
                    {false},
                    {std::int64_t{0}},
                    {0.1},
                    {-1e300},
                    {std::string()},
                    {std::string("&amp; <tag> ]]> \"'\r\n\t ")},
                    {PropertyList::Data{"MQ==\n"}},
                    {PropertyList::Date{"2026-01-31T08:00:00Z"}},
                    {Array()},
                    {Dictionary()}};
    const PropertyList list{
        Dictionary{{"", {values}}, {"a & b", {Array{{values}, {Dictionary{{"k", {values}}}}}}}}};
    const auto result = readPropertyList(writePropertyList(list));
    const auto* error = std::get_if<PropertyListError>(&result);
    ASSERT_EQ(error, nullptr) << error->line << ": " << error->message;
    EXPECT_EQ(std::get<PropertyList>(result), list);
}

} // namespace
} // namespace kestrune::sim
