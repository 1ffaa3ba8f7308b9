// The application as a login item.
#include "platform/AppService.h"
#include "tests/contract/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

using testing::ElementsAre;

class AppServiceContract : public testing::Test {
protected:
    World world_;
    AppService service_ = AppService::mainAppService();
};

TEST_F(AppServiceContract, HasTheStatusThatTheUserSees) {
    for (const AppServiceStatus status : {AppServiceStatus::enabled, AppServiceStatus::notRegistered,
                                          AppServiceStatus::notFound, AppServiceStatus::requiresApproval}) {
        world_.setLoginItem(status);
        EXPECT_EQ(service_.status(), status);
    }
}

TEST_F(AppServiceContract, IsOneForTheProcess) {
    EXPECT_FALSE(AppService::mainAppService().registerAndReturnError());
    EXPECT_EQ(service_.status(), AppServiceStatus::enabled);
}

TEST_F(AppServiceContract, RegistersTheApplication) {
    for (const AppServiceStatus before : {AppServiceStatus::notRegistered, AppServiceStatus::notFound}) {
        world_.setLoginItem(before);
        EXPECT_FALSE(service_.registerAndReturnError());
        EXPECT_EQ(world_.loginItem(), AppServiceStatus::enabled);
        EXPECT_EQ(service_.status(), AppServiceStatus::enabled);
    }
}

TEST_F(AppServiceContract, MayHaveToWaitForTheUsersApproval) {
    world_.requireApprovalOfLoginItem();
    for (const AppServiceStatus before : {AppServiceStatus::notRegistered, AppServiceStatus::notFound}) {
        world_.setLoginItem(before);
        EXPECT_FALSE(service_.registerAndReturnError());
        EXPECT_EQ(service_.status(), AppServiceStatus::requiresApproval);
    }
}

TEST_F(AppServiceContract, LeavesTheApprovalToTheUser) {
    world_.setLoginItem(AppServiceStatus::requiresApproval);
    EXPECT_FALSE(service_.registerAndReturnError());
    EXPECT_EQ(world_.loginItem(), AppServiceStatus::requiresApproval);
    EXPECT_EQ(service_.status(), AppServiceStatus::requiresApproval);
    world_.setLoginItem(AppServiceStatus::enabled);
    EXPECT_EQ(service_.status(), AppServiceStatus::enabled);
}

TEST_F(AppServiceContract, HandsOnWhatItIsAskedFor) {
    service_.status();
    EXPECT_FALSE(service_.registerAndReturnError());
    EXPECT_FALSE(service_.unregisterAndReturnError());
    EXPECT_THAT(world_.loginItemMessages(),
                ElementsAre("-[SMAppService status]", "-[SMAppService registerAndReturnError:]",
                            "-[SMAppService unregisterAndReturnError:]"));
}

TEST_F(AppServiceContract, UnregistersTheApplication) {
    for (const AppServiceStatus before : {AppServiceStatus::enabled, AppServiceStatus::requiresApproval}) {
        world_.setLoginItem(before);
        EXPECT_FALSE(service_.unregisterAndReturnError());
        EXPECT_EQ(world_.loginItem(), AppServiceStatus::notRegistered);
        EXPECT_EQ(service_.status(), AppServiceStatus::notRegistered);
    }
}

TEST_F(AppServiceContract, SaysWhyItIsNotRegistered) {
    world_.refuseLoginItemChanges("Zugriff verweigert \xE2\x80\x93 Operation not permitted");
    world_.setLoginItem(AppServiceStatus::notFound);
    const std::optional<Error> error = service_.registerAndReturnError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription, "Zugriff verweigert \xE2\x80\x93 Operation not permitted");
    EXPECT_EQ(service_.status(), AppServiceStatus::notFound);
}

TEST_F(AppServiceContract, SaysWhyItIsNotUnregistered) {
    world_.refuseLoginItemChanges("The job is busy.");
    world_.setLoginItem(AppServiceStatus::enabled);
    const std::optional<Error> error = service_.unregisterAndReturnError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription, "The job is busy.");
    EXPECT_EQ(service_.status(), AppServiceStatus::enabled);
}

} // namespace
} // namespace kestrune::contract
