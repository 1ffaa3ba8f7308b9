#include "replay/recording/InputError.h"

#include <gtest/gtest.h>

namespace kestrune::replay {
namespace {

TEST(QuotedText, IsLeftAloneWhenItIsShortAndPrintable) { EXPECT_EQ(inQuotes("a b~"), "\"a b~\""); }

TEST(QuotedText, ShowsNonPrintingBytes) {
    EXPECT_EQ(inQuotes(std::string_view("\0\n\x1B\x7F\xC3\xA9", 6)), "\"\\x00\\x0A\\x1B\\x7F\\xC3\\xA9\"");
}

TEST(QuotedText, EscapesQuotesAndBackslashes) { EXPECT_EQ(inQuotes("\"\\"), "\"\\\"\\\\\""); }

TEST(QuotedText, IsCutAfterFortyCharacters) {
    EXPECT_EQ(inQuotes(std::string(40, 'a')), '"' + std::string(40, 'a') + '"');
    EXPECT_EQ(inQuotes(std::string(41, 'a')), '"' + std::string(40, 'a') + "\"...");
}

TEST(QuotedText, IsNotCutInsideAnEscape) {
    EXPECT_EQ(inQuotes(std::string(38, 'a') + '\n'), '"' + std::string(38, 'a') + "\"...");
}

TEST(InputErrors, NameTheFileAndTheLine) {
    EXPECT_EQ(inputError(FileLine{"walk.csv", 17}, "expected this").message, "walk.csv:17: expected this");
    EXPECT_EQ(inputError("walk.csv", "expected that").message, "walk.csv: expected that");
}

} // namespace
} // namespace kestrune::replay
