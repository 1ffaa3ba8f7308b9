#include "sim/neighbours/MailLink.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace kestrune::sim {
namespace {

TEST(PercentDecoding, TakesTextWithoutPercentSignsAsItIs) {
    EXPECT_EQ(percentDecoded(""), "");
    EXPECT_EQ(percentDecoded("Kestrune+2.1~(57)"), "Kestrune+2.1~(57)");
}

TEST(PercentDecoding, TakesEveryByteOfUtf8) {
    EXPECT_EQ(percentDecoded("a%20b%0Ac"), "a b\nc");
    EXPECT_EQ(percentDecoded("%25%2b%2B"), "%++");
    EXPECT_EQ(percentDecoded("%E2%80%A6%c3%A9"), "…é");
    for (char character = ' '; character < 0x7F; ++character) {
        constexpr std::string_view Digits = "0123456789ABCDEF";
        const auto byte = static_cast<unsigned char>(character);
        const std::string encoded{'%', Digits[byte >> 4U], Digits[byte & 0xFU]};
        EXPECT_EQ(percentDecoded(encoded), std::string(1, character));
    }
}

TEST(PercentDecoding, RefusesWhatIsNotEncodedWell) {
    for (const char* const text : {"%", "%2", "a%", "%G0", "%0G", "%-1", "% 1", "%%20", "%+2", "%0x"}) {
        EXPECT_FALSE(percentDecoded(text)) << text;
    }
    EXPECT_FALSE(percentDecoded("%FF"));
    EXPECT_FALSE(percentDecoded("%E2%80"));
}

TEST(MailLink, HasRecipientSubjectAndBody) {
    const auto mail = readMailLink("mailto:support@example.org?subject=A%20bug&body=One%0A%0Atwo=2");
    ASSERT_TRUE(mail);
    EXPECT_EQ(mail->recipient, "support@example.org");
    EXPECT_EQ(mail->subject, "A bug");
    EXPECT_EQ(mail->body, "One\n\ntwo=2");
}

TEST(MailLink, KeepsAnEncodedAmpersandInItsPlace) {
    const auto mail = readMailLink("mailto:a%40b@c?body=x%26subject%3Dy%3F&subject=z");
    ASSERT_TRUE(mail);
    EXPECT_EQ(mail->recipient, "a@b@c");
    EXPECT_EQ(mail->body, "x&subject=y?");
    EXPECT_EQ(mail->subject, "z");
}

TEST(MailLink, MayHaveNoHeadersOrOthers) {
    EXPECT_EQ(readMailLink("mailto:a@b")->subject, "");
    EXPECT_EQ(readMailLink("mailto:a@b?")->body, "");
    EXPECT_EQ(readMailLink("mailto:a@b?cc=d@e&body")->body, "");
    EXPECT_EQ(readMailLink("mailto:?subject=s")->recipient, "");
}

TEST(MailLink, IsNotEveryLink) {
    for (const char* const link : {"", "mailto", "https://example.org/?subject=s", "mailto:%G0",
                                   "mailto:a?body=%", "mailto:a?cc=%&body=b"}) {
        EXPECT_FALSE(readMailLink(link)) << link;
    }
}

} // namespace
} // namespace kestrune::sim
