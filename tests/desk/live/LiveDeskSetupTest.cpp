#include "desk/live/world/LiveDeskSetup.h"

#include "tests/base/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kestrune::desk {
namespace {

LiveDeskSetup setup(const Options& options) {
    auto result = setupOf(options);
    if (const auto* error = std::get_if<replay::InputError>(&result)) {
        ADD_FAILURE() << error->message;
        return {};
    }
    return std::get<LiveDeskSetup>(std::move(result));
}

TEST(LiveDeskSetup, GrantsThePermissionUnlessItIsToBeMissing) {
    EXPECT_EQ(setup({}).permission, sim::Permission::granted);
    Options options;
    options.isPermissionGranted = false;
    EXPECT_EQ(setup(options).permission, sim::Permission::notListed);
    EXPECT_EQ(sessionOptionsOf(setup(options)).permission, sim::Permission::notListed);
}

TEST(LiveDeskSetup, HasTheApplicationsOwnResources) {
    const sim::BundleContents bundle = sessionOptionsOf(setup({})).bundle;
    EXPECT_EQ(bundle.infoString("CFBundleIdentifier"), "org.kestrune.Kestrune");
    EXPECT_EQ(bundle.infoString("CFBundleName"), "Kestrune");
    for (const char* name : {"MenuBarIcon", "AppIcon"}) {
        ASSERT_EQ(bundle.images.count(name), 1U) << name;
        EXPECT_TRUE(std::filesystem::is_regular_file(bundle.images.at(name))) << name;
    }
    EXPECT_EQ(std::filesystem::path(bundle.images.at("MenuBarIcon")).filename(), "MenuBarIcon@2x.png");
    for (const char* key : {"Pin Dock to:", "Complete setup…", "Enable", "Disable", "Quit Kestrune"}) {
        EXPECT_EQ(bundle.localizedStrings.count(key), 1U) << key;
    }
}

TEST(LiveDeskSetup, TakesTheChoicesOfTheOptionsAsTheyAre) {
    Options options;
    options.displays = {{0, 0, 100, 80}, {100, 0, 50, 50}};
    options.pinned = 1;
    options.guardOn = false;
    options.margin = 7.5;
    const LiveDeskSetup result = setup(options);
    EXPECT_EQ(result.displays, options.displays);
    EXPECT_FALSE(result.defaultsFile);
    const sim::SessionOptions session = sessionOptionsOf(result);
    ASSERT_EQ(session.displays.size(), 2U);
    EXPECT_EQ(session.displays[1].bounds, options.displays[1]);
    EXPECT_EQ(session.defaults.at("pinnedScreenUUID").asString(), sim::uuidOfDisplay(2));
    EXPECT_FALSE(session.defaults.at("isEnabled").asBool());
    EXPECT_EQ(session.defaults.at("blockMargin").asDouble(), 7.5);
    EXPECT_FALSE(session.recordJournal);
}

TEST(LiveDeskSetup, StoresNothingThatWasNotAskedFor) {
    EXPECT_TRUE(sessionOptionsOf(setup({})).defaults.empty());
}

TEST(LiveDeskSetup, ReplacesOnlyWhatTheOptionsChoose) {
    const TemporaryFolder folder;
    Options options;
    options.defaultsFile = folder.file("defaults.plist", R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
    <key>isEnabled</key><false/>
    <key>hasCompletedOnboarding</key><true/>
</dict></plist>)");
    options.guardOn = true;
    const LiveDeskSetup result = setup(options);
    EXPECT_FALSE(result.defaults.at("isEnabled").asBool());
    const sim::PropertyListDictionary defaults = sessionOptionsOf(result).defaults;
    EXPECT_TRUE(defaults.at("isEnabled").asBool());
    EXPECT_TRUE(defaults.at("hasCompletedOnboarding").asBool());
    EXPECT_EQ(defaults.size(), 2U);
}

TEST(LiveDeskSetup, TellsWhichFileCannotBeRead) {
    const TemporaryFolder folder;
    Options options;
    options.defaultsFile = folder.file("defaults.plist", "nonsense");
    const auto result = setupOf(options);
    ASSERT_TRUE(std::holds_alternative<replay::InputError>(result));
    EXPECT_EQ(std::get<replay::InputError>(result).message.rfind(*options.defaultsFile, 0), 0U);
}

} // namespace
} // namespace kestrune::desk
