// What stands in for the login item's service refuses what ServiceManagement would not understand.
#include "mac/objc/Pool.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/standins/StandIns.h"

#include <gtest/gtest.h>

#include <thread>

namespace kestrune::gnustep {
namespace {

class LoginItemStandInDeathTest : public testing::Test {
protected:
    LoginItemStandInDeathTest() {
        static const bool isInstalled = (installStandIns(), true);
        static_cast<void>(isInstalled);
    }

    static id service() { return send(classObject("SMAppService"), "mainAppService"); }

    mac::Pool pool_;
};

TEST_F(LoginItemStandInDeathTest, RefusesAnotherReceiver) {
    const id other = send(send(classObject("SMAppService"), "alloc"), "init");
    EXPECT_DEATH(send<mac::Integer>(other, "status"), "the receiver is not the main application's service");
}

TEST_F(LoginItemStandInDeathTest, RefusesAChangeWithoutAPlaceForTheError) {
    for (const char* const selector : {"registerAndReturnError:", "unregisterAndReturnError:"}) {
        EXPECT_DEATH(send<BOOL>(service(), selector, static_cast<id*>(nullptr)),
                     "there is no place for the error");
    }
}

TEST_F(LoginItemStandInDeathTest, RefusesAnotherThread) {
    const auto askElsewhere = [] {
        std::thread elsewhere([] { send<mac::Integer>(service(), "status"); });
        elsewhere.join();
    };
    EXPECT_DEATH(askElsewhere(), "it comes from another thread than the main one");
}

} // namespace
} // namespace kestrune::gnustep
