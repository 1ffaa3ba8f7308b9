#include "sim/services/DefaultsDomain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(DefaultsDomain, FindsWhatItStartedWith) {
    const DefaultsDomain domain({{"key", {true}}});
    ASSERT_NE(domain.find("key"), nullptr);
    EXPECT_EQ(*domain.find("key"), PropertyList{true});
    EXPECT_EQ(domain.find("other"), nullptr);
}

TEST(DefaultsDomain, AddsReplacesAndRemovesEntries) {
    DefaultsDomain domain({});
    domain.set("key", PropertyList{std::int64_t{1}});
    EXPECT_EQ(*domain.find("key"), PropertyList{std::int64_t{1}});
    domain.set("key", PropertyList{std::string("text")});
    EXPECT_EQ(*domain.find("key"), PropertyList{std::string("text")});
    domain.set("key", std::nullopt);
    EXPECT_EQ(domain.find("key"), nullptr);
    EXPECT_THAT(domain.entries(), IsEmpty());
}

TEST(DefaultsDomain, RemovesAnEntryThatIsNotThereWithoutHarm) {
    DefaultsDomain domain({{"key", {true}}});
    domain.set("other", std::nullopt);
    EXPECT_EQ(domain.entries(), (PropertyListDictionary{{"key", {true}}}));
}

TEST(DefaultsDomain, TellsItsObserverAboutEachChange) {
    DefaultsDomain domain({{"key", {true}}});
    std::vector<PropertyListDictionary> seen;
    domain.onChange([&seen](const PropertyListDictionary& entries) { seen.push_back(entries); });
    domain.set("key", PropertyList{false});
    domain.set("key", std::nullopt);
    EXPECT_THAT(seen, ElementsAre(PropertyListDictionary{{"key", {false}}}, PropertyListDictionary{}));
}

} // namespace
} // namespace kestrune::sim
