#include "sim/formats/BundleContents.h"

#include <gtest/gtest.h>

namespace kestrune::sim {
namespace {

TEST(BundleContents, StartWithAnIdentifierAndTheIconAndWithoutTranslations) {
    const BundleContents contents;
    EXPECT_EQ(contents.infoString("CFBundleIdentifier"), "org.kestrune.Kestrune");
    EXPECT_EQ(contents.infoDictionary.size(), 1U);
    EXPECT_EQ(contents.images.count("MenuBarIcon"), 1U);
    EXPECT_TRUE(contents.localizedStrings.empty());
}

TEST(BundleContents, GiveOnlyTextsAsTexts) {
    BundleContents contents;
    contents.infoDictionary = {{"text", {std::string("words")}},
                               {"empty", {std::string()}},
                               {"number", {std::int64_t{1}}},
                               {"truth", {true}},
                               {"list", {PropertyList::Array{{std::string("words")}}}}};
    EXPECT_EQ(contents.infoString("text"), "words");
    EXPECT_EQ(contents.infoString("empty"), "");
    EXPECT_EQ(contents.infoString("number"), std::nullopt);
    EXPECT_EQ(contents.infoString("truth"), std::nullopt);
    EXPECT_EQ(contents.infoString("list"), std::nullopt);
    EXPECT_EQ(contents.infoString("absent"), std::nullopt);
}

TEST(BundleContents, GiveTruthValues) {
    BundleContents contents;
    contents.infoDictionary = {{"on", {true}}, {"off", {false}}, {"text", {std::string("YES")}}};
    EXPECT_TRUE(contents.infoFlag("on"));
    EXPECT_FALSE(contents.infoFlag("off"));
    EXPECT_TRUE(contents.infoFlag("text"));
    EXPECT_FALSE(contents.infoFlag("absent"));
}

} // namespace
} // namespace kestrune::sim
