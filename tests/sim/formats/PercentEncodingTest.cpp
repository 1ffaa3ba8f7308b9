#include "sim/formats/PercentEncoding.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrune::sim {
namespace {

TEST(PercentEncoding, LeavesInAQueryWhatNeedsNoEncodingThere) {
    const std::string literal =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~!$'()*+,;:@/?";
    EXPECT_EQ(encodedQueryText(literal), literal);
    EXPECT_EQ(encodedQueryText(""), "");
}

TEST(PercentEncoding, EncodesEverythingElseOfAQuery) {
    EXPECT_EQ(encodedQueryText(" \n\"#%&<=>[\\]^`{|}\x7f"),
              "%20%0A%22%23%25%26%3C%3D%3E%5B%5C%5D%5E%60%7B%7C%7D%7F");
    EXPECT_EQ(encodedQueryText("ü€😀"), "%C3%BC%E2%82%AC%F0%9F%98%80");
    EXPECT_EQ(encodedQueryText("100%25"), "100%2525");
}

TEST(PercentEncoding, LeavesOtherCharactersInAPath) {
    EXPECT_EQ(encodedPath("a&b=c@d:e/f"), "a&b=c@d:e/f");
    EXPECT_EQ(encodedPath("a?b#c d%"), "a%3Fb%23c%20d%25");
}

} // namespace
} // namespace kestrune::sim
