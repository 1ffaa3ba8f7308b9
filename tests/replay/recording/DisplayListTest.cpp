#include "replay/recording/DisplayList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace kestrune::replay {
namespace {

std::vector<Rect> displaysIn(std::string_view text) {
    const auto result = parseDisplayList(text);
    if (const auto* error = std::get_if<InputError>(&result)) {
        ADD_FAILURE() << "refused: " << error->message;
        return {};
    }
    return std::get<std::vector<Rect>>(result);
}

std::string refusalOfList(std::string_view text) {
    const auto result = parseDisplayList(text);
    const auto* error = std::get_if<InputError>(&result);
    return error == nullptr ? "accepted" : error->message;
}

std::string displayRow(int count) {
    std::string text = "100x100+0+0";
    for (int index = 1; index < count; ++index)
        text += ",100x100+" + std::to_string(index * 100) + "+0";
    return text;
}

TEST(DisplayList, ReadsDisplaysOnEverySideWithDecimals) {
    const std::vector<Rect> expected{{0, 0, 1512, 982}, {-1920, 0, 1920, 1080}, {1512, -458.5, 2560, 1440.5}};
    EXPECT_EQ(displaysIn("1512x982+0+0,1920x1080-1920+0,2560x1440.5+1512-458.5"), expected);
}

TEST(DisplayList, AcceptsOneDisplay) {
    EXPECT_EQ(displaysIn("1920x1080+0+0"), (std::vector<Rect>{{0, 0, 1920, 1080}}));
}

TEST(DisplayList, ReadsMinusZeroAsZero) {
    const std::vector<Rect> displays = displaysIn("10x10-0+0,10x10+10-0.0");
    ASSERT_EQ(displays.size(), 2U);
    EXPECT_FALSE(std::signbit(displays[0].origin.x));
    EXPECT_FALSE(std::signbit(displays[1].origin.y));
}

TEST(DisplayList, AcceptsSixteenDisplaysAndNoMore) {
    EXPECT_EQ(displaysIn(displayRow(16)).size(), 16U);
    EXPECT_EQ(refusalOfList(displayRow(17)), "--displays: display 17: expected at most 16 displays");
}

TEST(DisplayList, AcceptsTheLargestNumbersAndRefusesLargerOnes) {
    EXPECT_EQ(displaysIn("1000000x1000000+0+0,1x1-1000000+0,1x1+1000000-1000000").size(), 3U);
    EXPECT_EQ(refusalOfList("1000000.5x10+0+0"),
              "--displays: display 1: expected a number from -1000000 to 1000000, found \"1000000.5\"");
    EXPECT_EQ(refusalOfList("10x10+0+0,10x10-1000001+0"),
              "--displays: display 2: expected a number from -1000000 to 1000000, found \"-1000001\"");
    EXPECT_EQ(refusalOfList("10x10+0+0,10x10+0+" + std::string(400, '9')),
              "--displays: display 2: expected a number from -1000000 to 1000000, found "
              "\"9999999999999999999999999999999999999999\"...");
}

TEST(DisplayList, AcceptsDisplaysThatTouch) {
    EXPECT_EQ(displaysIn("100x100+0+0,100x100+100+0,100x100+0+100,100x100-100-100").size(), 4U);
}

TEST(DisplayList, TakesRoundingForTouching) {
    // 0.1 + 0.2 is a little more than 0.3.
    EXPECT_EQ(displaysIn("100x100+0+0,0.2x10+100.1+0,10x10+100.3+0").size(), 3U);
}

TEST(DisplayList, RefusesDisplaysThatOverlap) {
    EXPECT_EQ(refusalOfList("100x100+0+0,100x100+100+0,100x100+199+99"),
              "--displays: display 3: expected no overlap, found one with display 2");
    EXPECT_EQ(refusalOfList("100x100+0+0,100x100+99.999+0"),
              "--displays: display 2: expected no overlap, found one with display 1");
    EXPECT_EQ(refusalOfList("100x100+0+0,10x10+50+50"),
              "--displays: display 2: expected no overlap, found one with display 1");
    EXPECT_EQ(refusalOfList("100x100+0+0,100x100+0+0"),
              "--displays: display 2: expected no overlap, found one with display 1");
}

TEST(DisplayList, RefusesAnEmptyList) {
    EXPECT_EQ(refusalOfList(""), "--displays: display 1: expected WxH+X+Y, found \"\"");
}

TEST(DisplayList, RefusesACommaWithoutADisplay) {
    EXPECT_EQ(refusalOfList("10x10+0+0,"), "--displays: display 2: expected WxH+X+Y, found \"\"");
    EXPECT_EQ(refusalOfList(",10x10+0+0"), "--displays: display 1: expected WxH+X+Y, found \"\"");
    EXPECT_EQ(refusalOfList("10x10+0+0,,10x10+10+0"), "--displays: display 2: expected WxH+X+Y, found \"\"");
}

TEST(DisplayList, RefusesADisplayOfNoSize) {
    EXPECT_EQ(refusalOfList("0x10+0+0"),
              "--displays: display 1: expected a width of at least 0.001, found \"0\"");
    EXPECT_EQ(refusalOfList("10x0.0+0+0"),
              "--displays: display 1: expected a height of at least 0.001, found \"0.0\"");
    EXPECT_EQ(refusalOfList("10x10+0+0,-5x10+10+0"),
              "--displays: display 2: expected a width of at least 0.001, found \"-5\"");
    EXPECT_EQ(refusalOfList("10x-5+0+0"),
              "--displays: display 1: expected a height of at least 0.001, found \"-5\"");
}

TEST(DisplayList, RefusesAListWithoutAPrimary) {
    EXPECT_EQ(refusalOfList("10x10+5+0,10x10-5+0"),
              "--displays: display 1: expected the primary display at +0+0, found \"10x10+5+0\"");
    EXPECT_EQ(refusalOfList("10x10+0-0.5"),
              "--displays: display 1: expected the primary display at +0+0, found \"10x10+0-0.5\"");
}

TEST(DisplayList, RefusesWhatItDoesNotUnderstand) {
    for (const std::string text :
         {"abc",        "10x10",     "10x10+0",    "10x10+0+0+0", "10X10+0+0",    "10*10+0+0",
          "x10+0+0",    "10x+0+0",   "10x10 +0+0", " 10x10+0+0",  "10x10+0+0 ",   "10x10+0+0;",
          "10.x10+0+0", ".5x10+0+0", "10x10+0+.5", "10x10+0+0.",  "1.2.3x10+0+0", "10x10++0+0",
          "10x10+-0+0", "10x10+0",   "+10x10+0+0", "--10x10+0+0", "10x100+0",     "1,5x10+0+0"})
        EXPECT_EQ(refusalOfList(text), "--displays: display 1: expected WxH+X+Y, found \"" +
                                           text.substr(0, text.find(',')) + "\"");
}

TEST(DisplayList, RefusesInfinitiesNotANumberAndExponents) {
    for (const std::string text :
         {"infx10+0+0", "10xinfinity+0+0", "10x10+inf+0", "10x10-inf+0", "nanx10+0+0", "10x10+0+nan",
          "1e3x10+0+0", "10x1E2+0+0", "10x10+1e1+0", "0x10x10+0+0"})
        EXPECT_EQ(refusalOfList(text), "--displays: display 1: expected WxH+X+Y, found \"" + text + "\"");
}

TEST(DisplayList, ShowsNonPrintingBytesAndCutsLongText) {
    EXPECT_EQ(refusalOfList("10x10+0+0\n"),
              "--displays: display 1: expected WxH+X+Y, found \"10x10+0+0\\x0A\"");
    EXPECT_EQ(refusalOfList(std::string(1'000'000, 'q')),
              "--displays: display 1: expected WxH+X+Y, found \"" + std::string(40, 'q') + "\"...");
}

} // namespace
} // namespace kestrune::replay
