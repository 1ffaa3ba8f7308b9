// How the runtimes write down the same method, brought into one form.
#include "mac/vocabulary/TypeEncoding.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrune::gnustep {
namespace {

using mac::normalizedEncoding;

template <typename... Arguments>
std::string encodingOf() {
    return mac::EncodingOfMethod<Arguments...>.data();
}

TEST(TypeEncoding, OfAMethodIsMadeOfThoseOfItsTypes) {
    EXPECT_EQ((encodingOf<void, bool, signed char, unsigned char, double, float>()), "v@:BcCdf");
    EXPECT_EQ((encodingOf<int, unsigned, long, unsigned long, long long, unsigned long long>()), "i@:IqQqQ");
    EXPECT_EQ((encodingOf<id, id*, Class, SEL, const char*, const void*>()), "@@:^@#:*^v");
    EXPECT_EQ((encodingOf<Rect, Point, Size>()), "{CGRect={CGPoint=dd}{CGSize=dd}}@:{CGPoint=dd}{CGSize=dd}");
    EXPECT_EQ(encodingOf<OperatingSystemVersion>(), "{?=qqq}@:");
}

TEST(TypeEncoding, GivesEveryScalarOneLetter) {
    EXPECT_EQ(normalizedEncoding("cCBislqISLQfdv*#:"), "BBBisqqISQQfdv*#:");
}

TEST(TypeEncoding, LeavesOutWhereArgumentsLie) {
    EXPECT_EQ(normalizedEncoding("v24@0:8q16"), "v@:q");
    EXPECT_EQ(normalizedEncoding("v+24@-0:8"), "v@:");
}

TEST(TypeEncoding, LeavesOutQualifiers) {
    EXPECT_EQ(normalizedEncoding("Vvr*niNioiOiRi"), "v*iiiii");
    EXPECT_EQ(normalizedEncoding("A@r^Vi"), "@^i");
}

TEST(TypeEncoding, EndsAfterAQualifierWithoutAType) { EXPECT_EQ(normalizedEncoding("ir"), "i"); }

TEST(TypeEncoding, TakesObjectsOfEveryClassAndBlocksForObjects) {
    EXPECT_EQ(normalizedEncoding("@\"NSString\"i"), "@i");
    EXPECT_EQ(normalizedEncoding("@?i"), "@i");
    EXPECT_EQ(normalizedEncoding("@?\"Block\"i"), "@i");
    EXPECT_EQ(normalizedEncoding("@"), "@");
}

TEST(TypeEncoding, EndsInAClassNameThatDoesNotEnd) { EXPECT_EQ(normalizedEncoding("i@\"NSString"), "i@"); }

TEST(TypeEncoding, LeavesOutTheNamesOfStructures) {
    EXPECT_EQ(normalizedEncoding("{CGRect={CGPoint=dd}{CGSize=dd}}i"), "{{dd}{dd}}i");
    EXPECT_EQ(normalizedEncoding("{_NSRange=QQ}@"), "{QQ}@");
    EXPECT_EQ(normalizedEncoding("{?=lc}"), "{qB}");
}

TEST(TypeEncoding, KnowsNothingOfAnOpaqueStructure) {
    EXPECT_EQ(normalizedEncoding("^{CGEvent}i"), "^{}i");
    EXPECT_EQ(normalizedEncoding("{CGEvent"), "{}");
}

TEST(TypeEncoding, EndsInAStructureThatDoesNotEnd) { EXPECT_EQ(normalizedEncoding("{CGPoint=dd"), "{dd}"); }

TEST(TypeEncoding, FollowsPointers) {
    EXPECT_EQ(normalizedEncoding("^^{CGPoint=dd}l"), "^^{dd}q");
    EXPECT_EQ(normalizedEncoding("^v^@"), "^v^@");
}

// As GNUstep's releases declare them.
TEST(TypeEncoding, TakesPointersToTheStructureOfABlockForObjects) {
    EXPECT_EQ(normalizedEncoding("^{Block=^vii^?@}i"), "@i");
    EXPECT_EQ(normalizedEncoding("^{Block=@ii^?}i"), "@i");
    EXPECT_EQ(normalizedEncoding("^{Block=@iip}i"), "@i");
    EXPECT_EQ(normalizedEncoding("^{Block=@iipi}"), "^{@iipi}");
    EXPECT_EQ(normalizedEncoding("^{Other=@ii}"), "^{@ii}");
    EXPECT_EQ(normalizedEncoding("{Block=^vii^?}"), "{^vii^?}");
}

} // namespace
} // namespace kestrune::gnustep
