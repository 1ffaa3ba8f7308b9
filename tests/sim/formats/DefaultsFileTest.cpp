#include "sim/formats/DefaultsFile.h"

#include "tests/base/FileContent.h"
#include "tests/base/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace kestrune::sim {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const PropertyListDictionary Entries = {
    {"isEnabled", {true}}, {"safetyMargin", {1.5}}, {"name", {std::string("<&>")}}};

class DefaultsFileTest : public testing::Test {
protected:
    std::string path(const std::string& name) const { return (folder_.path() / name).string(); }

    std::string write(const std::string& name, std::string_view content) const {
        return folder_.file(name, content).string();
    }

    static std::string errorOf(const std::string& path) {
        const auto result = loadDefaultsFile(path);
        const auto* error = std::get_if<std::string>(&result);
        return error != nullptr ? *error : "no error";
    }

    TemporaryFolder folder_;
};

TEST_F(DefaultsFileTest, HasNoEntriesWhenThereIsNoFile) {
    const auto result = loadDefaultsFile(path("missing.plist"));
    ASSERT_TRUE(std::holds_alternative<PropertyListDictionary>(result));
    EXPECT_TRUE(std::get<PropertyListDictionary>(result).empty());
}

TEST_F(DefaultsFileTest, HasNoEntriesWhenThereIsNoFolder) {
    EXPECT_TRUE(std::holds_alternative<PropertyListDictionary>(loadDefaultsFile(path("missing/file.plist"))));
}

TEST_F(DefaultsFileTest, ReadsBackWhatWasSaved) {
    ASSERT_EQ(saveDefaultsFile(path("defaults.plist"), Entries), std::nullopt);
    const auto result = loadDefaultsFile(path("defaults.plist"));
    ASSERT_TRUE(std::holds_alternative<PropertyListDictionary>(result)) << std::get<std::string>(result);
    EXPECT_EQ(std::get<PropertyListDictionary>(result), Entries);
}

TEST_F(DefaultsFileTest, RefusesAFolder) {
    EXPECT_EQ(errorOf(folder_.path().string()),
              folder_.path().string() + ": expected a property list, found something that is no file");
}

TEST_F(DefaultsFileTest, RefusesAPathThatTheSystemCannotFollow) {
    const std::string name = path(std::string(5000, 'x'));
    EXPECT_THAT(errorOf(name), StartsWith(name + ": cannot be read: "));
}

TEST_F(DefaultsFileTest, NamesTheLineOfAMalformedFile) {
    const std::string file =
        write("bad.plist", "<plist version=\"1.0\">\n<dict>\n<key>k</key>\n<nonsense/>\n");
    EXPECT_EQ(errorOf(file), file + ":4: expected a property-list value");
}

TEST_F(DefaultsFileTest, RefusesAnEmptyFile) {
    const std::string file = write("empty.plist", "");
    EXPECT_EQ(errorOf(file), file + ":1: expected <plist version=\"1.0\">");
}

TEST_F(DefaultsFileTest, RefusesAListThatIsNoDictionary) {
    const std::string file = write("array.plist", "<plist version=\"1.0\"><array/></plist>");
    EXPECT_EQ(errorOf(file), file + ": expected a dictionary");
}

TEST_F(DefaultsFileTest, IsReplacedAsAWhole) {
    const std::string file = write("defaults.plist", std::string(100'000, 'x'));
    ASSERT_EQ(saveDefaultsFile(file, {}), std::nullopt);
    EXPECT_THAT(contentOf(file), AllOf(StartsWith("<?xml"), Not(HasSubstr("x</"))));
    EXPECT_TRUE(std::holds_alternative<PropertyListDictionary>(loadDefaultsFile(file)));
    EXPECT_FALSE(std::filesystem::exists(file + ".new"));
}

TEST_F(DefaultsFileTest, StaysAsItWasForWhoeverHasItOpen) {
    ASSERT_EQ(saveDefaultsFile(path("defaults.plist"), Entries), std::nullopt);
    const std::string before = contentOf(path("defaults.plist"));
    std::ifstream reader(path("defaults.plist"), std::ios::binary);
    ASSERT_EQ(saveDefaultsFile(path("defaults.plist"), {}), std::nullopt);
    const std::string seen{std::istreambuf_iterator<char>(reader), std::istreambuf_iterator<char>()};
    EXPECT_EQ(seen, before);
}

TEST_F(DefaultsFileTest, CannotBeSavedIntoAFolderThatIsNotThere) {
    const std::string file = path("missing/defaults.plist");
    EXPECT_EQ(saveDefaultsFile(file, Entries), file + ".new: cannot be written");
}

TEST_F(DefaultsFileTest, KeepsTheOldEntriesWhenTheNewOnesCannotBeWritten) {
    const std::string file = path("defaults.plist");
    ASSERT_EQ(saveDefaultsFile(file, Entries), std::nullopt);
    std::filesystem::create_directory(file + ".new");
    EXPECT_EQ(saveDefaultsFile(file, {}), file + ".new: cannot be written");
    EXPECT_EQ(std::get<PropertyListDictionary>(loadDefaultsFile(file)), Entries);
}

TEST_F(DefaultsFileTest, LeavesNothingBehindWhenTheOldFileCannotBeReplaced) {
    const std::string file = path("defaults.plist");
    std::filesystem::create_directories(file + "/occupied");
    const auto error = saveDefaultsFile(file, Entries);
    ASSERT_TRUE(error);
    EXPECT_THAT(*error, StartsWith(file + ": cannot be replaced: "));
    EXPECT_FALSE(std::filesystem::exists(file + ".new"));
}

} // namespace
} // namespace kestrune::sim
