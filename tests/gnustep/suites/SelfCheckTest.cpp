// The binding's vocabulary held against GNUstep, with and without what stands in for the Mac.
#include "mac/objc/SelfCheck.h"

#include "mac/hosting/Colors.h"
#include "mac/objc/Pool.h"
#include "platform/Updater.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/PrivateHome.h"
#include "tests/gnustep/standins/StandIns.h"
#include "tests/gnustep/standins/sparkle/Sparkle.h"
#include "tests/gnustep/standins/system/MainBundle.h"
#include "ui/SystemColor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace kestrune::gnustep {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

// Methods that GNUstep declares otherwise, and why the binding is right all the same.
struct ExplainedDifference {
    std::string method;
    const char* explanation;
};
const ExplainedDifference Explained[] = {
    {"-[NSAttributedString boundingRectWithSize:options:]",
     "NSStringDrawingOptions is NSInteger in Apple's NSStringDrawing.h and an enumeration in GNUstep's."},
    {"-[NSAttributedString drawWithRect:options:]",
     "NSStringDrawingOptions is NSInteger in Apple's NSStringDrawing.h and an enumeration in GNUstep's."},
    {"-[NSButton setBezelStyle:]",
     "NSBezelStyle is NSUInteger in Apple's NSButtonCell.h and an enumeration in GNUstep's."},
    {"-[NSButton setButtonType:]",
     "NSButtonType is NSUInteger in Apple's NSButtonCell.h and an enumeration in GNUstep's."},
    {"-[NSString initWithBytes:length:encoding:]",
     "NSStringEncoding is NSUInteger in Apple's NSString.h and an enumeration in GNUstep's."},
    {"-[NSString lengthOfBytesUsingEncoding:]",
     "NSStringEncoding is NSUInteger in Apple's NSString.h and an enumeration in GNUstep's."},
    {"-[NSSwitch setState:]",
     "NSControlStateValue is NSInteger in Apple's NSCell.h; GNUstep's switch takes an unsigned number."},
    {"-[NSSwitch state]",
     "NSControlStateValue is NSInteger in Apple's NSCell.h; GNUstep's switch gives an unsigned number."},
};

std::vector<std::string> explainedMethods() {
    std::vector<std::string> methods;
    for (const ExplainedDifference& difference : Explained) {
        methods.push_back(difference.method);
    }
    return methods;
}

// Without the encodings.
std::vector<std::string> methodsOf(const std::vector<std::string>& differences) {
    std::vector<std::string> methods;
    for (const std::string& difference : differences) {
        methods.push_back(difference.substr(0, difference.find("]: ") + 1));
    }
    return methods;
}

void print(const mac::SelfCheckResult& result) {
    const std::size_t own = result.messages - result.missingMethods.size();
    std::printf(
        "%zu classes, %zu messages and their encodings checked: GNUstep has %zu classes and %zu messages, "
        "stand-ins alone %zu messages; of GNUstep's encodings %zu agree and %zu are explained\n",
        result.classes, result.messages, result.classes - result.missingClasses.size(), own,
        result.missingMethods.size(), own - result.differences.size(), result.differences.size());
    for (const ExplainedDifference& difference : Explained) {
        std::printf("%s: %s\n", difference.method.c_str(), difference.explanation);
    }
}

TEST(SelfCheck, AgreesWithGNUstepsEncodingsButForThoseExplained) {
    const mac::SelfCheckResult result = mac::checkVocabulary();
    print(result);
    EXPECT_GT(result.classes, result.missingClasses.size());
    EXPECT_GT(result.messages, result.missingMethods.size());
    EXPECT_THAT(methodsOf(result.differences), UnorderedElementsAreArray(explainedMethods()));
}

TEST(SelfCheck, FindsEverythingWithTheStandIns) {
    installStandIns();
    setMainBundle({}, privateHome());
    setUpdateFramework(contract::UpdateFramework::working);
    const StandardUserDriver loadsTheFramework(Bundle::mainBundle(), {});
    const mac::SelfCheckResult result = mac::checkVocabulary();
    EXPECT_THAT(result.classesNotLoaded, IsEmpty());
    EXPECT_THAT(result.missingClasses, IsEmpty());
    EXPECT_THAT(result.missingMethods, IsEmpty());
    EXPECT_THAT(result.protocolsNotThere, IsEmpty());
    EXPECT_THAT(result.laterMethods, ElementsAre("+[NSColor quinaryLabelColor]")); // behind one that is there
    EXPECT_THAT(methodsOf(result.differences), UnorderedElementsAreArray(explainedMethods()));
}

TEST(SelfCheck, LeavesOutWhatBelongsToAFrameworkThatIsNotLoaded) {
    const mac::SelfCheckResult result = mac::checkVocabulary();
    EXPECT_THAT(result.classesNotLoaded, UnorderedElementsAre("SPUStandardUserDriver", "SPUUpdater"));
    EXPECT_THAT(result.missingClasses, Not(Contains(StartsWith("SPU"))));
}

