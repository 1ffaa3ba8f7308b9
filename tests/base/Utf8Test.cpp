#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace kestrune {
namespace {

TEST(Utf8, AcceptsTheFirstAndLastCharacterOfEachLength) {
    for (const char* text :
         {"", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80",
          "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF", "\xEE\x80\x80", "a\xC3\xA4z"})
        EXPECT_EQ(firstInvalidUtf8(text), std::nullopt) << text;
}

TEST(Utf8, RefusesOverlongForms) {
    for (const char* text : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF"})
        EXPECT_EQ(firstInvalidUtf8(text), 0U) << text;
}

TEST(Utf8, RefusesSurrogatesAndValuesAboveTheLast) {
    for (const char* text : {"\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"})
        EXPECT_EQ(firstInvalidUtf8(text), 0U) << text;
}

TEST(Utf8, RefusesWhatIsBeyondASecondByte) {
    for (const char* text : {"\xE0\xC0\x80", "\xED\x7F\x80", "\xED\xC0\x80", "\xF0\xC0\x80\x80",
                             "\xF4\x7F\x80\x80", "\xE1\xC0\x80", "\xC2\xC0"})
        EXPECT_EQ(firstInvalidUtf8(text), 0U) << text;
}

TEST(Utf8, RefusesIncompleteCharacters) {
    for (const char* text :
         {"a\x80", "a\xC3", "a\xC3z", "a\xE2\x82", "a\xE2\x82z", "a\xF0\x9F\x98", "a\xF0\x9F\x98z"})
        EXPECT_EQ(firstInvalidUtf8(text), 1U) << text;
}

} // namespace
} // namespace kestrune
