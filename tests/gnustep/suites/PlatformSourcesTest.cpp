// What the binding expects of macOS is GNUstep's as well, or somebody is named who says that macOS has it.
#include "tests/gnustep/suites/PlatformSources.h"

#include "mac/objc/Pool.h"
#include "mac/objc/SelfCheck.h"
#include "mac/objc/Text.h"
#include "platform/NotificationCenter.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace kestrune::gnustep {
namespace {

using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAreArray;

constexpr int OldestSystem = 13;

std::vector<std::string> both(std::vector<std::string> some, const std::vector<std::string>& others) {
    some.insert(some.end(), others.begin(), others.end());
    return some;
}

// As in "+[NSColor linkColor]" and "-[<NSMenuDelegate> menuWillOpen:]".
bool isOfOneOf(const std::string& method, const std::vector<std::string>& owners) {
    const bool isOfProtocol = method[2] == '<';
    const std::size_t start = isOfProtocol ? 3 : 2;
    const std::string owner = method.substr(start, method.find(isOfProtocol ? '>' : ' ') - start);
    return std::find(owners.begin(), owners.end(), owner) != owners.end();
}

TEST(PlatformSources, NameTheClassesThatGNUstepLacks) {
    const mac::SelfCheckResult result = mac::checkVocabulary();
    EXPECT_THAT(both(result.missingClasses, result.classesNotLoaded),
                UnorderedElementsAreArray(missingInGNUstep("class")));
}

// Nothing is asked of a class whose framework is not loaded, or of a protocol that is not there.
TEST(PlatformSources, NameTheMethodsThatGNUstepLacks) {
    const mac::SelfCheckResult result = mac::checkVocabulary();
    std::vector<std::string> listed = missingInGNUstep("method");
    std::erase_if(listed, [&result](const std::string& method) {
        return isOfOneOf(method, both(result.classesNotLoaded, result.protocolsNotThere));
    });
    EXPECT_THAT(both(result.missingMethods, result.laterMethods), UnorderedElementsAreArray(listed));
}

TEST(PlatformSources, NameTheProtocolsThatGNUstepLacks) {
    const mac::SelfCheckResult result = mac::checkVocabulary();
    EXPECT_THAT(result.protocolsNotThere, UnorderedElementsAreArray(missingInGNUstep("protocol")));
}

TEST(PlatformSources, NameTheConstantsThatGNUstepLacks) {
    const std::vector<std::string> listed = missingInGNUstep("constant");
    EXPECT_THAT(listed, Not(IsEmpty()));
    for (const std::string& name : listed) {
        EXPECT_EQ(dlsym(RTLD_DEFAULT, name.c_str()), nullptr) << name;
    }
}

TEST(PlatformSources, AreGNUstepForTheNamesOfNotifications) {
    const mac::Pool pool;
    for (const NotificationName& notification :
         {ApplicationDidChangeScreenParametersNotification, WindowDidBecomeKeyNotification}) {
        const std::string name(notification.name());
        const auto* const constant = static_cast<const id*>(dlsym(RTLD_DEFAULT, name.c_str()));
        ASSERT_NE(constant, nullptr) << name;
        EXPECT_EQ(mac::textOf(*constant), name);
    }
}

TEST(PlatformSources, SayWhatIsOnlyInNewerSystemsThanTheOldest) {
    const mac::SelfCheckResult result = mac::checkVocabulary();
    EXPECT_GT(firstSystem("+[NSColor quinarySystemFillColor]"), OldestSystem);
    for (const std::string& method : result.laterMethods) {
        EXPECT_GT(firstSystem(method).value_or(OldestSystem + 1), OldestSystem) << method;
    }
    for (const std::string& method : result.missingMethods) {
        EXPECT_LE(firstSystem(method).value_or(OldestSystem), OldestSystem) << method;
    }
}

} // namespace
} // namespace kestrune::gnustep