// As on macOS 13.
TEST(SystemColors, AreOlderOnesWhereTheSystemHasNoNewer) {
    const mac::Pool pool;
    const id older = mac::appKit.color.quaternaryLabelColor();
    EXPECT_EQ(send<BOOL>(mac::platformColor(ui::Color::sectionFill), "isEqual:", older), 1);
    EXPECT_EQ(send<BOOL>(mac::platformColor(ui::Color::sectionBorder), "isEqual:", older), 1);
}

TEST(SystemColors, AreThoseOfTheTable) {
    const mac::Pool pool;
    installStandIns();
    for (std::size_t index = 0; index < ui::SystemColors.size(); ++index) {
        const ui::Shade& expected = ui::SystemColors.at(index).light;
        const id color =
            send(mac::platformColor(static_cast<ui::Color>(index)),
                 "colorUsingColorSpaceName:", objectFor(std::string("NSCalibratedRGBColorSpace")));
        EXPECT_NEAR(send<double>(color, "redComponent") * 255, expected.hexadecimal >> 16, 0.01) << index;
        EXPECT_NEAR(send<double>(color, "greenComponent") * 255, expected.hexadecimal >> 8 & 0xFF, 0.01)
            << index;
        EXPECT_NEAR(send<double>(color, "blueComponent") * 255, expected.hexadecimal & 0xFF, 0.01) << index;
        EXPECT_NEAR(send<double>(color, "alphaComponent"), expected.alpha, 0.001) << index;
    }
}

TEST(SelfCheck, IsCleanWhenNothingIsMissingAndNothingDiffers) {
    mac::SelfCheckResult result;
    result.classesNotLoaded = {"SPUUpdater"};
    EXPECT_TRUE(result.isClean());
    for (const auto list : {&mac::SelfCheckResult::missingClasses, &mac::SelfCheckResult::missingMethods,
                            &mac::SelfCheckResult::differences}) {
        mac::SelfCheckResult other = result;
        (other.*list).emplace_back("name");
        EXPECT_FALSE(other.isClean());
    }
}

struct Mistakes : mac::Framework {
    struct NSArray : mac::ClassReference {
        using ClassReference::ClassReference;
        mac::Message<int()> wrongIntegerWidth{*this, "count"};
    } array{*this, "NSArray"};

    struct NSNumber : mac::ClassReference {
        using ClassReference::ClassReference;
        mac::Message<float()> floatForDouble{*this, "doubleValue"};
    } number{*this, "NSNumber"};

    struct NSBundle : mac::ClassReference {
        using ClassReference::ClassReference;
        mac::Message<id()> misspelled{*this, "infoDictionairy"};
        mac::ClassMessage<id()> methodOfInstances{*this, "infoDictionary"};
    } bundle{*this, "NSBundle"};

    struct NSScreen : mac::ClassReference {
        using ClassReference::ClassReference;
        mac::Message<Size()> structureOfAWrongSize{*this, "frame"};
    } screen{*this, "NSScreen"};

    struct NSScren : mac::ClassReference {
        using ClassReference::ClassReference;
    } misspelledClass{*this, "NSScren"};

    struct NSCoding : mac::ProtocolReference {
        using ProtocolReference::ProtocolReference;
        mac::Message<void(int)> wrongArgument{*this, "encodeWithCoder:"};
        mac::Message<void()> misspelled{*this, "encodeWithCodre:"};
    } coding{*this, "NSCoding"};

    struct NSCodign : mac::ProtocolReference {
        using ProtocolReference::ProtocolReference;
        mac::Message<void(id)> unknown{*this, "encodeWithCoder:"};
    } misspelledProtocol{*this, "NSCodign"};
};

TEST(SelfCheck, FindsDeliberateMistakes) {
    static constinit const Mistakes mistakes;
    const std::array<const mac::Framework*, 1> frameworks = {&mistakes};
    const mac::SelfCheckResult result = mac::checkVocabulary(frameworks);
    EXPECT_EQ(result.classes, 5U);
    EXPECT_EQ(result.messages, 7U);
    EXPECT_THAT(result.missingClasses, ElementsAre("NSScren"));
    EXPECT_THAT(result.missingMethods,
                UnorderedElementsAre("-[NSBundle infoDictionairy]", "+[NSBundle infoDictionary]",
                                     "-[<NSCoding> encodeWithCodre:]"));
    EXPECT_THAT(result.protocolsNotThere, ElementsAre("NSCodign"));
    EXPECT_THAT(result.differences,
                UnorderedElementsAre(StartsWith("-[NSArray count]: expected i@:, found "),
                                     StartsWith("-[NSNumber doubleValue]: expected f@:, found "),
                                     StartsWith("-[<NSCoding> encodeWithCoder:]: expected v@:i, found "),
                                     StartsWith("-[NSScreen frame]: expected {CGSize=dd}@:, found ")));
}

} // namespace
} // namespace kestrune::gnustep
