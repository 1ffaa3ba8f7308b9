#include "tests/macho/PropertyListFile.h"

#include <gtest/gtest.h>

#include <string_view>

namespace kestrune::macho {
namespace {

std::optional<PropertyValue> read(std::string_view text) {
    return readPropertyListFile({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

TEST(PropertyListFile, HasValuesOfEveryKindThatSealsUse) {
    const auto list = read("<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                           "<key>yes</key><true/><key>no</key><false/><key>weight</key><real>1000</real>"
                           "<key>count</key><integer>7</integer><key>text</key><string>a &lt; b</string>"
                           "<key>data</key><data>AAEC</data><key>array</key><array/></dict></plist>");
    ASSERT_TRUE(list.has_value());
    EXPECT_EQ(*list->at("yes"), PropertyValue{true});
    EXPECT_EQ(*list->at("no"), PropertyValue{false});
    EXPECT_EQ(*list->at("weight"), PropertyValue{1000.0});
    EXPECT_EQ(*list->at("count"), PropertyValue());
    EXPECT_EQ(list->text("text"), "a < b");
    EXPECT_EQ(*list->at("data"), (PropertyValue{PropertyValue::Data{0, 1, 2}}));
    EXPECT_EQ(*list->at("array"), PropertyValue());
}

TEST(PropertyListFile, HasNothingUnderOtherKeys) {
    const auto list = read("<plist version=\"1.0\"><dict><key>yes</key><true/></dict></plist>");
    EXPECT_EQ(list->at("no"), nullptr);
    EXPECT_EQ(list->text("yes"), std::nullopt);
    EXPECT_EQ(list->at("yes")->at("more"), nullptr);
}

TEST(PropertyListFile, IsAbsentWhenItIsNone) {
    EXPECT_EQ(read(""), std::nullopt);
    EXPECT_EQ(read("nothing"), std::nullopt);
    EXPECT_EQ(read("<plist version=\"1.0\">"), std::nullopt);
    EXPECT_EQ(read("bplist00"), std::nullopt);
}

} // namespace
} // namespace kestrune::macho
