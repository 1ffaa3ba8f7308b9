#include "tests/macho/loader/SmallArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

TEST(SmallArguments, AreFilledAsTheirTypesAre) {
    EXPECT_THAT(instructionsThatFill("v@:BCScs"), Optional(ElementsAre(0x12000042,    // and w2, w2, #1
                                                                       0x53001C63,    // uxtb w3, w3
                                                                       0x53003C84,    // uxth w4, w4
                                                                       0x13001CA5,    // sxtb w5, w5
                                                                       0x13003CC6))); // sxth w6, w6
}

TEST(SmallArguments, AreInTheRegistersThatOthersLeave) {
    const auto third = Optional(ElementsAre(0x12000063)); // and w3, w3, #1
    EXPECT_THAT(instructionsThatFill("B@:@B"), third);
    EXPECT_THAT(instructionsThatFill("{CGRect={CGPoint=dd}{CGSize=dd}}@:^{pair=ic}B"), third);
    EXPECT_THAT(instructionsThatFill("v@:{CGRect={CGPoint=dd}{CGSize=dd}}dQB"), third);
}

TEST(SmallArguments, AreLeftAloneWhereThereAreNone) {
    EXPECT_THAT(instructionsThatFill("B@:"), Optional(IsEmpty()));
    EXPECT_THAT(instructionsThatFill("v@:@^v*iId"), Optional(IsEmpty()));
    EXPECT_THAT(instructionsThatFill("v@:qQ#f"), Optional(IsEmpty()));
    EXPECT_THAT(instructionsThatFill("v@:{CGPoint=dd}"), Optional(IsEmpty()));
}

TEST(SmallArguments, AreNotFoundBehindWhatIsNotKnown) {
    for (const char* const encoding :
         {"v@:{?=qqq}B", "v@:(either=id)", "v@:{five=ddddd}", "v@:{mixed=df}", "v@:{CGPoint", "v@:{"}) {
        EXPECT_EQ(instructionsThatFill(encoding), std::nullopt) << encoding;
    }
}

TEST(SmallArguments, AreNotFoundOnTheStack) {
    EXPECT_THAT(instructionsThatFill("v@:qqqqqq"), Optional(IsEmpty()));
    EXPECT_EQ(instructionsThatFill("v@:qqqqqqB"), std::nullopt);
    EXPECT_THAT(instructionsThatFill("v@:dddddddd"), Optional(IsEmpty()));
    EXPECT_EQ(instructionsThatFill("v@:{CGRect={CGPoint=dd}{CGSize=dd}}{CGRect={CGPoint=dd}{CGSize=dd}}d"),
              std::nullopt);
}

} // namespace
} // namespace kestrune::macho
