#include "platform/Bundle.h"
#include "tests/contract/World.h"

#include <gtest/gtest.h>

namespace kestrune::contract {
namespace {

TEST(BundleContract, TellsItsIdentifier) {
    const World world;
    EXPECT_EQ(Bundle::mainBundle().bundleIdentifier(), std::string(World::BundleIdentifier));
}

TEST(BundleContract, HasNoIdentifierWhenTheInfoFileHasNone) {
    const World world{BundleFiles{}};
    EXPECT_EQ(Bundle::mainBundle().bundleIdentifier(), std::nullopt);
}

TEST(BundleContract, GivesATextOfItsInfoFile) {
    const World world{BundleFiles{{{"CFBundleName", "Kontrakt \xC3\xA4"}, {"Empty", ""}}, {}, {}}};
    EXPECT_EQ(Bundle::mainBundle().infoDictionaryString("CFBundleName"), "Kontrakt \xC3\xA4");
    EXPECT_EQ(Bundle::mainBundle().infoDictionaryString("Empty"), "");
}

TEST(BundleContract, GivesNoTextForAnAbsentEntryOfItsInfoFile) {
    const World world;
    EXPECT_EQ(Bundle::mainBundle().infoDictionaryString("CFBundleName"), std::nullopt);
    EXPECT_EQ(Bundle::mainBundle().infoDictionaryString(""), std::nullopt);
}

TEST(BundleContract, GivesNoTextForANumberInItsInfoFile) {
    const World world{BundleFiles{{{"CFBundleVersion", std::int64_t{12}}}, {}, {}}};
    EXPECT_EQ(Bundle::mainBundle().infoDictionaryString("CFBundleVersion"), std::nullopt);
}

TEST(BundleContract, HasNoIdentifierWhenTheInfoFileHasANumberThere) {
    const World world{BundleFiles{{{"CFBundleIdentifier", std::int64_t{12}}}, {}, {}}};
    EXPECT_EQ(Bundle::mainBundle().bundleIdentifier(), std::nullopt);
}

TEST(BundleContract, TranslatesATextOfItsTable) {
    const World world{BundleFiles{{}, {{"Quit", "Beenden"}, {"Main", "Haupt"}}, {}}};
    EXPECT_EQ(Bundle::mainBundle().localizedString("Quit"), "Beenden");
    EXPECT_EQ(Bundle::mainBundle().localizedString("Main"), "Haupt");
}

TEST(BundleContract, GivesTheKeyForATextThatItsTableLacks) {
    const World world{BundleFiles{{}, {{"Quit", "Beenden"}}, {}}};
    EXPECT_EQ(Bundle::mainBundle().localizedString("Enable"), "Enable");
    EXPECT_EQ(Bundle::mainBundle().localizedString("Settings\xE2\x80\xA6"), "Settings\xE2\x80\xA6");
    EXPECT_EQ(Bundle::mainBundle().localizedString("quit"), "quit");
}

TEST(BundleContract, TellsKeysApartByTheirBytes) {
    const World world{BundleFiles{
        {}, {{"Settings\xE2\x80\xA6", "one character"}, {"A \xE2\x80\x94 B", "a long dash"}}, {}}};
    EXPECT_EQ(Bundle::mainBundle().localizedString("Settings\xE2\x80\xA6"), "one character");
    EXPECT_EQ(Bundle::mainBundle().localizedString("Settings..."), "Settings...");
    EXPECT_EQ(Bundle::mainBundle().localizedString("A \xE2\x80\x94 B"), "a long dash");
    EXPECT_EQ(Bundle::mainBundle().localizedString("A \xE2\x80\x93 B"), "A \xE2\x80\x93 B");
}

TEST(BundleContract, TranslatesOnlyThePartThatAKeySpans) {
    const World world{BundleFiles{{}, {{"Quit", "Beenden"}}, {}}};
    EXPECT_EQ(Bundle::mainBundle().localizedString(std::string_view("Quit Kestrune").substr(0, 4)),
              "Beenden");
}

} // namespace
} // namespace kestrune::contract
