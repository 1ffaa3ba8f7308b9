#include "Kestrune/LaunchAtLogin.h"

#include "tests/Kestrune/SettingsFixture.h"

namespace kestrune {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

const std::string Registering = "-[SMAppService registerAndReturnError:]";
const std::string Unregistering = "-[SMAppService unregisterAndReturnError:]";

class LaunchAtLogin : public SettingsFixture {
protected:
    void setStatus(AppServiceStatus status) { session.user().setLoginItem(status); }
};

constexpr AppServiceStatus EveryStatus[] = {AppServiceStatus::notRegistered, AppServiceStatus::enabled,
                                            AppServiceStatus::requiresApproval, AppServiceStatus::notFound};

TEST_F(LaunchAtLogin, IsOnOnlyWhenItIsEnabled) {
    for (const AppServiceStatus status : EveryStatus) {
        setStatus(status);
        EXPECT_EQ(isLaunchedAtLogin(), status == AppServiceStatus::enabled);
    }
}

TEST_F(LaunchAtLogin, AsksForNothingWhenItIsEnabledAlready) {
    setStatus(AppServiceStatus::enabled);
    EXPECT_TRUE(setLaunchAtLogin(true));
    EXPECT_THAT(calls(), Not(hasCallAbout(Registering)));
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::enabled);
}

TEST_F(LaunchAtLogin, AsksForNothingWhenItIsOffAlready) {
    for (const AppServiceStatus status : EveryStatus) {
        if (status == AppServiceStatus::enabled) {
            continue;
        }
        setStatus(status);
        EXPECT_TRUE(setLaunchAtLogin(false));
        EXPECT_THAT(calls(), Not(hasCallAbout(Unregistering)));
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
        EXPECT_THAT(calls(), Contains(Registering).Times(1));
        // What waits is approved by the user alone.
        EXPECT_EQ(session.loginItem().status(), status == AppServiceStatus::requiresApproval
                                                    ? AppServiceStatus::requiresApproval
                                                    : AppServiceStatus::enabled);
    }
}

TEST_F(LaunchAtLogin, RegistersAgainWhatWaitsForApproval) {
    session.user().requireLoginItemApproval(true);
    EXPECT_TRUE(setLaunchAtLogin(true));
    session.user().requireLoginItemApproval(false);
    EXPECT_TRUE(setLaunchAtLogin(true));
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::requiresApproval);
    EXPECT_THAT(calls(), Contains(Registering).Times(2));
}

TEST_F(LaunchAtLogin, UnregistersWhatIsEnabled) {
    setStatus(AppServiceStatus::enabled);
    EXPECT_TRUE(setLaunchAtLogin(false));
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::notRegistered);
    EXPECT_THAT(session.logRecords(), IsEmpty());
}

TEST_F(LaunchAtLogin, IsChangedInOrder) {
    session.faults().refuseLoginItem("Operation not permitted");
    EXPECT_THAT(callsOf([] { setLaunchAtLogin(true); }),
                ElementsAreArray(inOrder(
                    {{"SMAppService.mainAppService", "-[SMAppService status]", Registering},
                     openingLog("loginItem"),
                     {"os_log_error(loginItem, LoginItem toggle failed: Operation not permitted)"}})));
}

TEST_F(LaunchAtLogin, LogsThatItWasNotRegistered) {
    session.faults().refuseLoginItem("Operation not permitted");
    EXPECT_FALSE(setLaunchAtLogin(true));
    ASSERT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(session.logRecords()[0].level, sim::LogLevel::error);
    EXPECT_EQ(session.logRecords()[0].subsystem, "org.kestrune.Kestrune");
    EXPECT_EQ(session.logRecords()[0].category, "loginItem");
    EXPECT_EQ(session.logRecords()[0].message, "LoginItem toggle failed: Operation not permitted");
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::notRegistered);
}

TEST_F(LaunchAtLogin, LogsThatItWasNotUnregistered) {
    setStatus(AppServiceStatus::enabled);
    session.faults().refuseLoginItem("No such process");
    EXPECT_FALSE(setLaunchAtLogin(false));
    ASSERT_THAT(session.logRecords(), SizeIs(1));
    EXPECT_EQ(session.logRecords()[0].level, sim::LogLevel::error);
    EXPECT_EQ(session.logRecords()[0].message, "LoginItem toggle failed: No such process");
    EXPECT_EQ(session.loginItem().status(), AppServiceStatus::enabled);
}

} // namespace
} // namespace kestrune
