#include "sim/formats/ResourceFolder.h"

#include "tests/base/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace kestrune::sim {
namespace {

namespace fs = std::filesystem;

class ResourceFolder : public testing::Test {
protected:
    ResourceFolder() {
        write("Info.plist", R"(<plist version="1.0"><dict>
            <key>CFBundleIdentifier</key><string>org.example.App</string>
            <key>LSUIElement</key><true/></dict></plist>)");
    }

    void write(const fs::path& name, const std::string& content) {
        fs::create_directories((folder_.path() / name).parent_path());
        std::ofstream(folder_.path() / name, std::ios::binary) << content;
    }

    std::string path(const fs::path& name) const { return (folder_.path() / name).string(); }

    BundleContents loaded() const {
        const auto contents = loadResourceFolder(folder_.path().string());
        if (const auto* error = std::get_if<std::string>(&contents)) {
            ADD_FAILURE() << *error;
            return {};
        }
        return std::get<BundleContents>(contents);
    }

    std::string refusal() const {
        const auto contents = loadResourceFolder(folder_.path().string());
        const auto* error = std::get_if<std::string>(&contents);
        return error != nullptr ? *error : "accepted";
    }

    TemporaryFolder folder_;
};

TEST_F(ResourceFolder, HasTheInformationOfTheBundle) {
    const BundleContents contents = loaded();
    EXPECT_EQ(contents.infoString("CFBundleIdentifier"), "org.example.App");
    EXPECT_TRUE(contents.infoDictionary.at("LSUIElement").asBool());
    EXPECT_EQ(contents.infoDictionary.size(), 2U) << "nothing is there that the file does not have";
}

TEST_F(ResourceFolder, MayBeWithoutStringsAndImages) {
    EXPECT_TRUE(loaded().localizedStrings.empty());
    EXPECT_TRUE(loaded().images.empty());
}

TEST_F(ResourceFolder, HasTheStrings) {
    write("en.lproj/Localizable.strings", "\"Quit\" = \"Leave\";\n\"Settings…\" = \"Settings…\";\n");
    EXPECT_EQ(loaded().localizedStrings, (StringsTable{{"Quit", "Leave"}, {"Settings…", "Settings…"}}));
}

TEST_F(ResourceFolder, PrefersTheSharperOfTwoImages) {
    write("Both.png", "");
    write("Both@2x.png", "");
    write("Dense@2x.png", "");
    write("Plain.png", "");
    write("Drawing.svg", "");
    write("Icon.icns", "");
    const auto images = loaded().images;
    EXPECT_EQ(images.size(), 3U);
    EXPECT_EQ(images.at("Both"), path("Both@2x.png"));
    EXPECT_EQ(images.at("Dense"), path("Dense@2x.png"));
    EXPECT_EQ(images.at("Plain"), path("Plain.png"));
}

TEST_F(ResourceFolder, IsRefusedWithTheLineOfAStringThatIsWrong) {
    write("en.lproj/Localizable.strings", "\"Quit\" = \"Quit\";\n\"Main\" \"Main\";\n");
    EXPECT_EQ(refusal(), path("en.lproj/Localizable.strings") + ":2: expected =");
}

TEST_F(ResourceFolder, IsRefusedWithInformationThatCannotBeRead) {
    write("Info.plist", "nonsense");
    EXPECT_EQ(refusal().rfind(path("Info.plist"), 0), 0U) << refusal();
    EXPECT_EQ(refusal().find('\n'), std::string::npos);
}

TEST_F(ResourceFolder, KnowsNothingOfTheBundleWithoutItsInformation) {
    fs::remove(path("Info.plist"));
    EXPECT_TRUE(loaded().infoDictionary.empty());
}

TEST_F(ResourceFolder, IsRefusedWhenItIsMissing) {
    fs::remove_all(folder_.path());
    EXPECT_EQ(refusal().rfind(folder_.path().string() + ": cannot be read: ", 0), 0U) << refusal();
}

} // namespace
} // namespace kestrune::sim
