#include "sim/Observers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace kestrune::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ObserversTest : public testing::Test {
protected:
    void add(std::string_view name, std::string observer) {
        observers_.add(name, [this, told = std::move(observer)] { told_.push_back(told); });
    }

    Observers observers_;
    std::vector<std::string> told_;
};

TEST_F(ObserversTest, AreToldOfTheirNameInTheOrderOfTheirRegistration) {
    add("name", "first");
    add("other", "other");
    add("name", "second");
    observers_.post("name");
    EXPECT_THAT(told_, ElementsAre("first", "second"));
    observers_.post("other");
    EXPECT_THAT(told_, ElementsAre("first", "second", "other"));
    observers_.post("nobody's");
    observers_.post("");
    EXPECT_EQ(told_.size(), 3U);
}

TEST_F(ObserversTest, AreCountedUntilTheyAreCleared) {
    EXPECT_EQ(observers_.count(), 0U);
    add("name", "first");
    add("name", "second");
    EXPECT_EQ(observers_.count(), 2U);
    observers_.clear();
    EXPECT_EQ(observers_.count(), 0U);
    observers_.post("name");
    EXPECT_THAT(told_, IsEmpty());
}

TEST_F(ObserversTest, MayBeAddedByOneThatIsTold) {
    observers_.add("name", [this] { add("name", "added"); });
    observers_.post("name");
    EXPECT_THAT(told_, IsEmpty());
    observers_.post("name");
    EXPECT_THAT(told_, ElementsAre("added"));
    EXPECT_EQ(observers_.count(), 3U);
}

// The process that one of them ends has no other that could hear of it.
TEST_F(ObserversTest, AreNotToldAnyMoreWhenOneOfThemClearsThem) {
    observers_.add("name", [this] { observers_.clear(); });
    add("name", "second");
    observers_.post("name");
    EXPECT_THAT(told_, IsEmpty());
}

} // namespace
} // namespace kestrune::sim
