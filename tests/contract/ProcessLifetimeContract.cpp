// Objects that live as long as the process.
#include "platform/ProcessLifetime.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

class ProcessLifetimeContract : public testing::Test {
protected:
    World world_;
    char first_ = 0;
    char second_ = 0;
};

TEST_F(ProcessLifetimeContract, HasAPlaceThatIsEmptyAtFirst) {
    EXPECT_FALSE(ProcessLifetime::place(&first_));
}

TEST_F(ProcessLifetimeContract, KeepsWhatIsPutThere) {
    auto object = std::make_shared<int>(7);
    const std::weak_ptr<int> watched = object;
    ProcessLifetime::place(&first_) = std::move(object);
    EXPECT_FALSE(watched.expired());
    EXPECT_EQ(ProcessLifetime::place(&first_), watched.lock());
}

TEST_F(ProcessLifetimeContract, HasAPlaceForEachKey) {
    const auto object = std::make_shared<int>(7);
    ProcessLifetime::place(&first_) = object;
    EXPECT_FALSE(ProcessLifetime::place(&second_));
}

TEST_F(ProcessLifetimeContract, HasPlacesThatStayWhereTheyAre) {
    std::shared_ptr<void>& place = ProcessLifetime::place(&first_);
    const std::vector<char> keys(1000);
    for (const char& key : keys) {
        ProcessLifetime::place(&key);
    }
    EXPECT_EQ(&place, &ProcessLifetime::place(&first_));
}

} // namespace
} // namespace kestrune::contract
