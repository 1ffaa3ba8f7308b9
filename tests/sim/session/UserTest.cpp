#include "sim/session/User.h"

#include "sim/session/Session.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace kestrune::sim {
namespace {

struct Row {
    const char* name;
    Permission permission;
    Permission whenFlipped;
    Permission whenRemoved;
};

void PrintTo(const Row& row, std::ostream* output) { *output << row.name; }

std::string nameOfRow(const testing::TestParamInfo<Row>& row) { return row.param.name; }

class UserAtThePane : public testing::TestWithParam<Row> {
protected:
    UserAtThePane() { session_.user().setPermission(GetParam().permission); }

    Permission permission() { return session_.accessibility().permission(); }

    Session session_;
};

TEST_P(UserAtThePane, FlipsTheSwitchOfTheRow) {
    EXPECT_EQ(permission(), GetParam().permission);
    session_.user().flipPermissionSwitch();
    EXPECT_EQ(permission(), GetParam().whenFlipped);
}

TEST_P(UserAtThePane, RemovesTheRow) {
    session_.user().removePermissionRow();
    EXPECT_EQ(permission(), GetParam().whenRemoved);
    EXPECT_FALSE(session_.accessibility().isListed());
}

const Row Rows[] = {
    {"NotListed", Permission::notListed, Permission::notListed, Permission::notListed},
    {"SwitchedOff", Permission::switchedOff, Permission::granted, Permission::notListed},
    {"Granted", Permission::granted, Permission::switchedOff, Permission::rowDeleted},
    {"RowDeleted", Permission::rowDeleted, Permission::rowDeleted, Permission::rowDeleted},
    {"Stale", Permission::stale, Permission::stale, Permission::notListed},
};
INSTANTIATE_TEST_SUITE_P(Rows, UserAtThePane, testing::ValuesIn(Rows), nameOfRow);

TEST(User, HelpsARowOfAnOlderBuildByItsRemovalAlone) {
    Session session;
    session.user().setPermission(Permission::stale);
    session.user().flipPermissionSwitch();
    EXPECT_FALSE(session.accessibility().readsAsTrusted());
    session.user().removePermissionRow();
    session.accessibility().listApplication();
    session.user().flipPermissionSwitch();
    EXPECT_EQ(session.accessibility().permission(), Permission::granted);
}

TEST(User, PutsTheDialogAwayInFrontOfThePane) {
    Session session;
    session.user().openPane();
    session.accessibility().askUser();
    session.user().denyInDialog();
    EXPECT_FALSE(session.accessibility().isDialogShown());
    EXPECT_TRUE(session.accessibility().isPaneShown());
}

} // namespace
} // namespace kestrune::sim
