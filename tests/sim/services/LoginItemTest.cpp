#include "sim/services/LoginItem.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

TEST(LoginItem, IsRegisteredAndUnregistered) {
    const StandingFaults faults;
    LoginItem item(faults);
    EXPECT_EQ(item.status(), AppServiceStatus::notRegistered);
    EXPECT_FALSE(item.registerItem());
    EXPECT_EQ(item.status(), AppServiceStatus::enabled);
    EXPECT_FALSE(item.unregisterItem());
    EXPECT_EQ(item.status(), AppServiceStatus::notRegistered);
}

TEST(LoginItem, MayWaitForApproval) {
    const StandingFaults faults;
    LoginItem item(faults);
    item.requireApproval(true);
    EXPECT_FALSE(item.registerItem());
    EXPECT_EQ(item.status(), AppServiceStatus::requiresApproval);
    item.setStatus(AppServiceStatus::enabled);
    item.requireApproval(false);
    EXPECT_FALSE(item.unregisterItem());
    EXPECT_FALSE(item.registerItem());
    EXPECT_EQ(item.status(), AppServiceStatus::enabled);
}

TEST(LoginItem, IsApprovedByTheUserAlone) {
    const StandingFaults faults;
    LoginItem item(faults);
    item.setStatus(AppServiceStatus::requiresApproval);
    EXPECT_FALSE(item.registerItem());
    EXPECT_EQ(item.status(), AppServiceStatus::requiresApproval);
    item.setStatus(AppServiceStatus::enabled);
    item.requireApproval(true);
    EXPECT_FALSE(item.registerItem());
    EXPECT_EQ(item.status(), AppServiceStatus::enabled);
}

TEST(LoginItem, IsRegisteredAlsoWhenTheSystemDidNotKnowOfIt) {
    const StandingFaults faults;
    LoginItem item(faults);
    item.setStatus(AppServiceStatus::notFound);
    EXPECT_FALSE(item.registerItem());
    EXPECT_EQ(item.status(), AppServiceStatus::enabled);
    item.setStatus(AppServiceStatus::notFound);
    item.requireApproval(true);
    EXPECT_FALSE(item.registerItem());
    EXPECT_EQ(item.status(), AppServiceStatus::requiresApproval);
}

TEST(LoginItem, StaysAsItIsWhenTheSystemRefuses) {
    StandingFaults faults;
    LoginItem item(faults);
    faults.loginItemRefusal = "No";
    EXPECT_EQ(item.registerItem()->localizedDescription, "No");
    EXPECT_EQ(item.status(), AppServiceStatus::notRegistered);
    item.setStatus(AppServiceStatus::enabled);
    EXPECT_EQ(item.unregisterItem()->localizedDescription, "No");
    EXPECT_EQ(item.status(), AppServiceStatus::enabled);
    faults.loginItemRefusal.reset();
    EXPECT_FALSE(item.unregisterItem());
}

} // namespace
} // namespace kestrune::sim
