#include "Kestrune/LaunchAtLogin.h"

#include "tests/Kestrune/SettingsFixture.h"

namespace kestrune {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class LaunchAtLogin : public SettingsFixture {
protected:
    void setStatus(AppServiceStatus status) { session.loginItem().setStatus(status); }
};

constexpr AppServiceStatus EveryStatus[] = {AppServiceStatus::notRegistered, AppServiceStatus::enabled,
                                            AppServiceStatus::requiresApproval, AppServiceStatus::notFound};

TEST_F(LaunchAtLogin, IsOnOnlyWhenItIsEnabled) {
    for (const AppServiceStatus status : EveryStatus) {
        setStatus(status);
        EXPECT_EQ(isLaunchedAtLogin(), status == AppServiceStatus::enabled);
    }
    calls();
    isLaunchedAtLogin();
    EXPECT_THAT(calls(), ElementsAreArray(ReadingTheLoginItem));
}

TEST_F(LaunchAtLogin, AsksForNothingWhenItIsEnabledAlready) {
    setStatus(AppServiceStatus::enabled);
    EXPECT_TRUE(setLaunchAtLogin(true));
    EXPECT_THAT(calls(), ElementsAreArray(ReadingTheLoginItem));
}

TEST_F(LaunchAtLogin, AsksForNothingWhenItIsOffAlready) {
    for (const AppServiceStatus status : EveryStatus) {
        if (status == AppServiceStatus::enabled) {
            continue;
        }
        setStatus(status);
        EXPECT_TRUE(setLaunchAtLogin(false));
        EXPECT_THAT(calls(), ElementsAreArray(ReadingTheLoginItem));
        EXPECT_EQ(session.loginItem().status(), status);
    }
}

TEST_F(LaunchAtLogin, RegistersWhateverIsNotEnabled) {
    for (const AppServiceStatus status : EveryStatus) {
        if (status == AppServiceStatus::enabled) {
            continue;
        }
        setStatus(status);
        EXPECT_TRUE(setLaunchAtLogin(true));
        EXPECT_THAT(calls(), ElementsAreArray(inOrder(
                                 {ReadingTheLoginItem, {"-[SMAppService registerAndReturnError:]"}})));
        // What waits is approved by the user alone.
        EXPECT_EQ(session.loginItem().status(), status == AppServiceStatus::requiresApproval
                                                    ? AppServiceStatus::requiresApproval
                                                    : AppServiceStatus::enabled);
    }
}

TEST_F(LaunchAtLogin, RegistersAgainWhatWaitsForApproval) {
    session.loginItem().requireApproval(true);
    EXPECT_TRUE(setLaunchAtLogin(true));
    session.loginItem().requireApproval(false);
    EXPECT_TRUE(setLaunchAtLogin(true));
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::requiresApproval);
    const Calls once = inOrder({ReadingTheLoginItem, {"-[SMAppService registerAndReturnError:]"}});
    EXPECT_THAT(calls(), ElementsAreArray(inOrder({once, once})));
}

TEST_F(LaunchAtLogin, UnregistersWhatIsEnabled) {
    setStatus(AppServiceStatus::enabled);
    EXPECT_TRUE(setLaunchAtLogin(false));
    EXPECT_THAT(calls(), ElementsAreArray(
                             inOrder({ReadingTheLoginItem, {"-[SMAppService unregisterAndReturnError:]"}})));
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::notRegistered);
    EXPECT_THAT(session.logRecords(), IsEmpty());
}

TEST_F(LaunchAtLogin, LogsThatItWasNotRegistered) {
    session.loginItem().refuse("Operation not permitted");
    EXPECT_FALSE(setLaunchAtLogin(true));
    EXPECT_THAT(calls(),
                ElementsAreArray(inOrder(
                    {ReadingTheLoginItem,
                     {"-[SMAppService registerAndReturnError:]"},
                     openingLog("loginItem"),
                     {"os_log_error(loginItem, LoginItem toggle failed: Operation not permitted)"}})));
    ASSERT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(session.logRecords()[0].level, sim::LogLevel::error);
    EXPECT_EQ(session.logRecords()[0].subsystem, "org.kestrune.Kestrune");
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::notRegistered);
}

TEST_F(LaunchAtLogin, LogsThatItWasNotUnregistered) {
    setStatus(AppServiceStatus::enabled);
    session.loginItem().refuse("No such process");
    EXPECT_FALSE(setLaunchAtLogin(false));
    EXPECT_THAT(calls(), ElementsAreArray(inOrder(
                             {ReadingTheLoginItem,
                              {"-[SMAppService unregisterAndReturnError:]"},
                              openingLog("loginItem"),
                              {"os_log_error(loginItem, LoginItem toggle failed: No such process)"}})));
    ASSERT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(session.logRecords()[0].level, sim::LogLevel::error);
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::enabled);
}

} // namespace
} // namespace kestrune
