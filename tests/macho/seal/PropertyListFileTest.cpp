#include "tests/macho/seal/PropertyListFile.h"

#include "tests/macho/seal/SealError.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kestrune::macho {
namespace {

std::optional<PropertyValue> read(std::string_view text) {
    return readPropertyListFile({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, "List");
}

std::string repeated(std::string_view text, std::size_t count) {
    std::string all;
    for (std::size_t index = 0; index < count; ++index) {
        all += text;
    }
    return all;
}

// Arrays, one within the other.
std::string nestedXml(std::size_t depth) {
    return "<plist>" + repeated("<array>", depth) + repeated("</array>", depth) + "</plist>";
}

std::string bigNumber(std::size_t number, std::size_t bytes) {
    std::string text(bytes, '\0');
    for (auto byte = text.rbegin(); byte != text.rend(); ++byte, number >>= 8) {
        *byte = static_cast<char>(number & 0xFF);
    }
    return text;
}

// The same: each array holds the number of the next, and the last one a truth.
std::string nestedBinary(std::size_t depth) {
    constexpr std::size_t SizeOfReference = 2;
    const std::size_t sizeOfPlace = depth > 20'000 ? 3 : 2;
    std::string list = "bplist00";
    std::string places;
    for (std::size_t number = 0; number < depth; ++number) {
        places += bigNumber(list.size(), sizeOfPlace);
        list += '\xA1' + bigNumber(number + 1, SizeOfReference);
    }
    places += bigNumber(list.size(), sizeOfPlace);
    list += '\x09';
    const std::size_t placeOfPlaces = list.size();
    return list + places + bigNumber(sizeOfPlace, 7) + bigNumber(SizeOfReference, 1) +
           bigNumber(depth + 1, 8) + bigNumber(0, 8) + bigNumber(placeOfPlaces, 8);
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

std::string refusalOfList(const std::string& list) {
    try {
        read(list);
    } catch (const SealError& error) {
        return error.what();
    }
    return "";
}

TEST(PropertyListFile, MayBeNestedAsDeepAsItsSizeAllows) {
    const std::string xml = nestedXml(4'360);
    const std::string binary = nestedBinary(13'090);
    for (const std::string& list : {xml, binary}) {
        EXPECT_LE(list.size(), LargestPropertyList);
        EXPECT_GT(list.size() + 200, LargestPropertyList);
        EXPECT_EQ(read(list), PropertyValue());
    }
}

// Where libplist would end the process.
TEST(PropertyListFile, IsRefusedWhenItIsLargerThanAnyThatASealNeeds) {
    EXPECT_EQ(refusalOfList(nestedXml(50'000)), "List: has 750015 bytes, and lists of up to 65536 are read");
    EXPECT_EQ(refusalOfList(nestedBinary(50'000)),
              "List: has 300044 bytes, and lists of up to 65536 are read");
    const std::string largest(LargestPropertyList, ' ');
    EXPECT_EQ(read(largest), std::nullopt);
    EXPECT_EQ(refusalOfList(largest + ' '), "List: has 65537 bytes, and lists of up to 65536 are read");
}

} // namespace
} // namespace kestrune::macho
